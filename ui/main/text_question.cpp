// SPDX-License-Identifier: MIT
#include "ui/main/text_question.h"

#include <cstddef>

#include <wx/display.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "platform/window/accessible_name.h"
#include "platform/window/spoken_object.h"
#include "toolkit/app_icon.h"

namespace brelex {

namespace {

// The buttons in the system's order. The toolkit's own row does not end below the edge of the
// field.
wxSizer* RowOfButtons(wxSizer* system, int gap) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->AddStretchSpacer();
    for (std::size_t i = 0; i < system->GetItemCount();) {
        wxWindow* const button = system->GetItem(i)->GetWindow();
        if (button == nullptr) {
            ++i;
            continue;
        }
        system->Detach(button);
        row->Add(button, 0, row->GetItemCount() > 1 ? wxLEFT : 0, gap);
    }
    delete system;
    return row;
}

}  // namespace

// Builds the toolkit's dialog from its parts, because the toolkit's own layout would make the
// window resizable.
TextQuestion::TextQuestion(wxWindow* owner, const wxString& title, const wxString& prompt,
                           const wxString& proposed) {
    constexpr int kAnswerWidth = 300;
    constexpr int kMargin = 12;
    wxDialog::Create(owner, wxID_ANY, title);
    SetName("TextQuestion");
    SetIcons(AppIcons());
    MakeSpokenDialog(*this);
    m_dialogStyle = wxOK | wxCANCEL;
    m_value = proposed;

    auto* lblPrompt = new wxStaticText(this, wxID_ANY, wxEmptyString);
    lblPrompt->SetLabelText(prompt);
    lblPrompt->Wrap(wxDisplay(owner).GetClientArea().width / 2);
    m_textctrl = Named(new wxTextCtrl(this, wxID_ANY, proposed, wxDefaultPosition,
                                      FromDIP(wxSize(kAnswerWidth, -1))),
                       "txtAnswer", prompt);

    const int gap = FromDIP(kMargin);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(lblPrompt, 0, wxLEFT | wxTOP | wxRIGHT, gap);
    all->Add(m_textctrl, 0, wxEXPAND | wxALL, gap);
    all->Add(RowOfButtons(CreateStdDialogButtonSizer(m_dialogStyle), gap), 0,
             wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    SetSizerAndFit(all);
    CentreOnParent();
}

bool TextQuestion::TransferDataToWindow() {
    const bool done = wxTextEntryDialog::TransferDataToWindow();
    m_textctrl->SelectAll();
    return done;
}

}  // namespace brelex
