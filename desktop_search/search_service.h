// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <string>

#include "desktop_search/current_entries.h"
#include "desktop_search/krunner.h"
#include "desktop_search/window_program.h"

namespace brelex {

/// Answers the searches of GNOME Shell and of KRunner on the session bus.
class SearchService {
  public:
    /// The entries come from the database in `folder`, see CurrentEntries.
    SearchService(GDBusConnection* bus, std::string folder, int idleSeconds);
    SearchService(const SearchService&) = delete;
    SearchService& operator=(const SearchService&) = delete;
    ~SearchService();

    /// Takes its name on the bus and answers calls until there was none for as long as the
    /// constructor was told. Returns false if another process has the name, or if the bus ends.
    [[nodiscard]] bool Run();

  private:
    [[nodiscard]] bool Publish(const char* description);
    [[nodiscard]] bool TakeName();
    void WaitAnew();
    static void OnMethod(GDBusConnection* bus, const char* sender, const char* path,
                         const char* interface, const char* method, GVariant* parameters,
                         GDBusMethodInvocation* call, void* data);
    static gboolean OnIdle(void* data);

    GDBusConnection* bus_;
    guint idleSeconds_;
    GMainLoop* loop_;
    guint timer_ = 0;
    CurrentEntries entries_;
    WindowProgram window_;
    KRunner kRunner_;
};

}  // namespace brelex
