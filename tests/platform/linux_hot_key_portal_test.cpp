// SPDX-License-Identifier: MIT
// The hot key that the portal of a Linux desktop provides.
#include <algorithm>
#include <gio/gio.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/desktop/hot_key_portal.h"
#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

constexpr char kPath[] = "/org/freedesktop/portal/desktop";
constexpr char kShortcuts[] = "org.freedesktop.portal.GlobalShortcuts";
constexpr char kOurs[] = "/org/freedesktop/portal/desktop/session/test/one";
constexpr char kInterfaces[] = R"xml(<node>
  <interface name="org.freedesktop.host.portal.Registry">
    <method name="Register"><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/></method>
  </interface>
  <interface name="org.freedesktop.portal.GlobalShortcuts">
    <method name="CreateSession">
      <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
    <method name="BindShortcuts">
      <arg type="o" direction="in"/><arg type="a(sa{sv})" direction="in"/>
      <arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
  </interface>
  <interface name="org.freedesktop.portal.Session"><method name="Close"/></interface>
</node>)xml";

// The answers to calls, by the method's name, in GVariant's text format. A request is answered by
// what its signal has.
using Answers = std::map<std::string, std::string>;
constexpr char kError[] = "error";
constexpr char kSilence[] = "silence";

// A desktop's portal, on the same bus as the program, but with a connection of its own.
class FakePortal {
  public:
    explicit FakePortal(const Answers& answers = {}) {
        for (const auto& [method, answer] : answers) {
            answers_[method] = answer;
        }
        char* const address = g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
        bus_ = g_dbus_connection_new_for_address_sync(
            address,
            static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                              G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
            nullptr, nullptr, nullptr);
        g_free(address);
        GDBusNodeInfo* const node = g_dbus_node_info_new_for_xml(kInterfaces, nullptr);
        static const GDBusInterfaceVTable kHandlers = {&FakePortal::OnMethod, nullptr, nullptr, {}};
        for (int i = 0; i < 3; ++i) {
            g_dbus_connection_register_object(bus_, i < 2 ? kPath : kOurs, node->interfaces[i],
                                              &kHandlers, this, nullptr, nullptr);
        }
        g_dbus_node_info_unref(node);
        g_variant_unref(g_dbus_connection_call_sync(
            bus_, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
            "RequestName", g_variant_new("(su)", "org.freedesktop.portal.Desktop", 0U), nullptr,
            G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
    }

    FakePortal(const FakePortal&) = delete;
    FakePortal& operator=(const FakePortal&) = delete;

    ~FakePortal() {
        g_dbus_connection_close_sync(bus_, nullptr, nullptr);
        g_object_unref(bus_);
    }

    [[nodiscard]] bool WasAsked(const std::string& method) const {
        return std::count(methods.begin(), methods.end(), method) != 0;
    }

    void Emit(const char* path, const char* interface, const char* signal, const char* parameters) {
        g_dbus_connection_emit_signal(bus_, nullptr, path, interface, signal,
                                      g_variant_new_parsed(parameters), nullptr);
    }

    void Press(const std::string& session = kOurs, const std::string& shortcut = "bring-forward") {
        const std::string parameters = "(objectpath '" + session + "', '" + shortcut +
                                       "', uint64 12345, {'activation_token': <'token'>})";
        Emit(kPath, kShortcuts, "Activated", parameters.c_str());
    }

    std::vector<std::string> methods;  ///< that the program has called
    std::vector<std::string> calls;    ///< with what, as text

  private:
    static void OnMethod(GDBusConnection* /*bus*/, const char* sender, const char* /*path*/,
                         const char* /*interface*/, const char* method, GVariant* arguments,
                         GDBusMethodInvocation* call, void* data) {
        auto* const self = static_cast<FakePortal*>(data);
        self->methods.emplace_back(method);
        char* const printed = g_variant_print(arguments, FALSE);
        self->calls.emplace_back(printed);
        g_free(printed);
        self->Answer(sender, method, arguments, call);
    }

    void Answer(std::string sender, const std::string& method, GVariant* arguments,
                GDBusMethodInvocation* call) {
        const std::string answer = answers_[method];
        if (answer == kSilence) {
            g_object_unref(call);
        } else if (answer == kError) {
            g_dbus_method_invocation_return_dbus_error(call, "org.example.Refused", "no");
        } else if (answer.empty()) {
            g_dbus_method_invocation_return_value(call, nullptr);
        } else {
            // The signal first: a portal that is quick need not wait until its caller knows where
            // to listen.
            GVariant* const options =
                g_variant_get_child_value(arguments, g_variant_n_children(arguments) - 1);
            const char* token = "";
            g_variant_lookup(options, "handle_token", "&s", &token);
            std::replace(sender.begin(), sender.end(), '.', '_');
            const std::string request =
                std::string(kPath) + "/request/" + sender.substr(1) + "/" + token;
            Emit(request.c_str(), "org.freedesktop.portal.Request", "Response", answer.c_str());
            g_variant_unref(options);
            g_dbus_method_invocation_return_value(call, g_variant_new("(o)", request.c_str()));
        }
    }

    GDBusConnection* bus_ = nullptr;
    Answers answers_{
        {"CreateSession", std::string("(uint32 0, {'session_handle': <'") + kOurs + "'>})"},
        {"BindShortcuts", "(uint32 0, {'shortcuts': <@a(sa{sv}) []>})"}};
};

class HotKeyOfPortal : public testing::Test {
  protected:
    void SetUp() override {
        testing::internal::CaptureStderr();
        key_.emplace([this](const std::string& token) { presses_.push_back(token); });
    }

    // Whatever a portal does, nobody reads about it.
    void TearDown() override {
        key_.reset();
        LetEventsArrive();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    }

    static bool IsAsked(const FakePortal& portal, const std::string& method) {
        return WaitFor([&] { return portal.WasAsked(method); });
    }

    bool Arrives(FakePortal& portal) {
        portal.Press();
        return WaitFor([&] { return !presses_.empty(); });
    }

    // A press that the key listens to would have arrived before the end of the portal.
    bool StaysAway(std::optional<FakePortal>& portal) {
        portal->Press();
        portal.reset();
        Settle();
        return presses_.empty();
    }

    std::vector<std::string> presses_;
    std::optional<PortalHotKey> key_;
};

TEST_F(HotKeyOfPortal, IsAskedForOnceAndReportsItsPresses) {
    FakePortal portal;
    ASSERT_TRUE(IsAsked(portal, "BindShortcuts"));
    EXPECT_EQ(portal.methods,
              (std::vector<std::string>{"Register", "CreateSession", "BindShortcuts"}));
    EXPECT_EQ(portal.calls[0], "('example.brevilexicon.Brevilexicon', {})");
    EXPECT_NE(
        portal.calls[2].find("'bring-forward', {'description': <'Bring the Brevilexicon window "
                             "forward'>, 'preferred_trigger': <'CTRL+SHIFT+g'>}"),
        std::string::npos)
        << portal.calls[2];
    EXPECT_TRUE(Arrives(portal));
    portal.Press();
    EXPECT_TRUE(WaitFor([&] { return presses_.size() == 2; }));
    EXPECT_EQ(presses_, (std::vector<std::string>{"token", "token"}));
}

TEST_F(HotKeyOfPortal, IsNotWhatOthersAskedFor) {
    std::optional<FakePortal> portal(std::in_place);
    ASSERT_TRUE(IsAsked(*portal, "BindShortcuts"));
    portal->Press("/org/freedesktop/portal/desktop/session/test/two");
    portal->Press(kOurs, "another");
    portal->Emit(kPath, kShortcuts, "Activated", "('bring-forward',)");
    portal->Emit(kPath, kShortcuts, "Activated",
                 "(objectpath '/org/freedesktop/portal/desktop/session/test/one', 1, 2, 3)");
    EXPECT_TRUE(Arrives(*portal));
    EXPECT_EQ(presses_.size(), 1U);
}

TEST_F(HotKeyOfPortal, WorksWithoutTheDesktopsPermissionToComeForward) {
    FakePortal portal;
    ASSERT_TRUE(IsAsked(portal, "BindShortcuts"));
    const std::string parameters =
        std::string("(objectpath '") + kOurs + "', 'bring-forward', uint64 0, ";
    portal.Emit(kPath, kShortcuts, "Activated", (parameters + "@a{sv} {})").c_str());
    portal.Emit(kPath, kShortcuts, "Activated",
                (parameters + "{'activation_token': <7>})").c_str());
    EXPECT_TRUE(WaitFor([&] { return presses_.size() == 2; }));
    EXPECT_EQ(presses_, (std::vector<std::string>{"", ""}));
}

TEST_F(HotKeyOfPortal, WorksWherePortalsNeedNoRegistration) {
    FakePortal portal(Answers{{"Register", kError}});
    ASSERT_TRUE(IsAsked(portal, "BindShortcuts"));
    EXPECT_TRUE(Arrives(portal));
}

TEST_F(HotKeyOfPortal, IsGivenBackAtTheEnd) {
    FakePortal portal;
    ASSERT_TRUE(IsAsked(portal, "BindShortcuts"));
    ASSERT_TRUE(Arrives(portal));
    key_.reset();
    EXPECT_TRUE(IsAsked(portal, "Close"));
}

TEST_F(HotKeyOfPortal, IsGoneWhenThePortalClosesItsSession) {
    std::optional<FakePortal> portal(std::in_place);
    ASSERT_TRUE(IsAsked(*portal, "BindShortcuts"));
    ASSERT_TRUE(Arrives(*portal));
    presses_.clear();
    portal->Emit(kOurs, "org.freedesktop.portal.Session", "Closed", "(@a{sv} {},)");
    EXPECT_TRUE(StaysAway(portal));
}

TEST_F(HotKeyOfPortal, ComesBackWithThePortal) {
    for (int i = 0; i < 3; ++i) {
        FakePortal portal;
        ASSERT_TRUE(IsAsked(portal, "BindShortcuts"));
        EXPECT_TRUE(Arrives(portal));
        EXPECT_EQ(presses_.size(), 1U);
        presses_.clear();
    }
}

TEST_F(HotKeyOfPortal, IsNotAskedForAgainIfTheUserRefuses) {
    {
        FakePortal portal(Answers{{"BindShortcuts", "(uint32 1, @a{sv} {})"}});
        ASSERT_TRUE(IsAsked(portal, "Close"));
    }
    FakePortal portal;
    Settle();
    EXPECT_EQ(portal.methods, std::vector<std::string>{});
}

TEST_F(HotKeyOfPortal, MayEndAtAnyMoment) {
    for (const char* last : {"Register", "CreateSession", "BindShortcuts"}) {
        FakePortal portal;
        key_.emplace([this](const std::string& token) { presses_.push_back(token); });
        ASSERT_TRUE(IsAsked(portal, last));
        key_.reset();
        LetEventsArrive();
        portal.Press();
        LetEventsArrive();
        EXPECT_EQ(presses_, std::vector<std::string>{}) << last;
    }
}

struct Refusal {
    const char* name;
    Answers answers;
    const char* last;  // the last method that is called
};

class PortalThatRefuses : public HotKeyOfPortal, public testing::WithParamInterface<Refusal> {};

TEST_P(PortalThatRefuses, GivesNoKeyAndNoMessage) {
    std::optional<FakePortal> portal(std::in_place, GetParam().answers);
    ASSERT_TRUE(IsAsked(*portal, GetParam().last));
    Settle(20);
    EXPECT_EQ(portal->methods.back(), GetParam().last);
    EXPECT_TRUE(StaysAway(portal));
}

constexpr char kCreate[] = "CreateSession";
constexpr char kBind[] = "BindShortcuts";

INSTANTIATE_TEST_SUITE_P(
    HotKeyOfPortal, PortalThatRefuses,
    testing::Values(
        Refusal{"NoAnswerToRegistration", {{"Register", kSilence}}, "Register"},
        Refusal{"NoShortcuts", {{kCreate, kError}}, kCreate},
        Refusal{"NoAnswer", {{kCreate, kSilence}}, kCreate},
        Refusal{"Cancelled", {{kCreate, "(uint32 1, @a{sv} {})"}}, kCreate},
        Refusal{"Failed", {{kCreate, "(uint32 2, @a{sv} {})"}}, kCreate},
        Refusal{"NoSession", {{kCreate, "(uint32 0, @a{sv} {})"}}, kCreate},
        Refusal{"NoText", {{kCreate, "(uint32 0, {'session_handle': <7>})"}}, kCreate},
        Refusal{"NoPath", {{kCreate, "(uint32 0, {'session_handle': <'one//'>})"}}, kCreate},
        Refusal{"OtherTypes", {{kCreate, "('session_handle', true)"}}, kCreate},
        Refusal{"BindingFails", {{kBind, kError}}, "Close"},
        Refusal{"BindingIsCancelled", {{kBind, "(uint32 1, @a{sv} {})"}}, "Close"},
        Refusal{"BindingIsRefused", {{kBind, "(uint32 2, @a{sv} {})"}}, "Close"},
        Refusal{"BindingHasOtherTypes", {{kBind, "(@as [], 0)"}}, "Close"}),
    CaseName());

}  // namespace
}  // namespace brelex
