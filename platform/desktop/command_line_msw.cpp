// SPDX-License-Identifier: MIT
#include "platform/desktop/command_line.h"

#include <algorithm>

#include <windows.h>

#include "platform/system/program_folder.h"
#include "platform/system/wide_text.h"

namespace brelex {

namespace {

bool EqualIgnoringCase(const std::wstring& left, const std::wstring& right) {
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

std::wstring TextBehindProgram(const std::wstring& commandLine, const std::wstring& program) {
    std::size_t end = 0;
    if (commandLine.starts_with(L'"')) {
        end = std::min(commandLine.find(L'"', 1), commandLine.size() - 1) + 1;
    } else if (EqualIgnoringCase(commandLine.substr(0, program.size()), program)) {
        end = program.size();
    } else {
        end = std::min(commandLine.find_first_of(L" \t"), commandLine.size());
    }
    const std::size_t begin = commandLine.find_first_not_of(L" \t", end);
    return begin == std::wstring::npos ? std::wstring() : commandLine.substr(begin);
}

wxString ArgumentText(const wxArrayString& /*arguments*/) {
    return TextBehindProgram(GetCommandLineW(),
                             WideOfUtf8(ProgramFolder() + ProgramName() + ".exe"));
}

}  // namespace brelex
