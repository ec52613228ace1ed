// SPDX-License-Identifier: MIT
#include "platform/desktop/entry_requests.h"

namespace brelex {

class EntryRequests::Listener {};

EntryRequests::EntryRequests(const EntryRequestEvents& /*events*/) {}

EntryRequests::~EntryRequests() = default;

}  // namespace brelex
