; SPDX-License-Identifier: MIT
; What the pages of the installer do beyond those of the Modern UI.

Function ShowUsersPage
  ${If} $Chosen = 1
    Abort
  ${EndIf}
  !insertmacro MUI_HEADER_TEXT "Users" "Choose who gets Brevilexicon."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateRadioButton} 0 8u 100% 12u "Install for &me only"
  Pop $ForMe
  ${NSD_CreateLabel} 12u 21u 95% 12u "Needs no administrator rights."
  Pop $0
  ${NSD_CreateRadioButton} 0 44u 100% 12u "Install for &all users of this computer"
  Pop $ForAll
  ${NSD_CreateLabel} 12u 57u 95% 12u "Needs administrator rights. Windows may ask for your consent \
      or a password."
  Pop $0
  !insertmacro ReadInstalled HKCU $R1 $R2
  !insertmacro ReadInstalled HKLM $R3 $R4
  ${If} $R1 != ""
    ${NSD_CreateLabel} 0 84u 100% 20u "Version $R2 is installed for you in:$\r$\n$R1"
    Pop $0
  ${EndIf}
  ${If} $R3 != ""
    ${NSD_CreateLabel} 0 110u 100% 20u "Version $R4 is installed for all users in:$\r$\n$R3"
    Pop $0
  ${EndIf}
  ${If} $AllUsers = 1
    ${NSD_Check} $ForAll
    ${NSD_SetFocus} $ForAll
  ${Else}
    ${NSD_Check} $ForMe
    ${NSD_SetFocus} $ForMe
  ${EndIf}
  ${NSD_OnClick} $ForMe ShowShield
  ${NSD_OnClick} $ForAll ShowShield
  Push 0
  Call ShowShield
  nsDialogs::Show
  SendMessage $mui.Button.Next ${BCM_SETSHIELD} 0 0
FunctionEnd

; The shield on a button tells that Windows will ask for administrator rights.
Function ShowShield
  Pop $0
  ${NSD_GetState} $ForAll $0
  Call IsAdministrator
  ${If} $0 = ${BST_CHECKED}
  ${AndIf} $1 = 0
    SendMessage $mui.Button.Next ${BCM_SETSHIELD} 0 1
  ${Else}
    SendMessage $mui.Button.Next ${BCM_SETSHIELD} 0 0
  ${EndIf}
FunctionEnd

Function LeaveUsersPage
  ${NSD_GetState} $ForAll $AllUsers
  Call SettleUsers
  ${If} $0 <> 0
    Abort  ; stays on the page
  ${EndIf}
FunctionEnd

; What is installed is replaced where it is. Then the page for the folder does not come.
Function NameNextButton
  ${If} $Installed != ""
    SendMessage $mui.Button.Next ${WM_SETTEXT} 0 "STR:&Install"
  ${EndIf}
FunctionEnd

Function SkipFolderPage
  ${If} $Installed != ""
    Abort
  ${EndIf}
FunctionEnd

; The files of the program have names, such as ReadMe.txt, that files of the user may have as well.
Function LeaveFolderPage
  ${DirState} "$INSTDIR" $0
  ${If} $0 = 1
  ${AndIfNot} ${FileExists} "$INSTDIR\brevilexicon.exe"
    MessageBox MB_OKCANCEL|MB_ICONEXCLAMATION|MB_DEFBUTTON2 "The folder contains other files. Files with \
        the names of the program's files will be replaced." IDOK mixed
    Abort
    mixed:
  ${EndIf}
FunctionEnd

; The program runs with the rights of the user who is logged on, not with those of the installer.
Function StartProgram
  ${If} $AllUsers = 1
    Exec '"$WINDIR\explorer.exe" "$INSTDIR\brevilexicon.exe"'
  ${Else}
    Exec '"$INSTDIR\brevilexicon.exe"'
  ${EndIf}
FunctionEnd
