// SPDX-License-Identifier: MIT
// What other programs ask of the window over the session bus.
#include <functional>
#include <gio/gio.h>
#include <string>

#include <gtest/gtest.h>

#include <wx/textctrl.h>

#include "base/app_info.h"
#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

class EntryRequestsTest : public SideWindowTest {
  public:
    EntryRequestsTest() : bus_(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr)) {}

    EntryRequestsTest(const EntryRequestsTest&) = delete;
    EntryRequestsTest& operator=(const EntryRequestsTest&) = delete;

    ~EntryRequestsTest() override { g_object_unref(bus_); }

  protected:
    void SetUp() override {
        SideWindowTest::SetUp();
        ASSERT_TRUE(WaitFor([&] { return Call("Activate", "(@a{sv} {},)").empty(); }));
        LetEventsArrive();
    }

    // Calls a method of the program as another program would. Returns the error; empty if there is
    // none.
    std::string Call(const char* method, const std::string& parameters) {
        struct Answer {
            bool isThere = false;
            std::string error;
        } answer;

        g_dbus_connection_call(
            bus_, kApplicationId, "/example/brevilexicon/Brevilexicon",
            "org.freedesktop.Application", method, g_variant_new_parsed(parameters.c_str()),
            nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr,
            [](GObject* bus, GAsyncResult* result, void* data) {
                auto& arrived = *static_cast<Answer*>(data);
                GError* error = nullptr;
                GVariant* const value =
                    g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error);
                if (value != nullptr) {
                    g_variant_unref(value);
                } else {
                    arrived.error = error->message;
                    g_error_free(error);
                }
                arrived.isThere = true;
            },
            &answer);
        EXPECT_TRUE(WaitFor([&] { return answer.isThere; }));
        return answer.error;
    }

    std::string Ask(const char* action, const std::string& id) {
        return Call("ActivateAction", std::string("('") + action + "', [<'" + id +
                                          "'>], {'activation-token': <'none'>})");
    }

    GDBusConnection* bus_;
};

TEST_F(EntryRequestsTest, ShowAnEntry) {
    EXPECT_EQ(Ask("show-entry", "XSS\\tCross-Site Scripting"), "");
    EXPECT_TRUE(WaitFor([&] { return SelectedRecord() == "XSS\tCross-Site Scripting"; }));
    EXPECT_EQ(BoxText(), "XSS");
    EXPECT_TRUE(WaitFor([&] { return IsFocusIn(Box()); }));
}

TEST_F(EntryRequestsTest, ShowTheOneAmongEntriesOfTheSameAbbreviation) {
    Start({"RAM\tOne", "RAM\tTwo", "RAM\tThree"});
    EXPECT_EQ(Ask("show-entry", "RAM\\tThree"), "");
    EXPECT_TRUE(WaitFor([&] { return SelectedRecord() == "RAM\tThree"; }));
}

TEST_F(EntryRequestsTest, OfAnotherDatabaseShowWhatTypingWouldSelect) {
    EXPECT_EQ(Ask("show-entry", "XSS\\tRemoved"), "");
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "XSS"; }));
    EXPECT_EQ(Ask("show-entry", "xm"), "");
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "XML"; }));
}

// Choosing an entry must not be taken for typing the same text again, after which the list no
// longer follows.
TEST_F(EntryRequestsTest, LeaveTheLookUpAtWork) {
    Type("xss", "XSS");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Ask("show-entry", "XSS\\tCross-Site Scripting"), "");
        LetEventsArrive();
    }
    EXPECT_FALSE(window_->Lookup().IsLookupBusy);
    SelectAllInBox();
    Type("xml", "XML");
    EXPECT_TRUE(WaitFor([&] { return SelectedRecord().starts_with("XML\t"); }));
}

TEST_F(EntryRequestsTest, BringAHiddenWindowBack) {
    window_->Iconize();
    ASSERT_TRUE(WaitFor([&] { return IsMinimised(); }));
    EXPECT_EQ(Ask("show-entry", "XSS\\tCross-Site Scripting"), "");
    EXPECT_TRUE(WaitFor([&] { return IsBack(); }));
    EXPECT_EQ(BoxText(), "XSS");
}

TEST_F(EntryRequestsTest, BringTheWindowForwardWithoutAnEntry) {
    Type("xss", "XSS");
    window_->Iconize();
    ASSERT_TRUE(WaitFor([&] { return IsMinimised(); }));
    EXPECT_EQ(Call("Activate", "(@a{sv} {},)"), "");
    EXPECT_TRUE(WaitFor([&] { return IsBack(); }));
    EXPECT_EQ(BoxText(), "XSS");
}

TEST_F(EntryRequestsTest, BehindAModalWindowChangeNothing) {
    Type("xss", "XSS");
    InSideWindow(
        "frmSearch", [&] { window_->Run(Command::Search); },
        [&] {
            EXPECT_EQ(Ask("show-entry", "XML\\tExtensible Markup Language"), "");
            EXPECT_TRUE(StaysFor(200, [&] { return Side().IsShown() && BoxText() == "XSS"; }));
            EXPECT_TRUE(WaitFor([&] { return Side().IsActive(); }));
        });
    EXPECT_EQ(SelectedRecord(), "XSS\tCross-Site Scripting");
}

TEST_F(EntryRequestsTest, CopyAnEntry) {
    PutOnClipboard("before");
    EXPECT_EQ(Ask("copy-entry", "XSS\\tCross-Site Scripting"), "");
    EXPECT_TRUE(WaitFor([] { return ClipboardText() == "XSS = Cross-Site Scripting"; }));
    EXPECT_EQ(BoxText(), "") << "the window stays as it is";
    EXPECT_EQ(Ask("copy-entry", "XSS\\tRemoved"), "");
    EXPECT_EQ(Ask("copy-entry", "-1"), "");
    EXPECT_TRUE(StaysFor(200, [] { return ClipboardText() == "XSS = Cross-Site Scripting"; }));
}

TEST_F(EntryRequestsTest, AreRefusedIfTheyMakeNoSense) {
    Type("xss", "XSS");
    EXPECT_NE(Ask("delete-entry", "XSS"), "");
    EXPECT_NE(Call("ActivateAction", "('show-entry', @av [], @a{sv} {})"), "");
    EXPECT_NE(Call("ActivateAction", "('show-entry', [<1>], @a{sv} {})"), "");
    EXPECT_NE(Call("ActivateAction", "('show-entry', [<'A'>, <'B'>], @a{sv} {})"), "");
    EXPECT_NE(Call("Open", "(@as [], @a{sv} {})"), "");
    EXPECT_EQ(Call("Activate", "({'activation-token': <1>},)"), "") << "a token that is no text";
    EXPECT_TRUE(StaysFor(100, [&] { return BoxText() == "XSS"; }));
}

TEST_F(EntryRequestsTest, HaveNoEffectOnAnEmptyList) {
    StartWith(DatabaseBytes({"XSS\tCross-Site Scripting"},
                            [](DatabaseHeader& header) { header.RecordCount = 0; }),
              "");
    EXPECT_EQ(Ask("show-entry", "XSS\\tCross-Site Scripting"), "");
    EXPECT_EQ(Ask("copy-entry", "XSS\\tCross-Site Scripting"), "");
    EXPECT_TRUE(StaysFor(100, [&] { return BoxText().empty(); }));
}

TEST_F(EntryRequestsTest, ComeToNobodyWhenTheWindowIsClosed) {
    window_->Close();
    window_ = nullptr;
    ASSERT_TRUE(WaitFor([&] { return !Call("Activate", "(@a{sv} {},)").empty(); }));
}

}  // namespace
}  // namespace brelex
