// SPDX-License-Identifier: MIT
#include "app/start_up.h"

#include "app/configured_app_info.h"
#include "database/locate_database.h"
#include "platform/system/user_locale.h"
#include "ui/frmMain.h"
#include "ui/frmSplash.h"

namespace brelex {

frmMain* StartUp::Run(const StartUpSurroundings& surroundings) {
    instance_ = std::make_unique<InstanceGuard>();
    if (instance_->IsAnotherRunning()) {
        surroundings.messages.Show(
            {std::string("An instance of ") + kAppTitle + " is running already", kAppTitle,
             MessageIcon::Exclamation, MessageButtons::Ok});
        return nullptr;
    }
    values_.info = ConfiguredAppInfo();
    values_.groupSeparator = UserGroupSeparator();
    values_.decimalSeparator = UserDecimalSeparator();
    if (!LocateDatabase(values_, surroundings.programFolder, surroundings.picker,
                        surroundings.messages)) {
        return nullptr;
    }
    auto* splash = new frmSplash(values_.info);
    splash->Show();
    values_.AcronymList = &store_;
    values_.AppVersion = AppVersionOf(values_.info);
    // Made while the desktop brings the splash window up; the loading waits until that is seen.
    auto* main = new frmMain(values_, store_);
    splash->WaitUntilSeen();
    const MainSurroundings mainSurroundings{
        surroundings.files,
        surroundings.desktop,
        surroundings.programName,
        surroundings.messages,
        surroundings.secondsSinceMidnight,
        surroundings.commandLine,
        [this, set = surroundings.setRunAtStartup, name = surroundings.programName](bool enable) {
            return set(values_.AppFolder, name, enable);
        }};
    if (!main->Load(*splash, mainSurroundings)) {
        splash->Destroy();
        main->Destroy();
        return nullptr;
    }
    return main;
}

}  // namespace brelex
