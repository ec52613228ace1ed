// SPDX-License-Identifier: MIT
#include "desktop_search/search_service.h"

#include <iostream>
#include <string_view>
#include <utility>

#include "base/app_info.h"
#include "desktop_search/shell_search.h"

namespace brelex {

namespace {

const std::string kBusName = std::string(kApplicationId) + ".Search";
constexpr char kObjectPath[] = "/example/brevilexicon/Brevilexicon/Search";

// Calls a method of the bus itself that takes its arguments as `parameters` and returns a number.
// Returns 0 if it fails.
guint32 AskBus(GDBusConnection* bus, const char* method, GVariant* parameters) {
    GError* error = nullptr;
    GVariant* const answer = g_dbus_connection_call_sync(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
        parameters, G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE, -1, nullptr, &error);
    if (answer == nullptr) {
        std::cerr << "brevilexicon-search: " << error->message << '\n';
        g_error_free(error);
        return 0;
    }
    guint32 number = 0;
    g_variant_get(answer, "(u)", &number);
    g_variant_unref(answer);
    return number;
}

}  // namespace

SearchService::SearchService(GDBusConnection* bus, std::string folder, int idleSeconds)
    : bus_(bus),
      idleSeconds_(static_cast<guint>(idleSeconds)),
      loop_(g_main_loop_new(nullptr, FALSE)),
      entries_(std::move(folder)),
      window_(bus),
      kRunner_(window_) {}

SearchService::~SearchService() {
    g_main_loop_unref(loop_);
}

bool SearchService::Run() {
    if (!Publish(kShellSearchDescription) || !Publish(kKRunnerDescription) || !TakeName()) {
        return false;
    }
    WaitAnew();
    g_main_loop_run(loop_);
    return true;
}

bool SearchService::Publish(const char* description) {
    GDBusNodeInfo* const node = g_dbus_node_info_new_for_xml(
        (std::string("<node>") + description + "</node>").c_str(), nullptr);
    static const GDBusInterfaceVTable kHandlers = {&SearchService::OnMethod, nullptr, nullptr, {}};
    const guint object = g_dbus_connection_register_object(bus_, kObjectPath, node->interfaces[0],
                                                           &kHandlers, this, nullptr, nullptr);
    g_dbus_node_info_unref(node);
    return object != 0;
}

bool SearchService::TakeName() {
    constexpr guint32 kDoNotQueue = 4;
    constexpr guint32 kIsOwner = 1;
    if (AskBus(bus_, "RequestName", g_variant_new("(su)", kBusName.c_str(), kDoNotQueue)) !=
        kIsOwner) {
        std::cerr << "brevilexicon-search: another process is answering already\n";
        return false;
    }
    return true;
}

void SearchService::WaitAnew() {
    if (timer_ != 0) {
        g_source_remove(timer_);
    }
    timer_ = g_timeout_add_seconds(idleSeconds_, &SearchService::OnIdle, this);
}

void SearchService::OnMethod(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                             const char* interface, const char* method, GVariant* parameters,
                             GDBusMethodInvocation* call, void* data) {
    auto* const self = static_cast<SearchService*>(data);
    self->WaitAnew();
    const RowList& rows = self->entries_.Rows();
    g_dbus_method_invocation_return_value(
        call, std::string_view(interface) == "org.kde.krunner1"
                  ? self->kRunner_.Answer(method, parameters, rows)
                  : AnswerShellSearch(method, parameters, rows, self->window_));
}

// Calls that were on their way before the bus took the name back are still answered. For any later
// one the bus starts the service again.
gboolean SearchService::OnIdle(void* data) {
    auto* const self = static_cast<SearchService*>(data);
    if (self->window_.IsAwaited()) {
        return G_SOURCE_CONTINUE;
    }
    self->timer_ = 0;
    AskBus(self->bus_, "ReleaseName", g_variant_new("(s)", kBusName.c_str()));
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
    g_dbus_connection_flush_sync(self->bus_, nullptr, nullptr);
    g_main_loop_quit(self->loop_);
    return G_SOURCE_REMOVE;
}

}  // namespace brelex
