// SPDX-License-Identifier: MIT
#pragma once

#include <variant>

#include "base/message_sink.h"
#include "database/row_list.h"
#include "search/record_finder.h"
#include "search/search_request.h"

namespace brelex {

/// A request that is ready to be searched for, or the message that refuses it.
using PreparedSearch = std::variant<RecordFinder, Message>;

/// Checks a request and compiles it. `rows` must outlive the finder.
[[nodiscard]] PreparedSearch PrepareSearch(const SearchRequest& request, const RowList& rows);

}  // namespace brelex
