// SPDX-License-Identifier: MIT
#include "platform/system/wide_text.h"

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

namespace {

std::wstring WideOf(UINT codePage, std::string_view text) {
    const auto length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(codePage, 0, text.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), needed);
    return wide;
}

}  // namespace

std::wstring WideOfUtf8(std::string_view text) {
    return WideOf(CP_UTF8, text);
}

std::string Utf8OfAnsi(std::string_view text) {
    return Utf8OfWide(WideOf(CP_ACP, text));
}

}  // namespace brelex
