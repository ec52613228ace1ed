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
!define MUI_PAGE_HEADER_SUBTEXT "You may use and pass on Brevilexicon under these terms."
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

!define MUI_UNCONFIRMPAGE_TEXT_TOP "Brevilexicon will be removed from this folder. Files that you \
    put there yourself stay."
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

; NSIS takes the folder of /D out of the command line that scripts see. It ignores a folder that it cannot
; use.
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

!include "${__FILEDIR__}/pages.nsh"
!include "${__FILEDIR__}/installing.nsh"
!include "${__FILEDIR__}/uninstaller.nsh"
