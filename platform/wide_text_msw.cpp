// SPDX-License-Identifier: MIT
#include "platform/wide_text.h"

#include <windows.h>

namespace brelex {

std::string Utf8OfWide(std::wstring_view text) {
    const auto length = static_cast<int>(text.size());
    const int needed =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), needed, nullptr, nullptr);
    return utf8;
}

std::string Utf8OfAnsi(std::string_view text) {
    const auto length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    return Utf8OfWide(wide);
}

}  // namespace brelex
