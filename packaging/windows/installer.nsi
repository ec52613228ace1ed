; SPDX-License-Identifier: MIT
; The installer of the Windows programs. make_installer.cmake compiles it and passes every fact about the
; release as a define:
;   VERSION PUBLISHER HOME_PAGE SUPPORT_ADDRESS COPYRIGHT DESCRIPTION   texts of the release
;   SOURCE             the folder with the files to install
;   FILES              a script with the macro ForEachFile, which names these files
;   DATABASE_SHA256    the checksum of Acronyms.dat among them
;   LICENSES           Licenses.txt as the license page needs it
;   ICON SIDE_PICTURE  the pictures
;   OUTPUT             the installer to write
;
; Switches of the installer:
;   /S                 silent; nothing is asked
;   /CurrentUser       for this user only, without administrator rights
;   /AllUsers          for all users; asks for administrator rights if necessary
;   /D=folder          where to install; the last switch, without quotation marks
; Without /CurrentUser and /AllUsers, an installed copy is upgraded where it is, and a first one is for
; this user only. The uninstaller knows /S.
;
; Exit codes of both: 0 done, 1 canceled by the user, 2 failed, 3 a program is open that did not close,
; 4 not possible beside what is installed, 5 no administrator rights. With any code but 0, what was
; installed before still works. (A failed removal can be repeated.)

Unicode true
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
SetDateSave off
Name "Brevilexicon"
Caption "Brevilexicon ${VERSION} Setup"
BrandingText "Brevilexicon ${VERSION}"
OutFile "${OUTPUT}"
; The folder browser adds the last part of this to the folder that the user chooses.
InstallDir "$LOCALAPPDATA\Programs\Brevilexicon"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WordFunc.nsh
!include "${FILES}"

!define UNINSTALL_KEYS "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL_KEY "${UNINSTALL_KEYS}\Brevilexicon"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define CLASSES "Software\Classes"
!define HELP_TYPE "Brevilexicon.Help"

!define EXIT_FAILED 2
!define EXIT_BUSY 3
!define EXIT_CONFLICT 4
!define EXIT_NO_RIGHTS 5

Var AllUsers   ; 1 if all users get the program, otherwise 0
Var Chosen     ; 1 once it is settled who gets the program
Var Elevated   ; 1 if this process was started by RestartElevated
Var Given      ; the folder of the switch /D, or empty
Var Installed  ; the folder of the copy that this one replaces, or empty
Var ForMe      ; the choices on the page "Users"
Var ForAll
Var OwnDatabase
Var Failed     ; the first file that could not be replaced or removed, or empty

!include "${__FILEDIR__}/running.nsh"
!include "${__FILEDIR__}/checksum.nsh"
!include "${__FILEDIR__}/elevation.nsh"

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Brevilexicon"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Brevilexicon Setup"
VIAddVersionKey CompanyName "${PUBLISHER}"
VIAddVersionKey LegalCopyright "${COPYRIGHT}"
VIAddVersionKey Comments "${DESCRIPTION}"

; --- The pages.
!define MUI_ABORTWARNING
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE_PICTURE}"
!define MUI_UNFINISHPAGE_NOAUTOCLOSE
!define MUI_COMPONENTSPAGE_NODESC

Page custom ShowUsersPage LeaveUsersPage

!define MUI_PAGE_HEADER_TEXT "License"
!define MUI_PAGE_HEADER_SUBTEXT "Brevilexicon is free software. You may use it and pass it on under these terms."
!define MUI_LICENSEPAGE_TEXT_TOP "Press Page Down to see the rest."
!define MUI_LICENSEPAGE_TEXT_BOTTOM "You need not accept these terms to use the program."
!define MUI_LICENSEPAGE_BUTTON "&Next >"
!insertmacro MUI_PAGE_LICENSE "${LICENSES}"

!define MUI_PAGE_CUSTOMFUNCTION_SHOW NameNextButton
!insertmacro MUI_PAGE_COMPONENTS

!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipFolderPage
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE LeaveFolderPage
!insertmacro MUI_PAGE_DIRECTORY

!insertmacro MUI_PAGE_INSTFILES

!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "&Start Brevilexicon"
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgram
!insertmacro MUI_PAGE_FINISH

!define MUI_UNCONFIRMPAGE_TEXT_TOP "Brevilexicon will be removed from this folder. Files that you put there yourself stay."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"

; --- Before installing.

; ReadInstalled ROOT LOCATION VERSION: reads what is installed for the users of a part of the registry.
; A copy whose folder was deleted by hand does not count.
!macro ReadInstalled root location version
  ReadRegStr ${location} ${root} "${UNINSTALL_KEY}" "InstallLocation"
  ReadRegStr ${version} ${root} "${UNINSTALL_KEY}" "DisplayVersion"
  ${IfNot} ${FileExists} "${location}\uninstall.exe"
    StrCpy ${location} ""
  ${EndIf}
!macroend

Function .onInit
  System::Call 'kernel32::CreateMutexW(p 0, i 0, w "Local\Brevilexicon.Setup") p .r9 ?e'
  Pop $0
  StrCpy $SetupMutex $9
  ${If} $0 = 183  ; it exists already
    MessageBox MB_OK|MB_ICONEXCLAMATION "Brevilexicon Setup is already running." /SD IDOK
    SetErrorLevel ${EXIT_BUSY}
    Quit
  ${EndIf}

  Call ReadGivenFolder
  StrCpy $AllUsers 0
  StrCpy $Chosen 0
  StrCpy $Elevated 0
  ${GetParameters} $R0
  ${GetOptions} $R0 "/Elevated" $R1
  ${IfNot} ${Errors}
    StrCpy $Elevated 1
  ${EndIf}
  ${GetOptions} $R0 "/CurrentUser" $R1
  ${IfNot} ${Errors}
    StrCpy $Chosen 1
  ${EndIf}
  ${GetOptions} $R0 "/AllUsers" $R1
  ${IfNot} ${Errors}
    StrCpy $Chosen 1
    StrCpy $AllUsers 1
  ${EndIf}
  ${If} $Chosen = 0
    !insertmacro ReadInstalled HKCU $R1 $R2
    !insertmacro ReadInstalled HKLM $R3 $R4
    ${If} $R1 == ""
    ${AndIf} $R3 != ""
      StrCpy $AllUsers 1
    ${EndIf}
  ${EndIf}
  ${If} ${Silent}
  ${OrIf} $Chosen = 1
    Call SettleUsers
    ${If} $0 <> 0
      SetErrorLevel $0
      Quit
    ${EndIf}
    StrCpy $Chosen 1
  ${EndIf}
FunctionEnd

; NSIS takes the folder of /D out of the command line that scripts see, and ignores one that it cannot use.
Function ReadGivenFolder
  StrCpy $Given ""
  System::Call 'kernel32::GetCommandLineW() w .r0'
  ClearErrors
  ${WordFind} $0 " /D=" "E+1}" $1
  ${If} ${Errors}
    Return
  ${EndIf}
  StrCpy $Given $INSTDIR
  StrCpy $0 "$LOCALAPPDATA\Programs\Brevilexicon"
  ${If} $Given == $0
  ${AndIf} $1 != $0
    MessageBox MB_OK|MB_ICONSTOP "Cannot install in the folder $\"$1$\"." /SD IDOK
    SetErrorLevel ${EXIT_FAILED}
    Quit
  ${EndIf}
FunctionEnd

; Called when it is known who gets the program. Finds out where to install. Leaves an exit code in $0 if
; that is not possible, or 0. May continue in another process and end this one.
Function SettleUsers
  ${If} $AllUsers = 1
    Call RestartElevated
    ${If} $0 <> 0
      Return
    ${EndIf}
    SetShellVarContext all
    !insertmacro ReadInstalled HKLM $Installed $R1
    StrCpy $R0 "$PROGRAMFILES\Brevilexicon"
  ${Else}
    SetShellVarContext current
    !insertmacro ReadInstalled HKCU $Installed $R1
    StrCpy $R0 "$LOCALAPPDATA\Programs\Brevilexicon"
  ${EndIf}
  Call GiveFolder
  ${If} $Installed != ""
    ${If} $INSTDIR != $Installed
      MessageBox MB_OK|MB_ICONEXCLAMATION "Brevilexicon is already installed in $\"$Installed$\". \
          Remove it before you install it in another folder." /SD IDOK
      StrCpy $0 ${EXIT_CONFLICT}
      Return
    ${EndIf}
    ${VersionCompare} "${VERSION}" "$R1" $R2
    ${If} $R2 = 2
      MessageBox MB_YESNO|MB_ICONEXCLAMATION|MB_DEFBUTTON2 "A newer version of Brevilexicon ($R1) is \
          already installed. Do you want to replace it with version ${VERSION}?" /SD IDNO IDYES older
      StrCpy $0 ${EXIT_CONFLICT}
      Return
      older:
    ${EndIf}
  ${EndIf}
  StrCpy $0 0
FunctionEnd

; Sets $INSTDIR, unless the user gave a folder on the command line: to the folder of the copy to be
; replaced, or to $R0.
Function GiveFolder
  ${If} $Given != ""
    StrCpy $INSTDIR $Given
  ${ElseIf} $Installed != ""
    StrCpy $INSTDIR $Installed
  ${Else}
    StrCpy $INSTDIR $R0
  ${EndIf}
FunctionEnd

; --- The pages that the toolkit of the installer does not have.

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
  ${NSD_CreateLabel} 12u 57u 95% 12u "Needs administrator rights. Windows may ask for your consent or a password."
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

; --- Installing.

; The new files are unpacked beside the old ones and then change places with them. If that fails, the
; old ones return.
!define STAGE "$INSTDIR\~setup"

!macro UnpackFile name
  File "${SOURCE}/${name}"
!macroend

; ${Errors} also clears the flag.
!macro ReplaceFile name
  ${If} $Failed == ""
    ClearErrors
    ${If} ${FileExists} "$INSTDIR\${name}"
      Rename "$INSTDIR\${name}" "${STAGE}\old\${name}"
    ${EndIf}
    ${If} ${Errors}
      StrCpy $Failed "${name}"
    ${Else}
      Rename "${STAGE}\new\${name}" "$INSTDIR\${name}"
      ${If} ${Errors}
        StrCpy $Failed "${name}"
      ${EndIf}
    ${EndIf}
  ${EndIf}
!macroend

!macro ReturnFile name
  ${If} ${FileExists} "${STAGE}\old\${name}"
    Delete "$INSTDIR\${name}"
    Rename "${STAGE}\old\${name}" "$INSTDIR\${name}"
  ${ElseIfNot} ${FileExists} "${STAGE}\new\${name}"
    Delete "$INSTDIR\${name}"  ; it is new
  ${EndIf}
!macroend

; An installation that did not come to its end, because the power failed for example, left the old files
; there.
!macro RescueFile name
  ${If} ${FileExists} "${STAGE}\old\${name}"
    !insertmacro ReturnFile "${name}"
  ${EndIf}
!macroend

Section "Brevilexicon (required)" SectionProgram
  SectionIn RO
  Call EndPrograms
  DetailPrint "Unpacking the files"
  SetDetailsPrint none
  SetOutPath "$INSTDIR"
  !insertmacro ForEachFile RescueFile
  RMDir /r "${STAGE}"
  SetOutPath "${STAGE}\old"
  SetOutPath "${STAGE}\new"
  ClearErrors
  !insertmacro ForEachFile UnpackFile
  WriteUninstaller "${STAGE}\new\uninstall.exe"
  ${If} ${Errors}
    SetDetailsPrint both
    MessageBox MB_OK|MB_ICONSTOP "Cannot write to the folder $\"$INSTDIR$\". Nothing was changed." /SD IDOK
    SetErrorLevel ${EXIT_FAILED}
    Abort "Cannot write to the folder $\"$INSTDIR$\"."
  ${EndIf}

  StrCpy $Failed ""
  !insertmacro ForEachFile ReplaceFile
  !insertmacro ReplaceFile "uninstall.exe"
  ${If} $Failed != ""
    !insertmacro ForEachFile ReturnFile
    !insertmacro ReturnFile "uninstall.exe"
    SetDetailsPrint both
    MessageBox MB_OK|MB_ICONSTOP "Cannot replace the file $\"$INSTDIR\$Failed$\". Nothing was changed." \
        /SD IDOK
    SetErrorLevel ${EXIT_FAILED}
    Abort "Cannot replace the file $\"$INSTDIR\$Failed$\"."
  ${EndIf}
  Call KeepOwnDatabase
  SetOutPath "$INSTDIR"
  RMDir /r "${STAGE}"
  SetDetailsPrint both

  CreateShortCut "$SMPROGRAMS\Brevilexicon.lnk" "$INSTDIR\brevilexicon.exe" "" "" "" SW_SHOWNORMAL "" \
      "${DESCRIPTION}"
  Call RegisterHelp
  Call WriteUninstallEntry
  ${If} $OwnDatabase != ""
    DetailPrint "Your own Acronyms.dat is now $OwnDatabase."
    MessageBox MB_OK|MB_ICONINFORMATION "Acronyms.dat was not the database that came with the program. \
        It is still there, with the name $\"$OwnDatabase$\". To use it again, rename it." /SD IDOK
  ${EndIf}
SectionEnd

Section /o "Shortcut on the desktop"
  CreateShortCut "$DESKTOP\Brevilexicon.lnk" "$INSTDIR\brevilexicon.exe" "" "" "" SW_SHOWNORMAL "" \
      "${DESCRIPTION}"
SectionEnd

; Also runs if a file cannot be unpacked. Folders that contain anything stay.
Function .onInstFailed
  SetOutPath "$TEMP"
  RMDir /r "${STAGE}\new"
  RMDir "${STAGE}\old"
  RMDir "${STAGE}"
  RMDir "$INSTDIR"
FunctionEnd

; A database that is neither the new one nor the one that was installed is the user's own. It stays
; beside the new one. Leaves its new name in $OwnDatabase.
Function KeepOwnDatabase
  StrCpy $OwnDatabase ""
  StrCpy $R0 "${STAGE}\old\Acronyms.dat"
  ${IfNot} ${FileExists} $R0
    Return
  ${EndIf}
  Call FileChecksum
  ReadRegStr $R2 SHCTX "${UNINSTALL_KEY}" "DatabaseChecksum"
  ${If} $R1 == "${DATABASE_SHA256}"
  ${OrIf} $R1 == $R2
    Return
  ${EndIf}
  StrCpy $R2 1
  StrCpy $OwnDatabase "Acronyms-own.dat"
  ${DoWhile} ${FileExists} "$INSTDIR\$OwnDatabase"
    IntOp $R2 $R2 + 1
    StrCpy $OwnDatabase "Acronyms-own-$R2.dat"
  ${Loop}
  Rename $R0 "$INSTDIR\$OwnDatabase"
FunctionEnd

; For one user, the viewer registers itself. For all users, it is only one of the programs that Windows
; offers for this type of file, because the type may belong to another program.
Function RegisterHelp
  ${If} $AllUsers = 0
    ExecWait '"$INSTDIR\brelex-help.exe" --register'
  ${Else}
    WriteRegStr HKLM "${CLASSES}\${HELP_TYPE}" "" "Brevilexicon help"
    WriteRegStr HKLM "${CLASSES}\${HELP_TYPE}\shell\open\command" "" \
        '"$INSTDIR\brelex-help.exe" "%1"'
    WriteRegStr HKLM "${CLASSES}\.hlp\OpenWithProgids" "${HELP_TYPE}" ""
  ${EndIf}
FunctionEnd

Function WriteUninstallEntry
  SectionGetSize ${SectionProgram} $R0
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Brevilexicon"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\brevilexicon.exe,0"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Comments" "${DESCRIPTION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Contact" "${SUPPORT_ADDRESS}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "URLInfoAbout" "${HOME_PAGE}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "HelpLink" "${HOME_PAGE}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DatabaseChecksum" "${DATABASE_SHA256}"
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $R0
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
FunctionEnd

!include "${__FILEDIR__}/uninstaller.nsh"
