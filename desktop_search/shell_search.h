// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <string_view>

#include "database/row_list.h"
#include "desktop_search/window_program.h"

namespace brelex {

/// The interface through which GNOME Shell searches.
inline constexpr char kShellSearchDescription[] = R"xml(
<interface name="org.gnome.Shell.SearchProvider2">
  <method name="GetInitialResultSet">
    <arg name="terms" type="as" direction="in"/><arg name="results" type="as" direction="out"/>
  </method>
  <method name="GetSubsearchResultSet">
    <arg name="previous_results" type="as" direction="in"/>
    <arg name="terms" type="as" direction="in"/><arg name="results" type="as" direction="out"/>
  </method>
  <method name="GetResultMetas">
    <arg name="identifiers" type="as" direction="in"/>
    <arg name="metas" type="aa{sv}" direction="out"/>
  </method>
  <method name="ActivateResult">
    <arg name="identifier" type="s" direction="in"/><arg name="terms" type="as" direction="in"/>
    <arg name="timestamp" type="u" direction="in"/>
  </method>
  <method name="LaunchSearch">
    <arg name="terms" type="as" direction="in"/><arg name="timestamp" type="u" direction="in"/>
  </method>
</interface>)xml";

/// Answers a call of this interface, whose parameters have the right types. Returns null if there
/// is nothing to return. The caller owns the result.
[[nodiscard]] GVariant* AnswerShellSearch(std::string_view method, GVariant* parameters,
                                          const RowList& rows, WindowProgram& window);

}  // namespace brelex
