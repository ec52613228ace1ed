// SPDX-License-Identifier: MIT
#include "platform/desktop/message_box.h"

#include <gtk/gtk.h>

#include "platform/desktop/lone_window_gtk.h"

namespace brelex {

namespace {

struct Kind {
    GtkMessageType type;   // a screen reader announces this
    const char* iconName;  // null for none
};

Kind KindOf(long style) {
    switch (style & wxICON_MASK) {
        case wxICON_INFORMATION:
            return {GTK_MESSAGE_INFO, "dialog-information"};
        case wxICON_QUESTION:
            return {GTK_MESSAGE_QUESTION, "dialog-question"};
        case wxICON_EXCLAMATION:
            return {GTK_MESSAGE_WARNING, "dialog-warning"};
        case wxICON_ERROR:
            return {GTK_MESSAGE_ERROR, "dialog-error"};
        default:
            return {GTK_MESSAGE_OTHER, nullptr};
    }
}

void AddIcon(GtkMessageDialog* box, const char* iconName) {
    GtkWidget* const icon = gtk_image_new_from_icon_name(iconName, GTK_ICON_SIZE_DIALOG);
    gtk_widget_set_valign(icon, GTK_ALIGN_START);
    gtk_widget_show(icon);
    // GTK 3 discourages icons in its message boxes, but has no other way to show one.
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS
    gtk_message_dialog_set_image(box, icon);
    G_GNUC_END_IGNORE_DEPRECATIONS
}

// Lets the user copy the text of the box.
void MakeTextSelectable(GtkMessageDialog* box) {
    GList* const parts =
        gtk_container_get_children(GTK_CONTAINER(gtk_message_dialog_get_message_area(box)));
    for (GList* part = parts; part != nullptr; part = part->next) {
        if (GTK_IS_LABEL(part->data)) {
            gtk_label_set_selectable(GTK_LABEL(part->data), TRUE);
        }
    }
    g_list_free(parts);
}

GtkWidget* NewBox(GtkWindow* owner, const wxMessageDialog& content) {
    const long style = content.GetMessageDialogStyle();
    const bool question = (style & wxYES_NO) == wxYES_NO;
    const Kind kind = KindOf(style);
    GtkWidget* const box = gtk_message_dialog_new(owner, GTK_DIALOG_MODAL, kind.type,
                                                  question ? GTK_BUTTONS_YES_NO : GTK_BUTTONS_OK,
                                                  "%s", content.GetMessage().utf8_str().data());
    gtk_window_set_title(GTK_WINDOW(box), content.GetTitle().utf8_str());
    gtk_dialog_set_default_response(GTK_DIALOG(box), question ? GTK_RESPONSE_YES : GTK_RESPONSE_OK);
    MakeTextSelectable(GTK_MESSAGE_DIALOG(box));
    if (kind.iconName != nullptr) {
        AddIcon(GTK_MESSAGE_DIALOG(box), kind.iconName);
    }
    if (owner == nullptr) {
        MakeFindable(GTK_WINDOW(box));
        gtk_window_set_keep_above(GTK_WINDOW(box), TRUE);
    }
    return box;
}

}  // namespace

int SystemMessageBox::ShowModal() {
    // The toolkit shows, runs and destroys a box that already exists.
    if (m_widget == nullptr) {
        m_parent = GetParentForModalDialog(m_parent, 0);
        m_widget = NewBox(m_parent != nullptr ? GTK_WINDOW(m_parent->GetHandle()) : nullptr, *this);
        g_object_ref(m_widget);
    }
    return wxMessageDialog::ShowModal();
}

}  // namespace brelex
