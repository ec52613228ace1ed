// SPDX-License-Identifier: MIT
// The program in the locales of other users. ctest starts these tests anew with each of them.
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <gtk/gtk.h>

#include "tests/ui/side_windows.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

struct Numbers {
    const char* entries;
    const char* version;
};

// Where no locale is set.
constexpr Numbers kPlain{.entries = "1,506 entries", .version = "version 1.0"};

// How each locale writes the numbers.
const std::map<std::string, Numbers> kLocales{
    {"ar_EG.UTF-8", {"1,506 entries", "version 1.0"}},
    {"de_DE.UTF-8", {"1.506 entries", "version 1,0"}},
    {"fr_FR.UTF-8", {"1\u202F506 entries", "version 1,0"}},
    {"he_IL.UTF-8", {"1,506 entries", "version 1.0"}},
};

class UsersLocale : public SideWindowTest {
  protected:
    void SetUp() override {
        const char* const locale = std::getenv("LC_ALL");
        const auto found = kLocales.find(locale == nullptr ? "" : locale);
        numbers_ = found == kLocales.end() ? kPlain : found->second;
        SideWindowTest::SetUp();
    }

    Numbers numbers_{};
};

// Everything in a window, from the outside to the inside.
void CollectParts(GtkWidget* part, void* parts) {
    static_cast<std::vector<GtkWidget*>*>(parts)->push_back(part);
    if (GTK_IS_CONTAINER(part)) {
        gtk_container_forall(GTK_CONTAINER(part), CollectParts, parts);
    }
}

void ExpectFromLeftToRight(const wxWindow& window) {
    std::vector<GtkWidget*> parts;
    CollectParts(window.GetHandle(), &parts);
    for (GtkWidget* const part : parts) {
        EXPECT_EQ(gtk_widget_get_direction(part), GTK_TEXT_DIR_LTR) << G_OBJECT_TYPE_NAME(part);
    }
}

TEST_F(UsersLocale, WritesTheNumbers) {
    EXPECT_EQ(LabelText("lblRecCount"), numbers_.entries);
    InSideWindow(
        "frmAbout", [this] { window_->Run(Command::About); },
        [this] { EXPECT_EQ(Label("lblVersion"), numbers_.version); });
}

// The texts are English. If their windows were mirrored, periods and brackets would change sides.
TEST_F(UsersLocale, DoesNotMirrorTheEnglishWindows) {
    ExpectFromLeftToRight(*window_);

    for (const OpenedWindow& opened : kSideWindows) {
        InSideWindow(
            opened.name, [&] { window_->Run(opened.command); },
            [this] { ExpectFromLeftToRight(Side()); });
    }
}

}  // namespace
}  // namespace brelex
