// SPDX-License-Identifier: MIT
#include "platform/desktop/wx_message_sink.h"

#include "platform/desktop/message_box.h"
#include "toolkit/wx_text.h"

namespace brelex {

namespace {

long StyleOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return wxICON_NONE;
        case MessageIcon::Information:
            return wxICON_INFORMATION;
        case MessageIcon::Question:
            return wxICON_QUESTION;
        case MessageIcon::Exclamation:
            return wxICON_EXCLAMATION;
        case MessageIcon::Stop:
            break;
    }
    return wxICON_ERROR;
}

}  // namespace

MessageAnswer WxMessageSink::Show(const Message& message) {
    const bool question = message.buttons == MessageButtons::YesNo;
    SystemMessageBox box(owner_, WxText(message.text), WxText(message.title),
                         StyleOf(message.icon) | (question ? wxYES_NO : wxOK));
    const int answer = box.ShowModal();
    if (!question) {
        return MessageAnswer::Ok;
    }
    return answer == wxID_YES ? MessageAnswer::Yes : MessageAnswer::No;
}

}  // namespace brelex
