// SPDX-License-Identifier: MIT
#include "platform/desktop/help_viewer_place.h"

#include <utility>

#include "platform/desktop/help_page.h"

namespace brelex {

// The system itself brings a window forward.
class HelpViewerPlace::Service {};

HelpViewerPlace::HelpViewerPlace() = default;

HelpViewerPlace::~HelpViewerPlace() = default;

bool HelpViewerPlace::Take(const std::string& /*book*/) {  // NOLINT: static only here
    return true;
}

// NOLINTNEXTLINE: static only here
bool HelpViewerPlace::ShowInOther(const std::string& /*book*/, const std::string& /*page*/) {
    return false;
}

// NOLINTNEXTLINE: static only here
void HelpViewerPlace::Serve(wxTopLevelWindow& window, HelpRequests requests) {
    HearHelpPages(window, std::move(requests.turnTo));
}

}  // namespace brelex
