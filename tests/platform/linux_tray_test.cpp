// SPDX-License-Identifier: MIT
// The icon on Linux desktops: with a panel or without, or as an item that the desktop itself shows.
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gio/gio.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include <gtk/gtk.h>

#include "platform/system/program_folder.h"
#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"
#include "ui/main/main_menus.h"

namespace brelex {
namespace {

// A panel with a notification area in the upper left corner.
class Panel {
  public:
    Panel() : pid_(fork()) {
        if (pid_ == 0) {
            execlp("trayer", "trayer", "--edge", "top", "--align", "left", "--widthtype", "pixel",
                   "--width", "24", "--heighttype", "pixel", "--height", "24", "--SetDockType",
                   "true", "--SetPartialStrut", "true", nullptr);
            _exit(127);
        }
    }

    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    ~Panel() {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }

  private:
    pid_t pid_;
};

// A desktop without a notification area. (Windows always has one.)
class MainWindowWithoutTray : public MainWindowTest {
  protected:
    void SetUp() override {
        if (std::getenv("WITH_TRAY") != nullptr) {
            GTEST_SKIP() << "needs a display without a notification area";
        }
        MainWindowTest::SetUp();
    }
};

TEST_F(MainWindowWithoutTray, MinimisingOnlyMinimises) {
    window_->Iconize();
    ASSERT_TRUE(WaitFor([&] { return window_->IsIconized(); }));
    EXPECT_TRUE(StaysFor(200, [&] { return window_->IsShown(); }));
    window_->Iconize(false);
    EXPECT_TRUE(WaitFor([&] { return !window_->IsIconized(); }));
}

TEST_F(MainWindowWithoutTray, StartedMinimisedTheWindowHidesWhenALatePanelComes) {
    Start(SampleEntries(), "/minimize");
    ASSERT_TRUE(WaitFor([&] { return window_->IsIconized(); }));
    EXPECT_TRUE(StaysFor(200, [&] { return window_->IsShown(); }));
    const Panel panel;
    EXPECT_TRUE(WaitFor([&] { return !window_->IsShown(); }));
}

TEST_F(MainWindowWithoutTray, APanelThatComesDiesAndComesBackLosesNothing) {
    wxCommandEvent stay(wxEVT_MENU, IdOf(Command::StayOnTop));
    stay.SetInt(1);
    window_->ProcessWindowEvent(stay);
    {
        const Panel panel;
        // The icon waits for the panel: minimising hides as soon as it is there.
        ASSERT_TRUE(WaitFor([&] {
            window_->Iconize(false);
            window_->Iconize();
            return WaitFor([&] { return !window_->IsShown(); }, 100);
        }));
        // GTK does not survive the end of a panel that has not even shown the icon yet.
        ASSERT_TRUE(WaitFor([] { return ShowsTrayIcon(); }));
        Settle(1000);
    }
    ASSERT_TRUE(WaitFor([&] { return window_->IsShown(); }));
    EXPECT_TRUE(WaitFor([&] { return IsKeptAbove(*window_); })) << "it stays on top, too";
    const Panel panel;
    ASSERT_TRUE(WaitFor([] { return ShowsTrayIcon(); }));
    user_.MouseMove(12, 12);
    LetEventsArrive();
    user_.MouseClick();
    EXPECT_TRUE(WaitFor([&] { return !window_->IsIconized() && window_->IsActive(); }));
}

// A desktop's host of StatusNotifierItems: the watcher, and calls as a panel makes them.
class FakeHost {
  public:
    FakeHost() : bus_(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr)) {
        GDBusNodeInfo* const node = g_dbus_node_info_new_for_xml(
            "<node><interface name='org.kde.StatusNotifierWatcher'>"
            "<method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/></method>"
            "<property name='IsStatusNotifierHostRegistered' type='b' access='read'/>"
            "<signal name='StatusNotifierHostRegistered'/></interface></node>",
            nullptr);
        static const GDBusInterfaceVTable kHandlers = {
            &FakeHost::OnMethod, &FakeHost::OnGetProperty, nullptr, {}};
        object_ =
            g_dbus_connection_register_object(bus_, "/StatusNotifierWatcher", node->interfaces[0],
                                              &kHandlers, this, nullptr, nullptr);
        g_dbus_node_info_unref(node);
        name_ = g_bus_own_name_on_connection(bus_, "org.kde.StatusNotifierWatcher",
                                             G_BUS_NAME_OWNER_FLAGS_NONE, nullptr, nullptr, nullptr,
                                             nullptr);
    }

    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    ~FakeHost() {
        g_bus_unown_name(name_);
        g_dbus_connection_unregister_object(bus_, object_);
        g_object_unref(bus_);
    }

    // Calls a method of the item or its menu and waits for the answer, letting events run.
    GVariant* Call(const char* path, const char* interface, const char* method,
                   GVariant* arguments) {
        answer_ = nullptr;
        bool done = false;
        done_ = &done;
        g_dbus_connection_call(
            bus_, item.c_str(), path, interface, method, arguments, nullptr, G_DBUS_CALL_FLAGS_NONE,
            2000, nullptr,
            [](GObject* bus, GAsyncResult* result, void* data) {
                auto* const self = static_cast<FakeHost*>(data);
                self->answer_ =
                    g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, nullptr);
                *self->done_ = true;
            },
            this);
        EXPECT_TRUE(WaitFor([&] { return done; }));
        return answer_;
    }

    // The item's property, as text.
    std::string Property(const char* name) {
        GVariant* const answer =
            Call("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                 g_variant_new("(ss)", "org.kde.StatusNotifierItem", name));
        return Text(answer);
    }

    // The menu as the desktop gets it to draw, as text.
    std::string Layout() {
        GVariant* const shown =
            Call("/MenuBar", "com.canonical.dbusmenu", "AboutToShow", g_variant_new("(i)", 0));
        Text(shown);
        const char* const none[] = {nullptr};
        return Text(Call("/MenuBar", "com.canonical.dbusmenu", "GetLayout",
                         g_variant_new("(ii^as)", 0, -1, none)));
    }

    // Chooses the item of the menu with a label, as often as asked.
    void Choose(const std::string& label, int times = 1) {
        const std::string layout = Layout();
        const std::size_t at = layout.find("'" + label + "'");
        ASSERT_NE(at, std::string::npos) << layout;
        // An item is printed as (number, {... 'label': <'...'> ...
        const std::size_t open = layout.rfind('(', at);
        const int id = std::atoi(layout.c_str() + open + 1);
        for (int i = 0; i < times; ++i) {
            Text(Call("/MenuBar", "com.canonical.dbusmenu", "Event",
                      g_variant_new("(isvu)", id, "clicked", g_variant_new_int32(0), 0U)));
        }
    }

    std::string item;  ///< the bus name of the item that registered itself
    bool refuses = false;

  private:
    static std::string Text(GVariant* value) {
        if (value == nullptr) {
            return "(no answer)";
        }
        char* const printed = g_variant_print(value, FALSE);
        std::string text = printed;
        g_free(printed);
        g_variant_unref(value);
        return text;
    }

    static void OnMethod(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                         const char* /*interface*/, const char* /*method*/, GVariant* arguments,
                         GDBusMethodInvocation* call, void* data) {
        const char* name = nullptr;
        g_variant_get(arguments, "(&s)", &name);
        auto* const self = static_cast<FakeHost*>(data);
        self->item = name;
        if (self->refuses) {
            g_dbus_method_invocation_return_dbus_error(call, "org.example.Refused", "no");
        } else {
            g_dbus_method_invocation_return_value(call, nullptr);
        }
    }

    static GVariant* OnGetProperty(GDBusConnection* /*bus*/, const char* /*sender*/,
                                   const char* /*path*/, const char* /*interface*/,
                                   const char* /*property*/, GError** /*error*/, void* /*data*/) {
        return g_variant_new_boolean(TRUE);
    }

    GDBusConnection* bus_;
    guint object_ = 0;
    guint name_ = 0;
    GVariant* answer_ = nullptr;
    bool* done_ = nullptr;
};

class StatusNotifierItem : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        ASSERT_TRUE(WaitFor([&] { return !host_.item.empty(); }));
        // The program hears that it is registered before it is asked this.
        ASSERT_NE(host_.Property("Id"), "");
        LetEventsArrive();
    }

    FakeHost host_;
};

TEST_F(StatusNotifierItem, SaysWhatItIs) {
    EXPECT_EQ(host_.Property("Id"), "(<'example.brevilexicon.Brevilexicon'>,)");
    EXPECT_EQ(host_.Property("Title"), "(<'Brevilexicon'>,)");
    EXPECT_EQ(host_.Property("Status"), "(<'Active'>,)");
    EXPECT_EQ(host_.Property("Category"), "(<'ApplicationStatus'>,)");
    EXPECT_EQ(host_.Property("ItemIsMenu"), "(<false>,)");
    EXPECT_EQ(host_.Property("Menu"), "(<objectpath '/MenuBar'>,)");
    EXPECT_EQ(host_.Property("IconPixmap").rfind("(<[(16, 16, [", 0), 0U);
    EXPECT_NE(host_.Property("ToolTip").find("'Brevilexicon'"), std::string::npos);
}

// While this exists, the program finds the icons of the system and those in one other folder only.
class IconsIn {
  public:
    explicit IconsIn(const std::string& folder) {
        gtk_icon_theme_get_search_path(theme_, &folders_, &count_);
        std::vector<const char*> folders{"/usr/share/icons", folder.c_str()};
        gtk_icon_theme_set_search_path(theme_, folders.data(), static_cast<int>(folders.size()));
    }

    IconsIn(const IconsIn&) = delete;
    IconsIn& operator=(const IconsIn&) = delete;

    ~IconsIn() {
        std::vector<const char*> folders(folders_, folders_ + count_);
        gtk_icon_theme_set_search_path(theme_, folders.data(), count_);
        g_strfreev(folders_);
    }

  private:
    GtkIconTheme* theme_ = gtk_icon_theme_get_default();
    char** folders_ = nullptr;
    int count_ = 0;
};

TEST_F(StatusNotifierItem, NamesTheIconInOneColorThatThePanelColors) {
    const std::string folder =
        std::filesystem::path(ProgramFolder()).parent_path().parent_path() / "share/icons";
    const IconsIn built(folder);
    EXPECT_EQ(host_.Property("IconName"), "(<'example.brevilexicon.Brevilexicon-symbolic'>,)");
    EXPECT_EQ(host_.Property("IconThemePath"), "(<'" + folder + "'>,)");
}

TEST_F(StatusNotifierItem, NamesNoIconThatNoThemeHas) {
    const IconsIn none("/nonexistent");
    EXPECT_EQ(host_.Property("IconName"), "(<''>,)");
    EXPECT_EQ(host_.Property("IconThemePath"), "(<''>,)");
}

TEST_F(StatusNotifierItem, ActivatingItBringsTheHiddenWindowBack) {
    window_->Iconize();
    ASSERT_TRUE(WaitFor([&] { return !window_->IsShown(); }));
    GVariant* const answer = host_.Call("/StatusNotifierItem", "org.kde.StatusNotifierItem",
                                        "Activate", g_variant_new("(ii)", 10, 10));
    ASSERT_NE(answer, nullptr);
    g_variant_unref(answer);
    EXPECT_TRUE(WaitFor([&] { return window_->IsShown() && !window_->IsIconized(); }));
}

TEST_F(StatusNotifierItem, ItsMenuFollowsTheWindow) {
    const std::string visible = host_.Layout();
    for (const char* label :
         {"'Search Database...'", "'About...'", "'_Minimize Window'", "'separator'", "'Exit'"}) {
        EXPECT_NE(visible.find(label), std::string::npos) << label << " in " << visible;
    }
    host_.Choose("_Minimize Window");
    ASSERT_TRUE(WaitFor([&] { return !window_->IsShown(); }));
    EXPECT_EQ(host_.Layout().find("Minimize"), std::string::npos);
    host_.Choose("_Restore Window");
    EXPECT_TRUE(WaitFor([&] { return window_->IsShown() && !window_->IsIconized(); }));
}

TEST_F(StatusNotifierItem, ItsMenuIsEmptyWhileAModalWindowIsUp) {
    std::string layout;
    ModalDriver driver({
        [&] { return window_->IsModalOpen(); },
        [&] {
            layout = host_.Layout();
            return true;
        },
        [&] {
            user_.Char(WXK_RETURN);
            return !window_->IsModalOpen();
        },
    });
    window_->Run(Command::About);
    // All five items are there for the desktop to hide.
    std::size_t hidden = 0;
    for (std::size_t at = layout.find("'visible': <false>"); at != std::string::npos;
         at = layout.find("'visible': <false>", at + 1)) {
        ++hidden;
    }
    EXPECT_EQ(hidden, 5U) << layout;
    EXPECT_EQ(host_.Layout().find("'visible': <false>"), std::string::npos);
}

TEST_F(MainWindowWithoutTray, ADesktopThatRefusesTheIconDoesNotLoseTheWindow) {
    FakeHost host;
    host.refuses = true;
    Start(SampleEntries(), "/minimize");
    ASSERT_TRUE(WaitFor([&] { return !host.item.empty(); }));
    ASSERT_TRUE(WaitFor([&] { return window_->IsIconized(); }));
    EXPECT_TRUE(StaysFor(200, [&] { return window_->IsShown(); }));
}

TEST_F(StatusNotifierItem, ItsExitClosesTheWindow) {
    frmMain* const window = window_;
    host_.Choose("Exit", 2);  // as a double click does
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
    window_ = nullptr;
}

}  // namespace
}  // namespace brelex
