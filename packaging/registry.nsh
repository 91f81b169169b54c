; What is written to the user's registry and taken out of it, as the program itself writes it.
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Burrowmark"
!define CLASSES "Software\Classes"

!macro EachVerb ACTION
  !insertmacro ${ACTION} "Directory\shell\Organize Folder" "&Organize Folder" "burrowmark.exe" " /ADD %L"
  !insertmacro ${ACTION} "Drive\shell\Organize Drive" "&Organize Drive" "burrowmark.exe" " /ADD %L"
  !insertmacro ${ACTION} "*\shell\Copy Address" "&Copy Address" "CopyAddress.exe" " %L"
  !insertmacro ${ACTION} "Directory\shell\Copy Address" "&Copy Address" "CopyAddress.exe" " %L"
  !insertmacro ${ACTION} "Drive\shell\Copy Address" "&Copy Address" "CopyAddress.exe" " %L"
  !insertmacro ${ACTION} "Directory\shell\Folder Report" "Folder &Report" "burrowmark.exe" " /FR %L"
  !insertmacro ${ACTION} "Drive\shell\Folder Report" "Folder &Report" "burrowmark.exe" " /FR %L"
!macroend

!macro WriteVerb KEY TEXT PROGRAM ARGUMENTS
  WriteRegStr HKCU "${CLASSES}\${KEY}" "" "${TEXT}"
  WriteRegStr HKCU "${CLASSES}\${KEY}\command" "" '"$INSTDIR\${PROGRAM}"${ARGUMENTS}'
!macroend

; The tree that lies beside the older version would not be found beside this one.
Function RegisterOldTree
  ${If} $OldFolder == ""
  ${OrIf} $OldFolder == $INSTDIR
    Return
  ${EndIf}
  ReadRegStr $0 HKCU "${SETTINGS_KEY}" ConfigFile
  ${If} $0 == ""
  ${AndIf} ${FileExists} "$OldFolder\default.bwmk"
    WriteRegStr HKCU "${SETTINGS_KEY}" ConfigFile "$OldFolder\default.bwmk"
  ${EndIf}
FunctionEnd

; For a user who has no settings yet: tips are on, and the first start brings up what is ticked.
Function WriteFirstSettings
  ClearErrors
  EnumRegKey $0 HKCU "${SETTINGS_KEY}" 0
  ${If} ${Errors}
    WriteRegStr HKCU "${SETTINGS_KEY}" AFTINST ${ON}
    WriteRegStr HKCU "${SETTINGS_KEY}" TIP ${ON}
  ${EndIf}
FunctionEnd

!macro WriteOne NUMBER
  ${If} $Tick${NUMBER} == 1
    WriteRegStr HKCU "${SETTINGS_KEY}" "ADVC${NUMBER}" ${ON}
  ${EndIf}
!macroend
Function WriteTicked
  !insertmacro WriteOne ${START_WITH_WINDOWS}
  !insertmacro WriteOne ${EXPLORER_MENU}
  !insertmacro WriteOne ${ON_DESKTOP}
  !insertmacro WriteOne ${IN_SEND_TO}
  !insertmacro WriteOne ${IN_FAVORITES}
  !insertmacro WriteOne ${HOT_KEYS}
  ${If} "$Tick${ON_DESKTOP}$Tick${IN_SEND_TO}$Tick${IN_FAVORITES}" != ""
    WriteRegStr HKCU "${SETTINGS_KEY}" AFTINST ${ON}
  ${EndIf}
FunctionEnd

; The paths of all that is on, be it ticked now or earlier, from whatever folder.
Function WriteSwitchedOn
  !insertmacro IsOn ${START_WITH_WINDOWS}
  ${If} $0 == 1
    WriteRegStr HKCU "${RUN_KEY}" "${PRODUCT}" '"$INSTDIR\burrowmark.exe"'
  ${EndIf}
  !insertmacro IsOn ${EXPLORER_MENU}
  ${If} $0 == 1
    !insertmacro EachVerb WriteVerb
  ${EndIf}
  Call RewriteProjections
FunctionEnd

!macro TellAssociations
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Function WriteAssociation
  WriteRegStr HKCU "${CLASSES}\.bwmk" "" "${PRODUCT}"
  WriteRegStr HKCU "${CLASSES}\.bwmk" "Content Type" "text/plain"
  WriteRegStr HKCU "${CLASSES}\${PRODUCT}" "" "Burrowmark Configuration File"
  WriteRegBin HKCU "${CLASSES}\${PRODUCT}" EditFlags 00000000
  WriteRegStr HKCU "${CLASSES}\${PRODUCT}\DefaultIcon" "" "$INSTDIR\BWMK.ico"
  WriteRegStr HKCU "${CLASSES}\${PRODUCT}\shell\open\command" "" '"$INSTDIR\burrowmark.exe" /OPEN %1'
  !insertmacro TellAssociations
FunctionEnd

Function WriteUninstallEntry
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayName "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\burrowmark.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" Publisher "Kestrelan"
  WriteRegStr HKCU "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\${UNINSTALLER}"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\${UNINSTALLER}" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoRepair 1
  SectionGetSize 0 $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" EstimatedSize $0
FunctionEnd

; A verb, if it leads to this folder: the user's, and one that the program wrote where it might write for the machine.
!macro RemoveVerbOf ROOT KEY COMMAND
  ReadRegStr $0 ${ROOT} "${CLASSES}\${KEY}\command" ""
  ${If} $0 == '${COMMAND}'
    DeleteRegKey /ifnosubkeys ${ROOT} "${CLASSES}\${KEY}\command"
    DeleteRegKey /ifnosubkeys ${ROOT} "${CLASSES}\${KEY}"
  ${EndIf}
!macroend
!macro RemoveVerb KEY TEXT PROGRAM ARGUMENTS
  !insertmacro RemoveVerbOf HKCU "${KEY}" '"$INSTDIR\${PROGRAM}"${ARGUMENTS}'
  !insertmacro RemoveVerbOf HKLM "${KEY}" '"$INSTDIR\${PROGRAM}"${ARGUMENTS}'
!macroend

; All that leads to this folder; what leads to another one is another's.
Function un.RemovePathsOfOurs
  ReadRegStr $0 HKCU "${RUN_KEY}" "${PRODUCT}"
  ${If} $0 == '"$INSTDIR\burrowmark.exe"'
    DeleteRegValue HKCU "${RUN_KEY}" "${PRODUCT}"
  ${EndIf}
  !insertmacro EachVerb RemoveVerb
  ReadRegStr $0 HKCU "${CLASSES}\${PRODUCT}\shell\open\command" ""
  ${If} $0 == '"$INSTDIR\burrowmark.exe" /OPEN %1'
    DeleteRegKey HKCU "${CLASSES}\${PRODUCT}"
    ReadRegStr $0 HKCU "${CLASSES}\.bwmk" ""
    ${If} $0 == "${PRODUCT}"
      DeleteRegValue HKCU "${CLASSES}\.bwmk" ""
      DeleteRegValue HKCU "${CLASSES}\.bwmk" "Content Type"
      DeleteRegKey /ifempty HKCU "${CLASSES}\.bwmk"
    ${EndIf}
    !insertmacro TellAssociations
  ${EndIf}
FunctionEnd
