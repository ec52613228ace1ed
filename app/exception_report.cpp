// SPDX-License-Identifier: MIT
#include "app/exception_report.h"

#include <exception>
#include <new>
#include <string>

#include <wx/app.h>

#include "database/program_values.h"
#include "platform/desktop/wx_message_sink.h"
#include "ui/frmMain.h"

namespace brelex {

namespace {

std::string TextOfCaughtException() {
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return "There is not enough memory for that.";
    } catch (const std::exception& failure) {
        return std::string("The operation failed: ") + failure.what();
    } catch (...) {
        return "The operation failed.";
    }
}

}  // namespace

Message MessageOfCaughtException() {
    return {TextOfCaughtException(), kAppTitle, MessageIcon::Stop, MessageButtons::Ok};
}

void TellOfCaughtException() {
    const Message message = MessageOfCaughtException();
    auto* const main = dynamic_cast<frmMain*>(wxTheApp->GetTopWindow());
    if (main != nullptr && main->IsShown()) {
        main->ShowMessage(message);
        return;
    }
    WxMessageSink(nullptr).Show(message);
}

}  // namespace brelex
