// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace brelex {

/// Hears of what other programs want, such as the search of the desktop. Called between events.
struct EntryRequestEvents {
    /// Comes forward and shows an entry, see RowToShow. Without `id` it only comes forward.
    /// `activationToken` is the permission of the desktop to do so; empty if there is none.
    std::function<void(const std::string& id, const std::string& activationToken)> onShow;

    /// Copies an entry, see RowOfAnswer.
    std::function<void(const std::string& id)> onCopy;
};

/// During its lifetime, other programs of the user can ask for entries. On Linux they do so over
/// the session bus: the program has the bus name kApplicationId and there, as any application, the
/// interface org.freedesktop.Application, with the actions "show-entry" and "copy-entry". Nobody
/// asks on Windows.
class EntryRequests {
  public:
    explicit EntryRequests(const EntryRequestEvents& events);
    EntryRequests(const EntryRequests&) = delete;
    EntryRequests& operator=(const EntryRequests&) = delete;
    ~EntryRequests();

  private:
    class Listener;
    std::unique_ptr<Listener> listener_;
};

}  // namespace brelex
