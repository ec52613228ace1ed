// SPDX-License-Identifier: MIT
#include "app/brevilexicon_app.h"

#include <wx/datetime.h>

#include "database/program_values.h"
#include "platform/command_line.h"
#include "platform/modRunAtStartup.h"
#include "platform/program_folder.h"
#include "ui/frmMain.h"
#include "ui/wx_folder_picker.h"
#include "ui/wx_message_sink.h"
#include "ui/wx_text.h"

namespace brelex {

namespace {

float SecondsSinceMidnight() {
    const wxDateTime now = wxDateTime::UNow();
    return static_cast<float>(now.GetHour() * 3600 + now.GetMinute() * 60 + now.GetSecond()) +
           static_cast<float>(now.GetMillisecond()) / 1000.0F;
}

}  // namespace

bool BrevilexiconApp::OnInit() {
    SetAppName("brevilexicon");
    SetAppDisplayName(kAppTitle);
    WxMessageSink messages(nullptr);
    WxFolderPicker picker;
    frmMain* const main = startUp_.Run({messages, picker, files_, ProgramFolder(),
                                        Utf8Text(ArgumentText(argv.GetArguments())),
                                        SecondsSinceMidnight, SetRunAtStartup});
    if (main == nullptr) {
        return false;
    }
    SetTopWindow(main);
    main->Show();
    return true;
}

}  // namespace brelex
