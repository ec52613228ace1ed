// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <wx/arrstr.h>

namespace brelex {

/// The whole argument text as it was given. `arguments` are the words of the command line, the
/// program's name first. On Windows, where a command line is one text, that text is taken.
[[nodiscard]] wxString ArgumentText(const wxArrayString& arguments);

/// What stands in a Windows command line behind the program and the blanks after it. These are not
/// part of the text, however many: they are the shell's. Explorer and PowerShell put one there, but
/// cmd.exe sets its own before the one that was typed, so that `brevilexicon /minimize` arrives
/// with two. Only a blank within quotes is certain to be meant, and it stays. The program may stand
/// in quotes, or be the path `program` without any, blanks in it and all, as a command of the
/// registry has it. Windows only.
[[nodiscard]] std::wstring TextBehindProgram(const std::wstring& commandLine,
                                             const std::wstring& program);

}  // namespace brelex
