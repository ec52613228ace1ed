// SPDX-License-Identifier: MIT
#pragma once

#include "base/message_sink.h"

class wxWindow;

namespace brelex {

/// Shows messages as message boxes.
class WxMessageSink final : public MessageSink {
  public:
    /// `owner` is the window that the boxes belong to; null means the window in front.
    explicit WxMessageSink(wxWindow* owner) : owner_(owner) {}

    MessageAnswer Show(const Message& message) override;

  private:
    wxWindow* owner_;
};

}  // namespace brelex
