// SPDX-License-Identifier: MIT
#include "desktop_search/window_program.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>

#include "base/app_info.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "lookup/desktop_answers.h"

namespace brelex {

namespace {

// A start takes long if a question is open, for example where the database is.
constexpr int kPatienceMs = 120'000;

// An entry that is being copied.
struct Copying {
    WindowProgram& window;
    std::string id;
};

}  // namespace

void WindowProgram::Copy(std::string_view record) {
    ++awaited_;
    g_dbus_connection_call(bus_, "org.kde.klipper", "/klipper", "org.kde.klipper.klipper",
                           "setClipboardContents",
                           g_variant_new("(s)", Utf8OfBytes(CopiedText(record)).c_str()), nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr, &WindowProgram::OnCopied,
                           new Copying{*this, AnswerId(record)});
}

void WindowProgram::OnCopied(GObject* bus, GAsyncResult* result, void* data) {
    const std::unique_ptr<Copying> copying(static_cast<Copying*>(data));
    GVariant* const answer = g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, nullptr);
    if (answer != nullptr) {
        g_variant_unref(answer);
    } else {
        copying->window.Ask("copy-entry", copying->id, {});
    }
    --copying->window.awaited_;
}

void WindowProgram::Ask(const char* action, const std::string& id, const Permission& permission) {
    GVariantBuilder parameters;
    g_variant_builder_init(&parameters, G_VARIANT_TYPE("av"));
    g_variant_builder_add(&parameters, "v", g_variant_new_string(id.c_str()));
    GVariantBuilder platformData;
    g_variant_builder_init(&platformData, G_VARIANT_TYPE_VARDICT);
    for (const auto& [name, value] : {std::pair("activation-token", permission.activationToken),
                                      std::pair("desktop-startup-id", permission.startupId)}) {
        if (!value.empty()) {
            g_variant_builder_add(&platformData, "{sv}", name, g_variant_new_string(value.c_str()));
        }
    }
    std::string path = std::string("/") + kApplicationId;
    std::replace(path.begin(), path.end(), '.', '/');
    ++awaited_;
    g_dbus_connection_call(
        bus_, kApplicationId, path.c_str(), "org.freedesktop.Application", "ActivateAction",
        g_variant_new("(sava{sv})", action, &parameters, &platformData), nullptr,
        G_DBUS_CALL_FLAGS_NONE, kPatienceMs, nullptr, &WindowProgram::OnAnswer, this);
}

void WindowProgram::OnAnswer(GObject* bus, GAsyncResult* result, void* data) {
    GError* error = nullptr;
    GVariant* const answer = g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error);
    if (answer != nullptr) {
        g_variant_unref(answer);
    } else {
        std::cerr << "brevilexicon-search: the window cannot be reached: " << error->message
                  << '\n';
        g_error_free(error);
    }
    --static_cast<WindowProgram*>(data)->awaited_;
}

}  // namespace brelex
