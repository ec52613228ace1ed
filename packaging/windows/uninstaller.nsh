; SPDX-License-Identifier: MIT
; The uninstaller. It removes what the installer created, and nothing else.

Function un.onInit
  StrCpy $SetupMutex 0
  StrCpy $Elevated 0
  ${GetParameters} $R0
  ${GetOptions} $R0 "/Elevated" $R1
  ${IfNot} ${Errors}
    StrCpy $Elevated 1
  ${EndIf}
  StrCpy $AllUsers 0
  ReadRegStr $R0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $R0 == $INSTDIR
    StrCpy $AllUsers 1
    StrCpy $R9 "_?=$INSTDIR"  ; this process is a copy elsewhere
    Call un.StartElevated
    ${If} $0 <> 0
      SetErrorLevel $0
      Quit
    ${EndIf}
    SetShellVarContext all
  ${EndIf}
FunctionEnd

; A database that the user put in the place of the installed one stays.
!macro RemoveFile name
  StrCpy $R1 "${DATABASE_SHA256}"
  !if "${name}" == "Acronyms.dat"
    StrCpy $R0 "$INSTDIR\${name}"
    Call un.FileChecksum
  !endif
  ${If} $R1 == "${DATABASE_SHA256}"
    ClearErrors
    Delete "$INSTDIR\${name}"
    ${If} ${Errors}
      StrCpy $Failed "${name}"
    ${EndIf}
  ${EndIf}
!macroend

Section un.Brevilexicon
  Call un.EndPrograms
  Call un.UnregisterHelp
  Call un.RemoveLogOnEntry
  StrCpy $Failed ""
  !insertmacro ForEachFile RemoveFile
  ${If} $Failed != ""
    MessageBox MB_OK|MB_ICONSTOP "Cannot remove the file $\"$INSTDIR\$Failed$\". Restart Windows and \
        try again." /SD IDOK
    SetErrorLevel ${EXIT_FAILED}
    Abort "Cannot remove the file $\"$INSTDIR\$Failed$\"."
  ${EndIf}
  Delete "$SMPROGRAMS\Brevilexicon.lnk"
  Delete "$DESKTOP\Brevilexicon.lnk"
  Delete "$INSTDIR\uninstall.exe"
  RMDir /r "${STAGE}"  ; an installation may have failed
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"  ; stays if it contains anything of the user's
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
  ${If} $AllUsers = 0  ; a new user has neither of these yet
    RMDir "$LOCALAPPDATA\Programs"
    DeleteRegKey /ifempty HKCU "${UNINSTALL_KEYS}"
  ${EndIf}
SectionEnd

; A copy elsewhere may have registered itself since.
Function un.UnregisterHelp
  ${If} $AllUsers = 0
    ReadRegStr $R0 HKCU "${CLASSES}\${HELP_TYPE}\shell\open\command" ""
    ${If} $R0 == '"$INSTDIR\brelex-help.exe" "%1"'
      ExecWait '"$INSTDIR\brelex-help.exe" --unregister'
      DeleteRegKey /ifempty HKCU "${CLASSES}\.hlp"
    ${EndIf}
  ${Else}
    DeleteRegKey HKLM "${CLASSES}\${HELP_TYPE}"
    DeleteRegValue HKLM "${CLASSES}\.hlp\OpenWithProgids" "${HELP_TYPE}"
    DeleteRegKey /ifempty HKLM "${CLASSES}\.hlp\OpenWithProgids"
    DeleteRegKey /ifempty HKLM "${CLASSES}\.hlp"
  ${EndIf}
FunctionEnd

; The program writes this entry each time it starts, with all letters lowercase. == ignores case. A copy
; elsewhere may have written it since.
Function un.RemoveLogOnEntry
  ReadRegStr $R0 HKCU "${RUN_KEY}" "Brevilexicon"
  StrLen $R1 "$INSTDIR\"
  StrCpy $R0 $R0 $R1
  ${If} $R0 == "$INSTDIR\"
    DeleteRegValue HKCU "${RUN_KEY}" "Brevilexicon"
  ${EndIf}
FunctionEnd
