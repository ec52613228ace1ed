// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>

#include <gtest/gtest.h>

#include <wx/app.h>
#include <wx/init.h>

#include "app/exception_report.h"
#include "tests/ui/ui_test_support.h"

// Runs the tests inside the event loop, as simulated events need a running one. Not in an unnamed
// namespace: the toolkit's macro makes a function that returns it.
class TestApp final : public wxApp {
  public:
    bool OnInit() override {
        SetExitOnFrameDelete(false);
        CallAfter([this] {
            result_ = RUN_ALL_TESTS();
            ExitMainLoop();
        });
        return true;
    }

    int OnRun() override {
        wxApp::OnRun();
        return result_;
    }

    bool OnExceptionInMainLoop() override {
        if (brelex::ExpectedExceptions::count == 0) {
            ADD_FAILURE() << brelex::MessageOfCaughtException().text;
        } else {
            brelex::TellOfCaughtException();
        }
        return true;
    }

    // A failed assertion of the toolkit is a failed test, not a dialog.
    void OnAssertFailure(const wxChar* file, int line, const wxChar* function,
                         const wxChar* condition, const wxChar* message) override {
        ADD_FAILURE() << wxString(file) << ":" << line << " " << wxString(function) << " "
                      << wxString(condition) << " " << wxString(message);
    }

  private:
    int result_ = 1;
};

wxIMPLEMENT_APP_NO_MAIN(TestApp);

namespace {

bool finished = false;

// Something ended the program in the middle of the tests: that is no success.
void FailIfUnfinished() {
    if (!finished) {
        std::fputs("ui_tests: ended before the last test\n", stderr);
        std::_Exit(1);
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::atexit(&FailIfUnfinished);
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {  // needs no display
        finished = true;
        return RUN_ALL_TESTS();
    }
    constexpr int kSkipped = 77;  // how ctest is told that there is no display
    if (!wxEntryStart(argc, argv)) {
        finished = true;
        return kSkipped;
    }
    wxTheApp->CallOnInit();
    const int result = wxTheApp->OnRun();
    finished = true;
    wxTheApp->OnExit();
    wxEntryCleanup();
    return result;
}
