; The folders "Organized Folders" that the program keeps in three places. One is the program's only if it has that name
; and holds the Desktop.ini that the program writes.
!define ROOT_NAME "Organized Folders"
!define LINK_DESCRIPTION "Organized Folder Shortcut"
!define LAST_LINE "InfoTip = Contains shortcuts to your favorite folders.$\r$\n"
!define IS_FOLDER 0x10
!define IS_LINK 0x400
!define HIDDEN_SYSTEM HIDDEN|SYSTEM

; Calls a function with each place in $R0: where the program noted one, and where it would make one today. A path in the
; registry may be anybody's; each is looked at before anything is done.
!macro EachProjection FUNCTION
  !insertmacro OneProjection ${FUNCTION} DirDesktop "$DESKTOP"
  !insertmacro OneProjection ${FUNCTION} DirSendTo "$SENDTO"
  !insertmacro OneProjection ${FUNCTION} DirFavorites "$FAVORITES"
!macroend
!macro OneProjection FUNCTION VALUE PARENT
  ReadRegStr $R0 HKCU "${SETTINGS_KEY}" ${VALUE}
  Call ${FUNCTION}
  StrCpy $R0 "${PARENT}\${ROOT_NAME}"
  Call ${FUNCTION}
!macroend

!macro ProjectionFunctions UN
Function ${UN}IsOurProjection  ; of the folder $R0; gives 1 or 0 in $0
  StrCpy $0 0
  ${GetFileName} $R0 $1
  ${If} $1 != "${ROOT_NAME}"
    Return
  ${EndIf}
  ClearErrors
  FileOpen $1 "$R0\Desktop.ini" r
  ${If} ${Errors}
    Return
  ${EndIf}
  ${Do}
    FileRead $1 $2
    ${If} ${Errors}
      ${Break}
    ${EndIf}
    StrCpy $3 $2
  ${Loop}
  FileClose $1
  ${If} $3 == "${LAST_LINE}"
    StrCpy $0 1
  ${EndIf}
  StrCpy $3 ""
FunctionEnd
!macroend

; The icon comes from the program's file, which is in another folder now.
Function RewriteProjections
  !insertmacro EachProjection RewriteDesktopIni
FunctionEnd

Function RewriteDesktopIni
  Call IsOurProjection
  ${If} $0 == 0
    Return
  ${EndIf}
  SetFileAttributes "$R0\Desktop.ini" NORMAL
  ClearErrors
  FileOpen $1 "$R0\Desktop.ini" w
  ${IfNot} ${Errors}
    FileWrite $1 "[.ShellClassInfo]$\r$\n"
    FileWrite $1 'IconFile = "$INSTDIR\burrowmark.exe"$\r$\n'
    FileWrite $1 "IconIndex = 0$\r$\n"
    FileWrite $1 "ConfirmFileOp = 0$\r$\n"
    FileWrite $1 "OriginalIcon = %$\r$\n"
    FileWrite $1 "${LAST_LINE}"
    FileClose $1
  ${EndIf}
  SetFileAttributes "$R0\Desktop.ini" ${HIDDEN_SYSTEM}
FunctionEnd

Function un.RemoveProjections
  !insertmacro EachProjection un.RemoveProjection
FunctionEnd

; What isn't the program's stays, and keeps its folder.
Function un.RemoveProjection
  Call un.IsOurProjection
  ${If} $0 == 0
    Return
  ${EndIf}
  Push $R0
  Call un.WipeLinks
  SetFileAttributes "$R0\Desktop.ini" NORMAL
  Delete "$R0\Desktop.ini"
  RMDir "$R0"
FunctionEnd

; Stack: a folder. Deletes the program's links in it and below, and the folders below that hold nothing then. A folder
; that is a link leads elsewhere and is left alone.
Function un.WipeLinks
  Exch $R0
  Push $R1
  Push $R2
  FindFirst $R1 $R2 "$R0\*"
  ${DoWhile} $R2 != ""
    ${If} $R2 != "."
    ${AndIf} $R2 != ".."
      System::Call 'kernel32::GetFileAttributesW(w "$R0\$R2") i .r0'
      IntOp $1 $0 & ${IS_LINK}
      IntOp $0 $0 & ${IS_FOLDER}
      ${If} $0 = 0
        StrCpy $2 "$R0\$R2"
        Call un.DeleteOwnLink
      ${ElseIf} $1 = 0
        Push "$R0\$R2"
        Call un.WipeLinks
        RMDir "$R0\$R2"
      ${EndIf}
    ${EndIf}
    FindNext $R1 $R2
  ${Loop}
  FindClose $R1
  Pop $R2
  Pop $R1
  Pop $R0
FunctionEnd

; Deletes the file $2 if it is a link with the program's description.
Function un.DeleteOwnLink
  ${GetFileExt} $2 $0
  ${If} $0 != "lnk"
    Return
  ${EndIf}
  StrCpy $4 ""
  !insertmacro ComHlpr_CreateInProcInstance ${CLSID_ShellLink} ${IID_IShellLink} r0 ""
  ${If} $0 P<> 0
    ${IUnknown::QueryInterface} $0 '("${IID_IPersistFile}",.r1)'
    ${If} $1 P<> 0
      ${IPersistFile::Load} $1 '(r2,0).r3'
      ${If} $3 = 0
        ${IShellLink::GetDescription} $0 '(.r4,${NSIS_MAX_STRLEN})'
      ${EndIf}
      ${IUnknown::Release} $1 ""
    ${EndIf}
    ${IUnknown::Release} $0 ""
  ${EndIf}
  ${If} $4 == "${LINK_DESCRIPTION}"
    Delete $2
  ${EndIf}
FunctionEnd
