; SPDX-License-Identifier: MIT
; The sections of the installer, which do the installing.

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
    MessageBox MB_OK|MB_ICONSTOP "Cannot write to the folder $\"$INSTDIR$\". Nothing was changed." \
        /SD IDOK
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
    MessageBox MB_OK|MB_ICONSTOP "Cannot replace the file $\"$INSTDIR\$Failed$\". Nothing was \
        changed." /SD IDOK
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
