// SPDX-License-Identifier: MIT
#include "platform/desktop/help_page.h"

#include <utility>

#include <wx/toplevel.h>

#include <windows.h>
#include <commctrl.h>

namespace brelex {

namespace {

// Marks the bytes of a WM_COPYDATA as one of our pages.
constexpr ULONG_PTR kPageOfHelp = 0x42726C78;
constexpr UINT_PTR kSubclass = 1;

struct Hearer {
    wxTopLevelWindow& window;
    std::function<void(const std::string& page)> turnTo;
};

// The sender waits until this returns, so the viewer turns the page later.
void Hear(const Hearer& hearer, const COPYDATASTRUCT& data) {
    const std::string page(static_cast<const char*>(data.lpData), data.cbData);
    hearer.window.CallAfter([turnTo = hearer.turnTo, page] { turnTo(page); });
}

LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM first, LPARAM second,
                           UINT_PTR subclass, DWORD_PTR hearer) {
    auto* const ours = reinterpret_cast<Hearer*>(hearer);
    if (message == WM_COPYDATA) {
        const auto& data = *reinterpret_cast<const COPYDATASTRUCT*>(second);
        if (data.dwData == kPageOfHelp && data.lpData != nullptr) {
            Hear(*ours, data);
            return TRUE;
        }
    } else if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, &OnMessage, subclass);
        delete ours;
    }
    return DefSubclassProc(window, message, first, second);
}

}  // namespace

void TellHelpPage(SystemWindow window, const std::string& page) {
    constexpr UINT kPatienceMs = 1000;
    std::string bytes = page;
    COPYDATASTRUCT data{kPageOfHelp, static_cast<DWORD>(bytes.size()), bytes.data()};
    SendMessageTimeoutW(reinterpret_cast<HWND>(window), WM_COPYDATA, 0,
                        reinterpret_cast<LPARAM>(&data), SMTO_ABORTIFHUNG, kPatienceMs, nullptr);
}

void HearHelpPages(wxTopLevelWindow& window, std::function<void(const std::string& page)> turnTo) {
    SetWindowSubclass(window.GetHWND(), &OnMessage, kSubclass,
                      reinterpret_cast<DWORD_PTR>(new Hearer{window, std::move(turnTo)}));
}

}  // namespace brelex
