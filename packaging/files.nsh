; The files that are installed. All of them are known by name, and no other is ever written or deleted.
!define UNINSTALLER uninstall.exe
!define STAGED_NAME "burrowmark-setup~"
!define STAGED "$INSTDIR\${STAGED_NAME}"

; Does something with each file; the program first, since it is the one that may be in use.
!macro EachFile ACTION ARGUMENT
  !insertmacro ${ACTION} "${ARGUMENT}" burrowmark.exe
  !insertmacro ${ACTION} "${ARGUMENT}" CopyAddress.exe
  !insertmacro ${ACTION} "${ARGUMENT}" Burrowmark.chm
  !insertmacro ${ACTION} "${ARGUMENT}" BWMK.ico
  !insertmacro ${ACTION} "${ARGUMENT}" TIPOFDAY.TXT
  !insertmacro ${ACTION} "${ARGUMENT}" filecopy.avi
  !insertmacro ${ACTION} "${ARGUMENT}" folder_report.css
  !insertmacro ${ACTION} "${ARGUMENT}" ${UNINSTALLER}
!macroend

!macro DeleteOne FOLDER NAME
  Delete "${FOLDER}\${NAME}"
!macroend

; The folder itself goes only if nothing is left in it.
!macro DeleteOwnFiles FOLDER
  !insertmacro EachFile DeleteOne "${FOLDER}"
  RMDir "${FOLDER}"
!macroend

!macro DeleteStaged
  !insertmacro EachFile DeleteOne "${STAGED}"
  RMDir "${STAGED}"
  RMDir $INSTDIR
!macroend

; A program that has just ended may be held for a moment yet. 9: in place of what is there, and written through.
!macro PutOne UNUSED NAME
  StrCpy $1 0
  ${If} ${FileExists} "${STAGED}\${NAME}"
    ${Do}
      System::Call 'kernel32::MoveFileExW(w "${STAGED}\${NAME}", w "$INSTDIR\${NAME}", i 9) i .r0'
      ${If} $0 <> 0
        ${Break}
      ${EndIf}
      IntOp $1 $1 + 1
      ${If} $1 > 25
        DetailPrint "$INSTDIR\${NAME}"
        MessageBox MB_OK|MB_ICONSTOP "$INSTDIR\${NAME} can't be replaced. Another program may be using it." /SD IDOK
        Abort
      ${EndIf}
      Sleep 200
    ${Loop}
  ${EndIf}
!macroend

; All files are written beside those that are there before the first of them is replaced: a full disk, or a folder that
; can't be written to, leaves what was there.
Function PutFiles
  ClearErrors
  SetOutPath "${STAGED}"
  File "${STAGE}/*.*"
  WriteUninstaller "${STAGED}\${UNINSTALLER}"
  SetOutPath $TEMP
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "Burrowmark can't be written to $INSTDIR." /SD IDOK
    Abort
  ${EndIf}
  !insertmacro EachFile PutOne ""
  RMDir "${STAGED}"
FunctionEnd
