// SPDX-License-Identifier: MIT
#include "app/start_up.h"

#include <wx/app.h>

#include "app/configured_app_info.h"
#include "base/scope.h"
#include "database/locate_database.h"
#include "database/modDataLoader.h"
#include "platform/system/user_locale.h"
#include "ui/frmSplash.h"

namespace brelex {

frmMain* StartUp::Run(const StartUpSurroundings& surroundings) {
    if (!IsFirstCopy(surroundings.messages)) {
        return nullptr;
    }
    SetValues();
    if (!LocateDatabase(values_, surroundings.programFolder, surroundings.picker,
                        surroundings.messages)) {
        return nullptr;
    }
    auto* const splash = new frmSplash(values_.info);
    // Also if memory runs out: GTK would leave a message that is wholly in front of it empty.
    const OnLeaving closed([splash] {
        splash->Hide();
        splash->Destroy();
    });
    splash->Show();
    splash->WaitUntilSeen();
    frmMain* const main =
        Load(*splash, surroundings) ? new frmMain(values_, surroundings) : nullptr;
    wxTheApp->SetTopWindow(main);
    return main;
}

bool StartUp::IsFirstCopy(MessageSink& messages) {
    instance_ = std::make_unique<InstanceGuard>();
    if (instance_->IsAnotherRunning()) {
        messages.Show({std::string("An instance of ") + kAppTitle + " is running already",
                       kAppTitle, MessageIcon::Exclamation, MessageButtons::Ok});
        return false;
    }
    return true;
}

void StartUp::SetValues() {
    values_.info = ConfiguredAppInfo();
    values_.groupSeparator = UserGroupSeparator();
    values_.decimalSeparator = UserDecimalSeparator();
    values_.AppVersion = AppVersionOf(values_.info);
    values_.AcronymList = &store_;
}

bool StartUp::Load(frmSplash& splash, const StartUpSurroundings& surroundings) {
    const float before = surroundings.secondsSinceMidnight();
    if (!LoadDatabase(values_, store_, {surroundings.files, splash, surroundings.messages})) {
        return false;
    }
    values_.LoadingTime = LoadingTimeBetween(before, surroundings.secondsSinceMidnight());
    return true;
}

}  // namespace brelex
