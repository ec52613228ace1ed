// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/utils.h>

#include "tests/ui/ui_test_support.h"
#include "ui/controls/link.h"

namespace brelex {

/// The About box and the window that asks for a donation.
class AboutTest : public SideWindowTest {
  protected:
    void InAbout(const std::function<void()>& work) {
        InSideWindow(
            "frmAbout", [&] { window_->OpenModalForm(4); }, work);
    }

    void InDonation(const std::function<void()>& work) {
        InSideWindow(
            "frmDonation", [&] { window_->OpenModalForm(6); }, work);
    }

    [[nodiscard]] wxPoint MiddleOf(const char* name) const {
        const wxRect area = In(name).GetScreenRect();
        return {area.x + area.width / 2, area.y + area.height / 2};
    }

    void MoveTo(const wxPoint& place) {
        user_.MouseMove(place);
        EXPECT_TRUE(WaitFor([&] { return wxGetMousePosition() == place; }));
    }

    // Puts the mouse on a link and holds the left button on it.
    void PressLink(const char* name) {
        MoveTo(MiddleOf(name));
        EXPECT_TRUE(WaitFor([&] { return In<Link>(name).IsUnderlined(); }));
        user_.MouseDown();
        EXPECT_TRUE(WaitFor([&] { return In(name).HasCapture(); }));
    }

    // Presses a button on the title with modifier keys held; the name of the window that
    // opens, if one does.
    std::string PressOnTitle(const std::vector<int>& keys, int button = wxMOUSE_BTN_LEFT,
                             int patienceMs = 400) {
        MoveTo(MiddleOf("picAppTitle"));
        for (const int key : keys) {
            user_.KeyDown(key);
        }
        std::string opened;
        ModalDriver driver({[&] {
            if (auto* const credit =
                    dynamic_cast<wxDialog*>(wxWindow::FindWindowByName("frmCredit"))) {
                if (!credit->IsModal() || !credit->IsShown()) {
                    return false;
                }
                opened = "frmCredit";
                credit->EndModal(wxID_CANCEL);
            }
            return !opened.empty();
        }});
        user_.MouseDown(button);
        WaitFor([&] { return !opened.empty(); }, patienceMs);
        user_.MouseUp(button);
        for (const int key : keys) {
            user_.KeyUp(key);
        }
        EXPECT_TRUE(WaitFor([] { return wxWindow::FindWindowByName("frmCredit") == nullptr; }));
        return opened;
    }
};

}  // namespace brelex
