; SPDX-License-Identifier: MIT
; Gets administrator rights when they are needed, by starting this program once more with them.

Var SetupMutex  ; shows that an installer runs; 0 in the uninstaller

!macro ElevationFunctions un
  ; Leaves 1 in $1 if this process has administrator rights, otherwise 0.
  Function ${un}IsAdministrator
    System::Call 'shell32::IsUserAnAdmin() i .r1'
  FunctionEnd

  ; Returns with 0 in $0 if this process has administrator rights. Otherwise continues in a process that
  ; has them, and ends this one with the exit code of that one. If the user refuses, returns with an exit
  ; code in $0. The variable $R9 is the rest of the command line.
  Function ${un}StartElevated
    Call ${un}IsAdministrator
    StrCpy $0 0
    ${If} $1 <> 0
      Return
    ${EndIf}
    StrCpy $0 ${EXIT_NO_RIGHTS}
    ${If} $Elevated = 1
      Return  ; it was started with rights, but got none
    ${EndIf}
    ${If} ${Silent}
      StrCpy $R9 "/S $R9"
    ${EndIf}
    ; The record for ShellExecuteEx, which is asked for the handle of the new process.
    System::Call '*(i 60, i 0x40, p $HWNDPARENT, w "runas", w "$EXEPATH", w "/Elevated $R9", p 0, \
        i 1, p 0, p 0, p 0, p 0, i 0, p 0, p 0) p .r1'
    HideWindow
    System::Call 'kernel32::CloseHandle(p $SetupMutex)'  ; from now on that one runs
    System::Call 'shell32::ShellExecuteExW(p r1) i .r2'
    System::Call '*$1(i, i, p, p, p, p, p, i, p, p, p, p, i, p, p .r3)'
    System::Free $1
    ${If} $2 = 0
    ${OrIf} $3 = 0
      ShowWindow $HWNDPARENT ${SW_SHOW}
      BringToFront
      Return
    ${EndIf}
    System::Call 'kernel32::WaitForSingleObject(p r3, i -1)'
    System::Call 'kernel32::GetExitCodeProcess(p r3, *i .r4)'
    SetErrorLevel $4
    Quit
  FunctionEnd
!macroend

!insertmacro ElevationFunctions ""
!insertmacro ElevationFunctions "un."

; Like StartElevated, with the switches of the installer. A folder must be the last of them.
Function RestartElevated
  StrCpy $R9 "/AllUsers"
  ${If} $Given != ""
    StrCpy $R9 "/AllUsers /D=$Given"
  ${EndIf}
  Call StartElevated
FunctionEnd
