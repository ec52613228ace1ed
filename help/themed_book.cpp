// SPDX-License-Identifier: MIT
#include "help/themed_book.h"

#include <cstddef>
#include <memory>
#include <string>

#include <wx/colour.h>
#include <wx/filesys.h>
#include <wx/mstream.h>
#include <wx/settings.h>
#include <wx/sstream.h>

#include "toolkit/wx_text.h"

namespace brelex {

namespace {

bool isOnPaper = false;

std::string BodyTag(bool isDark) {
    const auto colour = [](wxSystemColour which) {
        return Utf8Text(wxSystemSettings::GetColour(which).GetAsString(wxC2S_HTML_SYNTAX));
    };
    return "<body bgcolor=\"" + colour(wxSYS_COLOUR_WINDOW) + "\" text=\"" +
           colour(wxSYS_COLOUR_WINDOWTEXT) + "\" link=\"" + (isDark ? "#78aeed" : "#0000c0") +
           "\">";
}

// The page with the user's colors in its body tag.
std::string Themed(std::string page, bool isDark) {
    const std::size_t begin = page.find("<body");
    const std::size_t end = begin == std::string::npos ? begin : page.find('>', begin);
    if (end != std::string::npos) {
        page.replace(begin, end + 1 - begin, BodyTag(isDark));
    }
    return page;
}

}  // namespace

wxFSFile* ThemedBook::OpenFile(wxFileSystem& files, const wxString& location) {
    const bool isDark = wxSystemSettings::GetAppearance().IsUsingDarkBackground();
    if (isOnPaper) {
        return wxZipFSHandler::OpenFile(files, location);
    }
    wxString place = location;
    if (isDark) {
        place.Replace("pictures/light/", "pictures/dark/");
    }
    std::unique_ptr<wxFSFile> file(wxZipFSHandler::OpenFile(files, place));
    if (file == nullptr || file->GetMimeType() != "text/html") {
        return file.release();
    }
    wxStringOutputStream content;
    file->GetStream()->Read(content);
    const std::string page = Themed(Utf8Text(content.GetString()), isDark);
    auto themed = std::make_unique<wxMemoryOutputStream>();
    themed->Write(page.data(), page.size());
    return new wxFSFile(new wxMemoryInputStream(*themed), file->GetLocation(), file->GetMimeType(),
                        file->GetAnchor(), file->GetModificationTime());
}

ThemedBook::OnPaper::OnPaper() {
    isOnPaper = true;
}

ThemedBook::OnPaper::~OnPaper() {
    isOnPaper = false;
}

wxIMPLEMENT_DYNAMIC_CLASS(ThemedBook, wxZipFSHandler)  // NOLINT: the toolkit's macro

}  // namespace brelex
