// SPDX-License-Identifier: MIT
// brelex-help FILE PAGE: shows the help book in FILE, or the book beside this program, at PAGE or
// at its first page. "brelex-help --register" makes this program open help books for the current
// user; "--unregister" undoes that.
#include <memory>
#include <string>

#include <wx/app.h>
#include <wx/filename.h>
#include <wx/filesys.h>
#include <wx/html/helpfrm.h>
#include <wx/msgdlg.h>
#include <wx/stdpaths.h>

#include "base/app_info.h"
#include "help/help_viewer.h"
#include "platform/desktop/help_association.h"
#include "platform/desktop/help_viewer_place.h"
#include "platform/desktop/program_identity.h"
#include "platform/desktop/unopened_menus.h"
#include "platform/system/library_search.h"
#include "platform/system/modShowHelp.h"
#include "platform/system/program_folder.h"
#include "platform/window/activation_token.h"
#include "platform/window/bring_forward.h"
#include "platform/window/focus_marks.h"
#include "toolkit/wx_text.h"

namespace brelex {

// Not in the unnamed namespace, because the toolkit's macro defines a function that returns it.
class HelpApp final : public wxApp {
  public:
    bool Initialize(int& argumentCount, wxChar** arguments) override {
        LoadNoLibrariesFromCurrentFolder();
        SetDesktopEntry(kHelpApplicationId);
        place_ = std::make_unique<HelpViewerPlace>();
        return wxApp::Initialize(argumentCount, arguments);
    }

    bool OnInit() override {
        SetAppName(kProgram);
        SetSpokenProgramName(kHelpTitle);
        MakeFocusMarksSeen();
        LetGoOfUnopenedMenus();
        const wxString argument = Argument(1);
        if (argument == "--register" || argument == "--unregister") {
            done_ = OpenHelpFilesWith(argument == "--register"
                                          ? Utf8Text(wxStandardPaths::Get().GetExecutablePath())
                                          : std::string());
            return true;
        }
        return ShowBook(argument.empty() ? BookBesideProgram() : argument, Argument(2));
    }

    // Without a window, no event would end the loop.
    int OnRun() override {
        if (GetTopWindow() != nullptr) {
            return wxApp::OnRun();
        }
        return done_ ? 0 : 1;
    }

  private:
    static constexpr const char* kProgram = "brelex-help";

    static wxString BookBesideProgram() { return WxText(ProgramFolder() + kHelpFileName); }

    // Returns an argument. Empty if there is none.
    [[nodiscard]] wxString Argument(int number) const {
        return argc > number ? argv[number] : wxString();
    }

    // The viewer that the user already has shows the book, if it is the same one.
    bool ShowBook(const wxString& path, const wxString& page) {
        const wxFileName book =
            path.StartsWith("file:") ? wxFileSystem::URLToFileName(path) : wxFileName(path);
        const std::string file = Utf8Text(book.GetFullPath());
        if (!place_->Take(file) && place_->ShowInOther(file, Utf8Text(page))) {
            done_ = true;
            return true;
        }
        if (!viewer_.Show(book.GetFullPath(), page)) {
            wxMessageBox("Cannot open the Help file \"" + book.GetFullPath() + "\".", kAppTitle,
                         wxOK | wxICON_EXCLAMATION);
            return false;
        }
        SetTopWindow(viewer_.GetFrame());
        Serve(*viewer_.GetFrame());
        return true;
    }

    // Requests end when the window is asked to close.
    void Serve(wxFrame& frame) {
        place_->Serve(
            frame, {.comeForward =
                        [&frame](const std::string& token) {
                            UseActivationToken(token);
                            BringForward(frame);
                        },
                    .turnTo = [this](const std::string& page) { viewer_.TurnTo(WxText(page)); }});
    }

    std::unique_ptr<HelpViewerPlace> place_;
    HelpViewer viewer_;
    bool done_ = false;  // a registration was requested and succeeded
};

}  // namespace brelex

// NOLINTNEXTLINE: the toolkit's macro
wxIMPLEMENT_APP(brelex::HelpApp);
