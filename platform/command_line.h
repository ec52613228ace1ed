// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <wx/arrstr.h>

namespace brelex {

/// The whole argument text as it was given. `arguments` are the words of the command line, the
/// program's name first. On Windows, where a command line is one text, that text is taken.
[[nodiscard]] wxString ArgumentText(const wxArrayString& arguments);

/// What stands in a Windows command line behind the program and the blanks after it, which are one
/// or more by the shell that began the program and so are not part of the text. The program may
/// stand in quotes, or be the path `program` without any, blanks in it and all, as a command of the
/// registry has it. Windows only.
[[nodiscard]] std::wstring TextBehindProgram(const std::wstring& commandLine,
                                             const std::wstring& program);

}  // namespace brelex
