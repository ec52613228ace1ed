// SPDX-License-Identifier: MIT
#include "ui/main/title_area.h"

#include <string>

#include "base/number_text.h"
#include "platform/window/accessible_name.h"
#include "toolkit/wx_text.h"
#include "ui/controls/backdrop.h"
#include "ui/controls/surface.h"
#include "ui/controls/title_image.h"

namespace brelex {

TitleArea::TitleArea(Surface& surface)
    : lblAppTitle(Named(new Backdrop(&surface), "lblAppTitle")),
      imgAppTitle(Named(new TitleImage(lblAppTitle), "imgAppTitle")) {
    surface.FrameChild(*lblAppTitle);
}

void TitleArea::Place(const wxRect& area, const LayoutUnits& units) {
    lblAppTitle->SetSize(area);
    const int inset = units.Pixels(6);
    imgAppTitle->FitInto({area.width - 2 * inset, area.height - 2 * inset});
    const wxSize image = imgAppTitle->GetSize();
    imgAppTitle->Move((area.width - image.x) / 2 + 1, (area.height - image.y) / 2 + 1);
}

ControlHint TitleArea::Hint(const ProgramValues& values) const {
    const std::string version = FormatOneDecimal(values.AppVersion, values.decimalSeparator);
    return {*imgAppTitle,
            WxText(std::string(kAppTitle) + " version " + version + ", " + values.info.copyright)};
}

wxWindow& TitleArea::Image() const {
    return *imgAppTitle;
}

}  // namespace brelex
