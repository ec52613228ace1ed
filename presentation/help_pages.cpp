// SPDX-License-Identifier: MIT
#include "presentation/help_pages.h"

#include <algorithm>
#include <array>

namespace brelex {

namespace {

struct PageOfWindow {
    std::string_view window;
    std::string_view page;
};

constexpr std::array kPages = {
    PageOfWindow{"frmMain", "mainwindow.html"},
    PageOfWindow{"frmSearch", "search.html"},
    PageOfWindow{"frmAnagram", "anagrams.html"},
    PageOfWindow{"frmDataInfo", "info.html"},
    PageOfWindow{"frmSmiley", "smileys.html"},
    PageOfWindow{"frmAbout", "about.html"},
    PageOfWindow{"frmCheckData", "check.html"},
    PageOfWindow{"frmDonation", "about.html#donate"},
    PageOfWindow{"frmCredit", "about.html#credits"},
    PageOfWindow{"frmViewEntry", "viewer.html"},
    PageOfWindow{"TextQuestion", "lookup.html#goto"},
};

}  // namespace

std::string_view HelpPageOf(std::string_view window) {
    const auto* const found =
        std::find_if(kPages.begin(), kPages.end(),
                     [&](const PageOfWindow& entry) { return entry.window == window; });
    return found == kPages.end() ? std::string_view() : found->page;
}

}  // namespace brelex
