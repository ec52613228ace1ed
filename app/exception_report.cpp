// SPDX-License-Identifier: MIT
#include "app/exception_report.h"

#include <exception>
#include <new>
#include <string>

#include "database/program_values.h"

namespace brelex {

namespace {

std::string TextOfCaughtException() {
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return "There is not enough memory for that.";
    } catch (const std::exception& failure) {
        return std::string("That could not be done: ") + failure.what();
    } catch (...) {
        return "That could not be done.";
    }
}

}  // namespace

void ReportCaughtException(MessageSink& messages) {
    messages.Show({TextOfCaughtException(), kAppTitle, MessageIcon::Stop, MessageButtons::Ok});
}

}  // namespace brelex
