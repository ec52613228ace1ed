// SPDX-License-Identifier: MIT
#include "app/brevilexicon_app.h"

#include <wx/datetime.h>
#include <wx/image.h>

#include "app/app_info.h"
#include "database/locate_database.h"
#include "platform/program_folder.h"
#include "platform/user_locale.h"
#include "ui/frmMain.h"
#include "ui/frmSplash.h"
#include "ui/modBrowseFolder.h"
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
    instance_ = std::make_unique<InstanceGuard>();
    if (instance_->IsAnotherRunning()) {
        messages.Show({std::string("An instance of ") + kAppTitle + " is running already",
                       kAppTitle, MessageIcon::Exclamation, MessageButtons::Ok});
        return false;
    }
    values_.groupSeparator = UserGroupSeparator();
    values_.info = ConfiguredAppInfo();
    DesktopFolderPicker picker;
    if (!LocateDatabase(values_, ProgramFolder(), picker, messages)) {
        return false;
    }
    auto* splash = new frmSplash(values_.info);
    splash->ShowAndPaint();
    values_.AcronymList = &store_;
    values_.AppVersion = AppVersionOf(values_.info);
    auto* main = new frmMain(values_, store_);
    SetTopWindow(main);
    if (!main->Load(*splash, {files_, SecondsSinceMidnight, CommandLine()})) {
        splash->Destroy();
        main->Destroy();
        return false;
    }
    main->Show();
    return true;
}

std::string BrevilexiconApp::CommandLine() const {
    wxString text;
    for (int i = 1; i < argc; ++i) {
        text += (i > 1 ? " " : "") + wxString(argv[i]);
    }
    return Utf8Text(text);
}

}  // namespace brelex
