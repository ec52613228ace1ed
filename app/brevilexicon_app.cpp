// SPDX-License-Identifier: MIT
#include "app/brevilexicon_app.h"

#include <cstdlib>

#include <wx/clipbrd.h>
#include <wx/datetime.h>

#include "app/exception_report.h"
#include "base/app_info.h"
#include "database/program_values.h"
#include "platform/desktop/command_line.h"
#include "platform/desktop/ending_signals.h"
#include "platform/desktop/program_identity.h"
#include "platform/desktop/wx_folder_picker.h"
#include "platform/desktop/wx_message_sink.h"
#include "platform/system/library_search.h"
#include "platform/system/modRunAtStartup.h"
#include "platform/system/program_folder.h"
#include "platform/window/focus_marks.h"
#include "platform/window/font_reading.h"
#include "toolkit/wx_text.h"

namespace brelex {

namespace {

float SecondsSinceMidnight() {
    const wxDateTime now = wxDateTime::UNow();
    return static_cast<float>(now.GetHour() * 3600 + now.GetMinute() * 60 + now.GetSecond()) +
           static_cast<float>(now.GetMillisecond()) / 1000.0F;
}

}  // namespace

// The fonts are read while the toolkit initializes itself and reads the theme.
bool BrevilexiconApp::Initialize(int& argumentCount, wxChar** arguments) {
    LoadNoLibrariesFromCurrentFolder();
    StartReadingFonts();
    SetDesktopEntry(kApplicationId);
    return wxApp::Initialize(argumentCount, arguments);
}

bool BrevilexiconApp::OnInit() {
    SetAppName("brevilexicon");
    SetAppDisplayName(kAppTitle);
    SetSpokenProgramName(kAppTitle);
    MakeFocusMarksSeen();
    PrepareForEndingSignals([this] { PrepareForSuddenEnd(); });
    Bind(wxEVT_END_SESSION, &BrevilexiconApp::OnEndOfSession, this);
    WxMessageSink messages(nullptr);
    WxFolderPicker picker;
    frmMain* const main =
        startUp_.Run({{files_, desktop_, ProgramName(), Utf8Text(ArgumentText(argv.GetArguments())),
                       SetRunAtStartup},
                      messages,
                      picker,
                      ProgramFolder(),
                      SecondsSinceMidnight});
    if (main == nullptr) {
        return false;
    }
    main->Show();
    return true;
}

// The texts are English whatever the user's language is. The toolkit comes to the same answer, but
// makes a table of all languages first.
wxLayoutDirection BrevilexiconApp::GetLayoutDirection() const {
    return wxLayout_LeftToRight;
}

void BrevilexiconApp::PrepareForSuddenEnd() {
    if (auto* const main = dynamic_cast<frmMain*>(GetTopWindow())) {
        main->CloseHelpViewer();
    }
    startUp_.GiveUpPlace();
}

// By default, the toolkit would destroy everything first, also what the code of an open modal
// window is still using.
void BrevilexiconApp::OnEndOfSession(wxCloseEvent& /*event*/) {
    PrepareForSuddenEnd();
    std::_Exit(EXIT_SUCCESS);
}

int BrevilexiconApp::OnExit() {
    // What the user copied stays on the clipboard if the desktop keeps it. Asking for that runs an
    // event loop on GTK, so it waits until no window is left.
    wxTheClipboard->Flush();
    return wxApp::OnExit();
}

// Abandons only the operation that failed. The rest of the program goes on.
bool BrevilexiconApp::OnExceptionInMainLoop() {
    TellOfCaughtException();
    return true;
}

// Something failed outside of any event, for example during start-up. That ends the program.
void BrevilexiconApp::OnUnhandledException() {
    TellOfCaughtException();
}

}  // namespace brelex
