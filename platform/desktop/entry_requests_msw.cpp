// SPDX-License-Identifier: MIT
#include "platform/desktop/entry_requests.h"

namespace brelex {

class EntryRequests::Listener {};

EntryRequests::EntryRequests(EntryRequestEvents /*events*/) {}

EntryRequests::~EntryRequests() = default;

}  // namespace brelex
