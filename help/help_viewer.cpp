// SPDX-License-Identifier: MIT
#include "help/help_viewer.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/filename.h>
#include <wx/filesys.h>
#include <wx/html/helpfrm.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/image.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/settings.h>
#include <wx/splitter.h>
#include <wx/textctrl.h>
#include <wx/toolbar.h>
#include <wx/treectrl.h>

#include "help/page_links.h"
#include "help/spoken_page.h"
#include "help/themed_book.h"
#include "platform/system/modShowHelp.h"
#include "platform/window/accessible_name.h"
#include "platform/window/spoken_controls.h"
#include "toolkit/app_icon.h"
#include "toolkit/wx_text.h"

namespace brelex {

namespace {

// At 96 dots per inch: the pictures in the pages are up to 602 pixels wide.
constexpr int kPageWidth = 680;
constexpr int kHeight = 660;
constexpr int kLeastWidth = 480;
constexpr int kLeastHeight = 360;

// The project file in a book, which is a ZIP archive.
const char* const kProjectInBook = "#zip:brelex.hhp";

// Needed to read the pages of a book and the pictures in them.
void AddHandlers() {
    if (wxImage::FindHandler(wxBITMAP_TYPE_PNG) == nullptr) {
        wxImage::AddHandler(new wxPNGHandler);
    }
    // The handler added last is asked first.
    static bool isAdded = false;
    if (!std::exchange(isAdded, true)) {
        wxFileSystem::AddHandler(new ThemedBook);
    }
}

bool IsBook(const wxString& url) {
    wxFileSystem files;
    const std::unique_ptr<wxFSFile> project(files.OpenFile(url));
    return project != nullptr;
}

// The tabs beside the pages; the contents are one of them. Null if a version of the toolkit has no
// tabs (3.2 has them).
wxNotebook* NotebookOf(const wxHtmlHelpWindow& help) {
    return wxDynamicCast(help.GetTreeCtrl()->GetGrandParent(), wxNotebook);
}

// The width of all tabs side by side.
int WidthOfTabs(const wxNotebook& notebook) {
    int tabs = 0;
    for (std::size_t i = 0; i < notebook.GetPageCount(); ++i) {
        // The toolkit does not reveal how much room the theme leaves around a title.
        constexpr int kTabMargins = 36;
        tabs += notebook.GetTextExtent(notebook.GetPageText(i)).x + notebook.FromDIP(kTabMargins);
    }
    return tabs;
}

// The width of the contents with all branches open, or of the tabs above them if they are wider.
int ColumnWidth(const wxHtmlHelpWindow& help) {
    wxTreeCtrl& contents = *help.GetTreeCtrl();
    contents.ExpandAll();
    contents.SetQuickBestSize(false);  // otherwise it would look only at the last titles
    contents.InvalidateBestSize();
    const int scrollBar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, &contents);
    const wxNotebook* const notebook = NotebookOf(help);
    const int tabs = notebook == nullptr ? 0 : WidthOfTabs(*notebook);
    constexpr int kEdges = 24;  // of the notebook, the page in it and the tree
    return std::max(contents.GetBestSize().x + scrollBar, tabs) + contents.FromDIP(kEdges);
}

// Gives all parts of the window their sizes before it is shown. On GTK (toolkit 3.2) most would
// otherwise get theirs only when their parent is shown. Until then they would be too small for
// their own borders and scroll bars, and GTK complains about that.
void LayOut(wxHtmlHelpFrame& frame, int column) {
    wxHtmlHelpWindow& help = *frame.GetHelpWindow();
    frame.Layout();
    help.SetSize(frame.GetClientSize());
    help.Layout();
    help.GetSplitterWindow()->SetSashPosition(column);
    wxNotebook* const notebook = NotebookOf(help);
    if (notebook == nullptr) {
        return;
    }
    notebook->GetParent()->Layout();
    for (std::size_t i = 0; i < notebook->GetPageCount(); ++i) {
        notebook->GetPage(i)->SetSize(notebook->GetClientSize());
        notebook->GetPage(i)->Layout();
    }
}

// A modal window of the viewer, such as the one for the font size; null if there is none.
wxDialog* OpenDialog() {
    for (wxWindow* const window : wxTopLevelWindows) {
        auto* const dialog = dynamic_cast<wxDialog*>(window);
        if (dialog != nullptr && dialog->IsModal()) {
            return dialog;
        }
    }
    return nullptr;
}

// The toolkit (3.2) takes the book away from the window at once. Keys and clicks still arrive until
// the window is deleted, and then the contents crash. So this keeps the book.
void CloseFrame(wxHtmlHelpFrame& frame) {
    if (wxDialog* const dialog = OpenDialog()) {
        dialog->EndModal(wxID_CANCEL);
        frame.CallAfter([&frame] { frame.Close(); });  // after the code that opened the dialog
    } else {
        frame.Destroy();
    }
}

// Moves the keyboard from the page to the tabs beside it, or back. The toolkit has no key for that.
void ChangeSides(const wxHtmlHelpWindow& help) {
    const wxNotebook* const notebook = NotebookOf(help);
    wxWindow* const beside = notebook == nullptr ? nullptr : notebook->GetCurrentPage();
    if (beside != nullptr && beside->IsShownOnScreen() && help.GetHtmlWindow()->HasFocus()) {
        beside->SetFocus();
    } else {
        help.GetHtmlWindow()->SetFocus();
    }
}

void OnKey(wxHtmlHelpFrame& frame, PageLinks& links, wxKeyEvent& event) {
    // The frame also receives the keys of the windows that it owns.
    auto* const window = wxDynamicCast(event.GetEventObject(), wxWindow);
    const bool isPlain =
        wxGetTopLevelParent(window) == &frame && event.GetModifiers() == wxMOD_NONE;
    if (window == frame.GetHelpWindow()->GetHtmlWindow() && links.HandleKey(event)) {
        return;
    }
    if (isPlain && event.GetKeyCode() == WXK_ESCAPE) {
        frame.Close();
    } else if (isPlain && event.GetKeyCode() == WXK_F6) {
        ChangeSides(*frame.GetHelpWindow());
    } else {
        event.Skip();
    }
}

// The toolkit already handles Ctrl+C, so the user can copy the whole page.
void OnPageKey(wxHtmlWindow& page, wxKeyEvent& event) {
    if (event.GetKeyCode() == 'A' && event.GetModifiers() == wxMOD_CONTROL) {
        page.SelectAll();
    } else {
        event.Skip();
    }
}

// The controls beside the pages that show no text of their own.
void NameControls(wxWindow& parent, const wxString& tab) {
    for (wxWindow* const child : parent.GetChildren()) {
        if (dynamic_cast<wxTextCtrl*>(child) != nullptr) {
            SetSpokenName(*child, tab == "Search" ? "Words to search for" : "Keyword to find");
        } else if (dynamic_cast<wxListBox*>(child) != nullptr) {
            SetSpokenName(*child, tab == "Search" ? "Pages found" : "Keywords");
        }
    }
}

// The toolkit draws the pages and leaves most of the controls without names.
void DescribeToReaders(wxHtmlHelpWindow& help) {
    SpeakPages(*help.GetHtmlWindow());
    SpeakTree(*help.GetTreeCtrl());
    for (wxWindow* const child : help.GetChildren()) {
        if (auto* const tools = dynamic_cast<wxToolBar*>(child)) {
            NameToolsByTips(*tools);
        }
    }
    // These would be said for the areas that only hold others.
    help.SetLabel(wxEmptyString);
    help.GetSplitterWindow()->SetLabel(wxEmptyString);
    wxNotebook* const notebook = NotebookOf(help);
    if (notebook == nullptr) {
        return;
    }
    notebook->GetParent()->SetLabel(wxEmptyString);
    for (std::size_t i = 0; i < notebook->GetPageCount(); ++i) {
        notebook->GetPage(i)->SetLabel(wxEmptyString);
        NameControls(*notebook->GetPage(i), notebook->GetPageText(i));
    }
}

// Light text on a dark ground is no use on paper.
void Print(wxHtmlHelpWindow& help, wxCommandEvent& event) {
    static bool isPrinting = false;
    if (std::exchange(isPrinting, true)) {
        event.Skip();  // to the toolkit's own code
        return;
    }
    const ThemedBook::OnPaper onPaper;
    help.ProcessWindowEvent(event);
    isPrinting = false;
}

void BindEvents(wxHtmlHelpFrame& frame) {
    wxHtmlHelpWindow& help = *frame.GetHelpWindow();
    wxHtmlWindow& page = *help.GetHtmlWindow();
    frame.Bind(wxEVT_CLOSE_WINDOW, [&frame](wxCloseEvent&) { CloseFrame(frame); });
    const auto links = std::make_shared<PageLinks>(page);
    frame.Bind(wxEVT_CHAR_HOOK,
               [&frame, links](wxKeyEvent& event) { OnKey(frame, *links, event); });
    help.Bind(
        wxEVT_TOOL, [&help](wxCommandEvent& event) { Print(help, event); }, wxID_HTML_PRINT);
    page.Bind(wxEVT_KEY_DOWN, [&page](wxKeyEvent& event) { OnPageKey(page, event); });
}

}  // namespace

HelpViewer::HelpViewer()
    : wxHtmlHelpController(wxHF_DEFAULT_STYLE & ~(wxHF_OPEN_FILES | wxHF_BOOKMARKS)) {
    SetTitleFormat(kHelpTitle);
    SetShouldPreventAppExit(true);
}

bool HelpViewer::Show(const wxString& bookPath, const wxString& page) {
    AddHandlers();
    const wxString url = wxFileSystem::FileNameToURL(wxFileName(bookPath)) + kProjectInBook;
    if (!wxFileName::FileExists(bookPath) || !IsBook(url) || !AddBook(url)) {
        return false;
    }
    DisplayContents();
    TurnTo(page);
    GetHelpWindow()->GetHtmlWindow()->SetFocus();  // so that keys scroll the page
    return true;
}

void HelpViewer::TurnTo(const wxString& page) {
    if (!page.empty() && page.find_first_of(":/\\") == wxString::npos) {
        GetHelpWindow()->Display(page);
    }
}

wxHtmlHelpFrame* HelpViewer::CreateHelpFrame(wxHtmlHelpData* data) {
    wxHtmlHelpFrame* const frame = wxHtmlHelpController::CreateHelpFrame(data);
    frame->SetName("frmHelp");
    frame->SetIcons(AppIcons());
    BindEvents(*frame);
    DescribeToReaders(*frame->GetHelpWindow());

    const int column = ColumnWidth(*frame->GetHelpWindow());
    // Sets the size of the inside. With a given outer size, the toolkit (3.2) would first lay the
    // window out at almost no size under X11.
    const wxSize screen = wxDisplay(frame).GetClientArea().GetSize();
    frame->SetClientSize(std::min(column + frame->FromDIP(kPageWidth), screen.x),
                         std::min(frame->FromDIP(kHeight), screen.y));
    // GTK complains about the parts of a window that has no room for them.
    frame->SetMinClientSize(frame->FromDIP(wxSize(kLeastWidth, kLeastHeight)));
    frame->CentreOnScreen();
    LayOut(*frame, column);
    return frame;
}

}  // namespace brelex
