// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace brelex {

/// During its lifetime, a key of the Linux desktop that the user can press in any program. The
/// desktop's portal provides it: it may ask the user, and the user may choose another key than the
/// one we suggest. Nothing here waits for the portal. Without a portal, or if the portal or the
/// user refuses, there is no such key.
class PortalHotKey {
  public:
    /// Asks for the key. Calls `onPress` whenever the user presses it, with the token by which the
    /// desktop lets our window come forward; the token may be empty.
    explicit PortalHotKey(std::function<void(const std::string& token)> onPress);
    PortalHotKey(const PortalHotKey&) = delete;
    PortalHotKey& operator=(const PortalHotKey&) = delete;
    ~PortalHotKey();

  private:
    class Client;
    std::unique_ptr<Client> client_;
};

}  // namespace brelex
