// SPDX-License-Identifier: MIT
// brelex-help FILE: shows the help book in FILE, or the one beside this program.
// "brelex-help --register" has it open the help of this user's programs, "--unregister" no longer.
#include <memory>

#include <wx/app.h>
#include <wx/filename.h>
#include <wx/filesys.h>
#include <wx/fs_zip.h>
#include <wx/html/helpctrl.h>
#include <wx/html/helpfrm.h>
#include <wx/image.h>
#include <wx/msgdlg.h>
#include <wx/stdpaths.h>
#include <wx/treectrl.h>

#include "database/program_values.h"
#include "platform/help_association.h"
#include "platform/modShowHelp.h"
#include "platform/program_folder.h"
#include "ui/app_icon.h"
#include "ui/wx_text.h"

namespace brelex {

namespace {

// At 96 dots per inch. The pictures in the pages are up to 600 pixels wide.
constexpr int kWidth = 940;
constexpr int kHeight = 660;

// The project file in a book, which is a ZIP archive.
const char* const kProjectInBook = "#zip:brelex.hhp";

}  // namespace

// Not in the unnamed namespace: the toolkit's macro makes a function that returns it.
class HelpApp final : public wxApp {
  public:
    bool OnInit() override {
        SetAppName("brelex-help");
        const wxString argument = argc > 1 ? argv[1] : wxString();
        if (argument == "--register" || argument == "--unregister") {
            done_ = OpenHelpFilesWith(argument == "--register"
                                          ? Utf8Text(wxStandardPaths::Get().GetExecutablePath())
                                          : std::string());
            return true;
        }
        wxImage::AddHandler(new wxPNGHandler);
        wxFileSystem::AddHandler(new wxZipFSHandler);
        return ShowBook(argument.empty() ? BookBesideProgram() : argument);
    }

    // Without a window there is nothing to run.
    int OnRun() override {
        if (GetTopWindow() != nullptr) {
            return wxApp::OnRun();
        }
        return done_ ? 0 : 1;
    }

  private:
    static wxString BookBesideProgram() { return WxText(ProgramFolder() + kHelpFileName); }

    bool ShowBook(const wxString& path) {
        const wxFileName book =
            path.StartsWith("file:") ? wxFileSystem::URLToFileName(path) : wxFileName(path);
        controller_.SetTitleFormat(kHelpTitle);
        controller_.SetShouldPreventAppExit(true);
        const wxString url = wxFileSystem::FileNameToURL(book) + kProjectInBook;
        if (!book.FileExists() || !IsBook(url) || !controller_.AddBook(url)) {
            wxMessageBox("Cannot open the Help file \"" + book.GetFullPath() + "\".", kAppTitle,
                         wxOK | wxICON_EXCLAMATION);
            return false;
        }
        controller_.DisplayContents();
        if (wxHtmlHelpFrame* const frame = controller_.GetFrame()) {
            frame->SetName("frmHelp");
            frame->SetIcons(AppIcons());
            frame->SetSize(frame->FromDIP(wxSize(kWidth, kHeight)));
            frame->CentreOnScreen();
            ShowWholeContents(*frame);
            SetTopWindow(frame);
        }
        return true;
    }

    // Opens the branches of the contents, which are few.
    static void ShowWholeContents(wxWindow& window) {
        if (auto* const tree = dynamic_cast<wxTreeCtrl*>(&window)) {
            tree->ExpandAll();
        }
        for (wxWindow* const child : window.GetChildren()) {
            ShowWholeContents(*child);
        }
    }

    static bool IsBook(const wxString& url) {
        wxFileSystem files;
        const std::unique_ptr<wxFSFile> project(files.OpenFile(url));
        return project != nullptr;
    }

    wxHtmlHelpController controller_{wxHF_DEFAULT_STYLE & ~(wxHF_OPEN_FILES | wxHF_BOOKMARKS)};
    bool done_ = false;  // what was asked for instead of a window
};

}  // namespace brelex

// NOLINTNEXTLINE: the toolkit's macro
wxIMPLEMENT_APP(brelex::HelpApp);
