// SPDX-License-Identifier: MIT
#pragma once

#include "base/message_sink.h"

class wxWindow;

namespace brelex {

/// Shows messages as message boxes.
class WxMessageSink final : public MessageSink {
  public:
    /// `owner` is the window to which the boxes belong. Null means the window in front.
    explicit WxMessageSink(wxWindow* owner) : owner_(owner) {}

    MessageAnswer Show(const Message& message) override;

  private:
    wxWindow* owner_;
};

}  // namespace brelex
