; The program's settings that the set-up knows, and what the user ticks of them.
!define COMPANY_KEY "Software\Kestrelan"
!define MAIN_KEY "${COMPANY_KEY}\Burrowmark"
!define SETTINGS_KEY "${MAIN_KEY}\Settings"
!define ON "-1"  ; how the program stores a setting that is on

; The numbers of the advanced options.
!define START_WITH_WINDOWS 0
!define EXPLORER_MENU 1
!define ON_DESKTOP 2
!define IN_SEND_TO 3
!define IN_FAVORITES 4
!define HOT_KEYS 7

; Gives 1 in $0 if an advanced option is on.
!macro IsOn NUMBER
  ReadRegStr $0 HKCU "${SETTINGS_KEY}" "ADVC${NUMBER}"
  ${If} $0 == ""
  ${OrIf} $0 == "0"
    StrCpy $0 0
  ${Else}
    StrCpy $0 1
  ${EndIf}
!macroend

; "1" if the option of that number was ticked, otherwise empty; and the check boxes.
!macro EachTick ACTION
  !insertmacro ${ACTION} ${START_WITH_WINDOWS} 26 "Start with &Windows"
  !insertmacro ${ACTION} ${EXPLORER_MENU} 41 "Add to the menus of folders, drives and files in &Explorer"
  !insertmacro ${ACTION} ${HOT_KEYS} 56 "Open shortcuts by &hot keys, Shift+Ctrl+0 to 9"
  !insertmacro ${ACTION} ${ON_DESKTOP} 88 "On the &Desktop"
  !insertmacro ${ACTION} ${IN_SEND_TO} 103 "In the &Send To menu"
  !insertmacro ${ACTION} ${IN_FAVORITES} 118 "In the &Favorites"
!macroend

!macro DeclareTick NUMBER TOP TEXT
  Var Tick${NUMBER}
  Var Box${NUMBER}
!macroend
!insertmacro EachTick DeclareTick
