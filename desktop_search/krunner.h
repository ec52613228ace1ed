// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <string>
#include <string_view>

#include "database/row_list.h"
#include "desktop_search/window_program.h"

namespace brelex {

/// The interface through which KRunner searches.
inline constexpr char kKRunnerDescription[] = R"xml(
<interface name="org.kde.krunner1">
  <method name="Actions"><arg name="matches" type="a(sss)" direction="out"/></method>
  <method name="Config"><arg name="config" type="a{sv}" direction="out"/></method>
  <method name="Match">
    <arg name="query" type="s" direction="in"/>
    <arg name="matches" type="a(sssida{sv})" direction="out"/>
  </method>
  <method name="Run">
    <arg name="matchId" type="s" direction="in"/><arg name="actionId" type="s" direction="in"/>
  </method>
  <method name="SetActivationToken"><arg name="token" type="s" direction="in"/></method>
  <method name="Teardown"/>
</interface>)xml";

/// Answers the calls of this interface.
class KRunner {
  public:
    explicit KRunner(WindowProgram& window) : window_(window) {}

    /// Answers a call, whose parameters have the right types. Returns null if there is nothing to
    /// return. The caller owns the result.
    [[nodiscard]] GVariant* Answer(std::string_view method, GVariant* parameters,
                                   const RowList& rows);

  private:
    void Run(GVariant* parameters, const RowList& rows);

    WindowProgram& window_;
    std::string activationToken_;  // for the next Run
};

}  // namespace brelex
