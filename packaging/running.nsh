; Ends the program where it runs, whichever copy of it that is.
!define INSTANCE "Local\Kestrelan.Burrowmark"
!define PATIENCE 50  ; times 200 milliseconds

Var WasRunning

; What can be asked to end it: in the set-up a program of its own, since nothing is installed yet.
!macro AskToEnd
  InitPluginsDir
  SetOutPath $PLUGINSDIR
  File "${STAGE}/burrowmark.exe"
  Exec '"$PLUGINSDIR\burrowmark.exe" /EXIT'
  SetOutPath $TEMP
!macroend
!macro un.AskToEnd
  Exec '"$INSTDIR\burrowmark.exe" /EXIT'
!macroend

!macro RunningFunctions UN
Function ${UN}IsRunning  ; gives 1 or 0 in $0
  System::Call 'kernel32::OpenMutexW(i 0x100000, i 0, w "${INSTANCE}") p .r0'
  ${If} $0 P<> 0
    System::Call 'kernel32::CloseHandle(p r0)'
    StrCpy $0 1
  ${EndIf}
FunctionEnd

Function ${UN}EndRunning
  StrCpy $WasRunning 0
  Call ${UN}IsRunning
  ${If} $0 == 0
    Return
  ${EndIf}
  StrCpy $WasRunning 1
  DetailPrint "Ending the running program"
  again:
  !insertmacro ${UN}AskToEnd
  ${For} $1 1 ${PATIENCE}
    Sleep 200
    Call ${UN}IsRunning
    ${If} $0 == 0
      Return
    ${EndIf}
  ${Next}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
    "Burrowmark is still running. Finish what it is doing or asking, then try again." /SD IDCANCEL IDRETRY again
  SetErrorLevel 3
  Quit
FunctionEnd
!macroend
