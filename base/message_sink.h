// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/interface.h"

namespace brelex {

enum class MessageIcon {
    None,
    Information,
    Question,
    Exclamation,
    Stop
};

enum class MessageButtons {
    Ok,
    YesNo
};

enum class MessageAnswer {
    Ok,
    Yes,
    No
};

/// A message to the user. Texts are UTF-8; lines end in "\n".
struct Message {
    std::string text;
    std::string title;
    MessageIcon icon = MessageIcon::Information;
    MessageButtons buttons = MessageButtons::Ok;
};

/// Tells the user something and waits for the answer.
class MessageSink : public Interface {
  public:
    /// Returns Ok for a message with an OK button, Yes or No for a question. No also if the user
    /// closes a question without answering it.
    virtual MessageAnswer Show(const Message& message) = 0;
};

}  // namespace brelex
