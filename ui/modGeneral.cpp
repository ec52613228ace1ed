// SPDX-License-Identifier: MIT
#include "ui/modGeneral.h"

#include <wx/gdicmn.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include "platform/desktop/wx_message_sink.h"
#include "platform/window/window_place.h"
#include "ui/controls/menu_request.h"

namespace brelex {

void DrawFrameRound(wxDC& dc, const wxRect& area, int above) {
    Draw3DFrame(dc, {area.x - 1, area.y - above, area.width + 1, area.height + above});
}

void KeepCentered(wxTopLevelWindow& window, const wxTopLevelWindow& main) {
    CenterWindow(window, main);
    OnEachShowing(window, [&window, &main] { CenterWindow(window, main); });
}

void ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info) {
    OnMenuRequest(box, [&box, &info] {
        WxMessageSink messages(&box);
        ShowAppInfo(box, info, messages);
    });
}

}  // namespace brelex
