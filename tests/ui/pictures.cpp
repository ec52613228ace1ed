// SPDX-License-Identifier: MIT
#include "tests/ui/pictures.h"

#include <cstdlib>

#include <wx/arrstr.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/textctrl.h>

#include "tests/ui/ui_test_support.h"
#include "toolkit/app_icon.h"

namespace brelex {

namespace {

wxImage OverBlack(const wxBitmap& picture) {
    wxBitmap bitmap(picture.GetSize(), 24);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxBLACK_BRUSH);
    dc.Clear();
    dc.DrawBitmap(picture, 0, 0);
    dc.SelectObject(wxNullBitmap);
    return bitmap.ConvertToImage();
}

bool AreNear(const wxColour& one, const wxColour& other) {
    constexpr int kNear = 12;
    return std::abs(one.Red() - other.Red()) <= kNear &&
           std::abs(one.Green() - other.Green()) <= kNear &&
           std::abs(one.Blue() - other.Blue()) <= kNear;
}

}  // namespace

double Likeness(const wxImage& one, const wxImage& other) {
    if (!one.IsOk() || !other.IsOk() || one.GetSize() != other.GetSize()) {
        return 0;
    }
    int same = 0;
    for (int y = 0; y < one.GetHeight(); ++y) {
        for (int x = 0; x < one.GetWidth(); ++x) {
            same += AreNear(ColourAt(one, x, y), ColourAt(other, x, y)) ? 1 : 0;
        }
    }
    return same / static_cast<double>(one.GetWidth() * one.GetHeight());
}

bool ShowsTheProgramsIcon(SystemWindow window) {
    constexpr int kSize = 32;
    constexpr double kSame = 0.9;
    return Likeness(IconOf(window, kSize), OverBlack(AppIcon(kSize).GetBitmap({kSize, kSize}))) >
           kSame;
}

int RowsAboveText(const wxWindow& box) {
    constexpr int kEdge = 3;
    wxRect area = box.GetScreenRect();
    area.width /= 2;  // without the scroll bar
    area.Deflate(kEdge, kEdge);
    const wxImage image = PictureOfScreen(area);
    const wxColour ground = ColourAt(image, 0, 0);
    for (int y = 0; y < image.GetHeight(); ++y) {
        for (int x = 0; x < image.GetWidth(); ++x) {
            if (!AreNear(ColourAt(image, x, y), ground)) {
                return y + kEdge;
            }
        }
    }
    return area.height;
}

std::set<int> ColumnsOfMeanings(const wxTextCtrl& box) {
    std::set<int> columns;
    long row = 0;
    for (const wxString& line : wxSplit(box.GetValue(), '\n', '\0')) {
        const wxArrayString parts = wxSplit(line, '\t', '\0');
        if (parts.size() >= 3) {
            const auto column = static_cast<long>(line.length() - parts.back().length());
            columns.insert(LeftOfCharacter(box, row, column));
        }
        ++row;
    }
    return columns;
}

int InkIn(const wxImage& image, const wxColour& background, const wxRect& area) {
    int ink = 0;
    for (int y = area.GetTop(); y <= area.GetBottom(); ++y) {
        for (int x = area.GetLeft(); x <= area.GetRight(); ++x) {
            ink += ColourAt(image, x, y) == background ? 0 : 1;
        }
    }
    return ink;
}

}  // namespace brelex
