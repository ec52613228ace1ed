; SPDX-License-Identifier: MIT
; Ends the programs in $INSTDIR, so that their files can be replaced or removed. A window is asked to
; close, as a click on its X does. No process is ended by force.

Var BusyFile  ; a file in use, or empty
Var Rounds

; How long the windows get to close.
!define ROUND_MS 250
!define MAX_ROUNDS 60

; A file that is being run or read cannot be opened for writing.
!macro FindIfBusy name
  ${If} $BusyFile == ""
    System::Call 'kernel32::CreateFileW(w "$INSTDIR\${name}", i 0x40000000, i 0, p 0, i 3, i 0, \
        p 0) p .r0 ?e'
    Pop $1
    ${If} $0 <> -1
      System::Call 'kernel32::CloseHandle(p r0)'
    ${ElseIf} $1 = 32  ; used by another process
      StrCpy $BusyFile "${name}"
    ${EndIf}
  ${EndIf}
!macroend

; The same functions for the installer and, with the prefix "un.", for the uninstaller.
!macro EndingFunctions un
  ; Leaves 1 in $0 if the window $1 is to be asked, otherwise 0. Only windows with a title bar are. A
  ; window that is disabled waits for another one. The main window closes even while it is hidden in
  ; the notification area; other hidden windows are only kept for later.
  Function ${un}IsWindowToClose
    StrCpy $0 0
    System::Call 'user32::IsWindowEnabled(p r1) i .r2'
    System::Call 'user32::GetWindowLongW(p r1, i -16) i .r3'
    IntOp $3 $3 & 0xC00000  ; the style of a window with a title bar
    ${If} $2 = 0
    ${OrIf} $3 <> 0xC00000
      Return
    ${EndIf}
    System::Call 'user32::IsWindowVisible(p r1) i .r2'
    System::Call 'user32::GetWindowTextW(p r1, w .r3, i ${NSIS_MAX_STRLEN})'
    StrCpy $3 $3 14
    ${If} $2 = 0
    ${AndIf} $3 != "Brevilexicon ("
      Return
    ${EndIf}
    System::Call 'user32::GetWindowThreadProcessId(p r1, *i .r2)'
    System::Call 'kernel32::GetCurrentProcessId() i .r3'
    ${If} $2 = $3
      Return
    ${EndIf}
    System::Call 'kernel32::OpenProcess(i 0x1000, i 0, i r2) p .r2'  ; to ask for its name
    ${If} $2 = 0
      Return
    ${EndIf}
    System::Call 'kernel32::QueryFullProcessImageNameW(p r2, i 0, w .r3, *i ${NSIS_MAX_STRLEN}) i .r4'
    System::Call 'kernel32::CloseHandle(p r2)'
    StrLen $2 "$INSTDIR\"
    StrCpy $3 $3 $2
    ${If} $4 <> 0
    ${AndIf} $3 == "$INSTDIR\"
      StrCpy $0 1
    ${EndIf}
  FunctionEnd

  Function ${un}AskWindowsToClose
    StrCpy $1 0
    ${Do}
      System::Call 'user32::FindWindowExW(p 0, p r1, p 0, p 0) p .r1'
      ${If} $1 = 0
        ${ExitDo}
      ${EndIf}
      Call ${un}IsWindowToClose
      ${If} $0 = 1
        System::Call 'user32::PostMessageW(p r1, i ${WM_CLOSE}, p 0, p 0)'
      ${EndIf}
    ${Loop}
  FunctionEnd

  ; Leaves the name of a file in use in $BusyFile, or nothing once all programs have ended.
  Function ${un}WaitForEnd
    StrCpy $Rounds 0
    ${Do}
      StrCpy $BusyFile ""
      !insertmacro ForEachFile FindIfBusy
      ${If} $BusyFile == ""
        Return
      ${EndIf}
      Call ${un}AskWindowsToClose
      Sleep ${ROUND_MS}
      IntOp $Rounds $Rounds + 1
    ${LoopUntil} $Rounds = ${MAX_ROUNDS}
  FunctionEnd

  ; For use in a section. Ends the installation before it changes anything if a program stays open.
  Function ${un}EndPrograms
    ${Do}
      DetailPrint "Closing Brevilexicon, if it is open"
      Call ${un}WaitForEnd
      ${If} $BusyFile == ""
        Return
      ${EndIf}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$\"$BusyFile$\" is in use. Close the windows of \
          Brevilexicon and every terminal in which brelex is running, and try again." \
          /SD IDCANCEL IDRETRY again
      SetErrorLevel ${EXIT_BUSY}
      Abort "$\"$BusyFile$\" is in use. Nothing was changed."
      again:
    ${Loop}
  FunctionEnd
!macroend

!insertmacro EndingFunctions ""
!insertmacro EndingFunctions "un."
