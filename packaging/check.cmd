@echo off
rem Tries Burrowmark on this machine: its tests, then a start and an end of the program. Results: results.txt beside this
rem file; ends with 0 if all went well. End a running Burrowmark first. The program leaves settings and a default.bwmk.
setlocal
cd /d "%~dp0"
if "%1"=="hold" goto hold
set BURROWMARK_FIXTURES=%~dp0fixtures/
set results=%~dp0results.txt
set bad=0
ver > "%results%"

call :running
if not errorlevel 1 (
  echo Burrowmark is running: end it first
  exit /b 2
)
call :test unit_tests
call :test contract_tests

if exist ended.txt del ended.txt
start "" /min cmd /c ""%~f0" hold"
call :seconds 8
if exist ended.txt (call :said FAILED "the program starts") else call :said ok "the program starts"
burrowmark.exe /EXIT
call :seconds 8
if exist ended.txt (call :said ok "the program ends") else call :said FAILED "the program ends"

type "%results%"
exit /b %bad%

rem The program in a window of its own; the file tells of its end.
:hold
start "" /wait burrowmark.exe
echo ended> ended.txt
exit

:test
echo Running %1
%1.exe --gtest_brief=1 >> "%results%" 2>&1
call :tell %1
exit /b 0

:running
tasklist /fi "imagename eq burrowmark.exe" 2>nul | find /i "burrowmark.exe" >nul
exit /b %errorlevel%

:tell
if errorlevel 1 (call :said FAILED %1) else call :said ok %1
exit /b 0

:said
if %1==FAILED set bad=1
echo %1 %~2>> "%results%"
exit /b 0

rem A pause that needs no keyboard.
:seconds
set /a pings=%1+1
ping -n %pings% 127.0.0.1 >nul
exit /b 0
