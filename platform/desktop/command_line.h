// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <wx/arrstr.h>

namespace brelex {

/// Returns the whole argument text as it was given. `arguments` are the words of the command line,
/// beginning with the program's name. On Windows, where a command line is a single text, uses that
/// text instead.
[[nodiscard]] wxString ArgumentText(const wxArrayString& arguments);

/// Returns the text after the program and any blanks in a Windows command line. The blanks come
/// from the shell: Explorer and PowerShell put one there, but cmd.exe adds its own to the typed
/// one, so that `brevilexicon /minimize` arrives with two. Only a blank within quotes is certain to
/// be intended, so it stays. The program may be in quotes, or it may be the path `program` without
/// quotes, even with blanks in it, as in a command of the registry. Windows only.
[[nodiscard]] std::wstring TextBehindProgram(const std::wstring& commandLine,
                                             const std::wstring& program);

}  // namespace brelex
