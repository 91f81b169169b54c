; The set-up of Burrowmark: for one user, without rights over the machine. Made by ../package.sh, which defines
;   VERSION  the program's version, and VERSION_NUMBERS the same as four numbers
;   STAGE    the folder that holds the files to be installed
;   PICTURES the folder with the pictures of the last page
;   ICON     the program's icon
;   SIZE     what the installed files take, in units of 1,024 bytes
;   OUTPUT   the file to be made
; "/S" asks nothing; "/D=folder", last on the line and without quotes, tells where.
; Ends with 0, with 1 if the user cancels, with 2 if a file can't be written, and with 3, nothing touched, if the
; running program doesn't end.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS all
RequestExecutionLevel user

!define PRODUCT Burrowmark
; The folder as long as nobody has named one: "/D=" doesn't show in $CMDLINE, and even this very folder is named without
; the dot.
!define NOT_NAMED "$LOCALAPPDATA\Programs\.\Burrowmark"
!define DEFAULT_FOLDER "$LOCALAPPDATA\Programs\Burrowmark"

Var OldFolder  ; of the version that is there, empty if there is none

!include LogicLib.nsh
!include FileFunc.nsh
!include MUI2.nsh
!include Win\COM.nsh
!include options.nsh
!include files.nsh
!include running.nsh
!include projection.nsh
!include registry.nsh

Name "${PRODUCT}"
Caption "${PRODUCT} ${VERSION}"
UninstallCaption "Remove ${PRODUCT}"
BrandingText " "
OutFile "${OUTPUT}"
InstallDir "${NOT_NAMED}"
AutoCloseWindow true
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION_NUMBERS}"
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${PRODUCT} set-up"
VIAddVersionKey CompanyName "Kestrelan"
VIAddVersionKey LegalCopyright "Copyright (C) 2026 Kestrelan"

!include wizard.nsh
!insertmacro MUI_LANGUAGE English

!insertmacro RunningFunctions ""
!insertmacro RunningFunctions un.
!insertmacro ProjectionFunctions ""
!insertmacro ProjectionFunctions un.

Function .onInit
  SetShellVarContext current
  InitPluginsDir
  Call FindOldFolder
  ; A newer version goes where the older one is, unless the user says otherwise.
  ${If} $INSTDIR == "${NOT_NAMED}"
    StrCpy $INSTDIR "${DEFAULT_FOLDER}"
    ${If} $OldFolder != ""
      StrCpy $INSTDIR $OldFolder
    ${EndIf}
  ${EndIf}
FunctionEnd

; What the registry says of the folder counts only if a version of ours is there.
Function FindOldFolder
  ReadRegStr $OldFolder HKCU "${UNINSTALL_KEY}" InstallLocation
  ${IfNot} ${FileExists} "$OldFolder\burrowmark.exe"
  ${OrIfNot} ${FileExists} "$OldFolder\${UNINSTALLER}"
    StrCpy $OldFolder ""
  ${EndIf}
FunctionEnd

; Gives 1 or 0 in $0. One folder can have many spellings, so it is asked whether what is made in one shows in the other.
Function IsOldFolderElsewhere
  StrCpy $0 0
  ${If} $OldFolder == ""
    Return
  ${EndIf}
  CreateDirectory "${STAGED}"
  ${If} ${FileExists} "${STAGED}\*.*"
  ${AndIfNot} ${FileExists} "$OldFolder\${STAGED_NAME}\*.*"
    StrCpy $0 1
  ${EndIf}
  RMDir "${STAGED}"
FunctionEnd

Section
  AddSize ${SIZE}
  Call EndRunning
  Call PutFiles
  Call RegisterOldTree
  Call WriteFirstSettings
  Call WriteTicked
  Call WriteSwitchedOn
  Call WriteAssociation
  Call WriteUninstallEntry
  SetOutPath $INSTDIR  ; the link starts the program there
  CreateShortcut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\burrowmark.exe" "" "" "" "" "" "Your folders in one menu"
  Call IsOldFolderElsewhere
  ${If} $0 == 1
    !insertmacro DeleteOwnFiles $OldFolder
  ${EndIf}
  ; Whoever used the program when it was replaced silently goes on using it.
  ${If} ${Silent}
  ${AndIf} $WasRunning == 1
    Exec '"$INSTDIR\burrowmark.exe"'
  ${EndIf}
SectionEnd

Function .onInstFailed
  SetOutPath $TEMP
  !insertmacro DeleteStaged
FunctionEnd

Function un.onInit
  SetShellVarContext current
FunctionEnd

; The settings and the entries of the start menu and the control panel belong to the version that is registered: one
; that was moved here by hand leaves them alone.
Section Uninstall
  Call un.EndRunning
  Call un.RemovePathsOfOurs
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" InstallLocation
  ${If} $0 == $INSTDIR
    Call un.RemoveProjections
    DeleteRegKey HKCU "${MAIN_KEY}"
    DeleteRegKey /ifempty HKCU "${COMPANY_KEY}"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    Delete "$SMPROGRAMS\${PRODUCT}.lnk"
  ${EndIf}
  SetOutPath $TEMP
  !insertmacro DeleteOwnFiles $INSTDIR
SectionEnd
