; The pages: the folder, what to switch on, the progress, and where the icon is.
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_ABORTWARNING_TEXT "Nothing has been installed yet. Do you want to leave?"

!define MUI_PAGE_HEADER_TEXT "Install Burrowmark ${VERSION}"
!define MUI_PAGE_HEADER_SUBTEXT "Your folders in one menu beside the clock."
!define MUI_DIRECTORYPAGE_TEXT_TOP "Burrowmark is installed for you alone and needs no administrator. \
  If it is running, it is ended first. Your folders and the tree of your shortcuts are never touched."
!define MUI_DIRECTORYPAGE_TEXT_DESTINATION "Install into"
!insertmacro MUI_PAGE_DIRECTORY
Page custom ShowOptions LeaveOptions
!define MUI_PAGE_HEADER_TEXT "Installing"
!define MUI_PAGE_HEADER_SUBTEXT "This takes a moment."
!insertmacro MUI_PAGE_INSTFILES
Page custom ShowLast LeaveLast

!define MUI_PAGE_HEADER_TEXT "Remove Burrowmark"
!define MUI_PAGE_HEADER_SUBTEXT "The tree of your shortcuts (default.bwmk) stays where it is."
!define MUI_UNCONFIRMPAGE_TEXT_TOP "The program and its settings are removed. Files of yours in these folders stay."
!define MUI_UNCONFIRMPAGE_TEXT_LOCATION "From"
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; What is on already shows as such, and is switched off in the program.
!macro MakeBox NUMBER TOP TEXT
  ${NSD_CreateCheckBox} 10u ${TOP}u 260u 12u "${TEXT}"
  Pop $Box${NUMBER}
  !insertmacro IsOn ${NUMBER}
  ${If} $0 == 1
    ${NSD_Check} $Box${NUMBER}
    EnableWindow $Box${NUMBER} 0
  ${ElseIf} $Tick${NUMBER} == 1
    ${NSD_Check} $Box${NUMBER}
  ${EndIf}
!macroend

!macro ReadBox NUMBER TOP TEXT
  StrCpy $Tick${NUMBER} ""
  ${NSD_GetState} $Box${NUMBER} $0
  !insertmacro IsEnabled $Box${NUMBER}
  ${If} $0 == ${BST_CHECKED}
  ${AndIf} $1 <> 0
    StrCpy $Tick${NUMBER} 1
  ${EndIf}
!macroend
!macro IsEnabled WINDOW
  System::Call 'user32::IsWindowEnabled(p ${WINDOW}) i .r1'
!macroend

Function ShowOptions
  !insertmacro MUI_HEADER_TEXT "What to switch on" "All of it can be changed later under Options in the menu."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 20u "None of this is needed. Burrowmark's own menu has everything; \
    these bring it closer to hand."
  Pop $0
  ${NSD_CreateLabel} 0 74u 100% 10u "Show your tree as a folder of shortcuts:"
  Pop $0
  !insertmacro EachTick MakeBox
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:&Install"
  nsDialogs::Show
FunctionEnd

Function LeaveOptions
  !insertmacro EachTick ReadBox
FunctionEnd

Var StartBox
Var Picture

; The largest picture that isn't larger than the window's own scale.
!macro LoadPicture
  System::Call 'user32::GetDC(p 0) p .r0'
  System::Call 'gdi32::GetDeviceCaps(p r0, i 88) i .r1'
  System::Call 'user32::ReleaseDC(p 0, p r0)'
  SetOutPath $PLUGINSDIR
  ${If} $1 >= 192
    File /oname=tray.bmp "${PICTURES}/tray-192.bmp"
  ${ElseIf} $1 >= 144
    File /oname=tray.bmp "${PICTURES}/tray-144.bmp"
  ${ElseIf} $1 >= 120
    File /oname=tray.bmp "${PICTURES}/tray-120.bmp"
  ${Else}
    File /oname=tray.bmp "${PICTURES}/tray-96.bmp"
  ${EndIf}
!macroend

Function ShowLast
  !insertmacro MUI_HEADER_TEXT "Burrowmark is installed" "Its icon stands beside the clock, at the right end of the task bar."
  nsDialogs::Create 1018
  Pop $0
  !insertmacro LoadPicture
  ${NSD_CreateBitmap} 0 0 100% 62u ""
  Pop $0
  ${NSD_SetBitmap} $0 "$PLUGINSDIR\tray.bmp" $Picture
  ${NSD_CreateLabel} 0 68u 100% 9u "Click the icon for your menu."
  Pop $0
  ${NSD_CreateLabel} 0 80u 100% 28u "Windows 11 keeps new icons behind the arrow (1). To have it in sight, drag it \
    from there onto the task bar (2). Or open Settings, Personalization, Taskbar, Other system tray icons, and switch \
    Burrowmark on."
  Pop $0
  ${NSD_CreateCheckBox} 0 118u 100% 12u "&Start Burrowmark now"
  Pop $StartBox
  ${NSD_Check} $StartBox
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:&Finish"
  GetDlgItem $0 $HWNDPARENT 2
  EnableWindow $0 0
  GetDlgItem $0 $HWNDPARENT 3
  ShowWindow $0 ${SW_HIDE}
  nsDialogs::Show
  ${NSD_FreeImage} $Picture
FunctionEnd

Function LeaveLast
  SetOutPath $INSTDIR
  ${NSD_GetState} $StartBox $0
  ${If} $0 == ${BST_CHECKED}
    Exec '"$INSTDIR\burrowmark.exe"'
  ${EndIf}
FunctionEnd
