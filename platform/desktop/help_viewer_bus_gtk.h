// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <string>

namespace brelex {

/// The help viewer on the session bus. Its name there is kHelpApplicationId, and its object has the
/// interface by which desktops use programs. Linux only.
inline constexpr char kHelpObject[] = "/example/brevilexicon/Brevilexicon/Help";
inline constexpr char kApplicationInterface[] = "org.freedesktop.Application";

/// The actions of the viewer: one shows the page in its argument, the other closes the window.
inline constexpr char kShowPage[] = "show-page";
inline constexpr char kQuit[] = "quit";

/// The user's session bus. Null if there is none. It belongs to the caller.
[[nodiscard]] GDBusConnection* SessionBus();

/// Whether there is a viewer on the bus.
[[nodiscard]] bool HasHelpViewer(GDBusConnection* bus);

/// What calls say about their user's action: the token for bringing a window to the front, which
/// may be empty.
[[nodiscard]] GVariant* PlatformData(const std::string& token);
[[nodiscard]] std::string TokenIn(GVariant* platformData);

/// Sends a call of kApplicationInterface to the viewer, if there is one, and does not wait for the
/// answer. When this returns, the call is on its way, so the program may end.
void TellHelpViewer(GDBusConnection* bus, const char* method, GVariant* arguments);

/// The arguments for an action. `argument` may be null.
[[nodiscard]] GVariant* ActionCall(const char* action, const char* argument);

}  // namespace brelex
