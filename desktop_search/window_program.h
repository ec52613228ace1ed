// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <string>
#include <string_view>

namespace brelex {

/// What a desktop gives to a program that the user asked for, so that it may come forward. Empty
/// where there is none.
struct Permission {
    std::string activationToken;  ///< under Wayland
    std::string startupId;        ///< under X11
};

/// Asks the program with the window to do something about an entry, and starts the program if it
/// does not run. Does not wait for it.
class WindowProgram {
  public:
    explicit WindowProgram(GDBusConnection* bus) : bus_(bus) {}

    /// Shows an entry, or what typing `id` would select (see RowToShow).
    void Show(const std::string& id, const Permission& permission) {
        Ask("show-entry", id, permission);
    }

    /// Copies the entry with this record text (Windows-1252 bytes). KDE's clipboard takes it
    /// without a window, even under Wayland, where only a program that has the keyboard can copy.
    /// Without that clipboard, the program with the window copies.
    void Copy(std::string_view record);

    /// Whether it still has to answer.
    [[nodiscard]] bool IsAwaited() const { return awaited_ > 0; }

  private:
    void Ask(const char* action, const std::string& id, const Permission& permission);
    static void OnAnswer(GObject* bus, GAsyncResult* result, void* data);
    static void OnCopied(GObject* bus, GAsyncResult* result, void* data);

    GDBusConnection* bus_;
    int awaited_ = 0;
};

}  // namespace brelex
