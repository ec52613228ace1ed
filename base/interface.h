// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// The base class of our interfaces. Their objects have an identity, so they are never copied, and
/// may be deleted through the interface.
class Interface {
  public:
    Interface(const Interface&) = delete;
    Interface& operator=(const Interface&) = delete;
    virtual ~Interface() = default;

  protected:
    Interface() = default;
};

}  // namespace brelex
