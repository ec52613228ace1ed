// SPDX-License-Identifier: MIT
#include "platform/window/style_sheet_gtk.h"

namespace brelex {

namespace {

GtkStyleProvider* NewProvider(const char* rules) {
    GtkCssProvider* const provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, rules, -1, nullptr);
    return GTK_STYLE_PROVIDER(provider);
}

}  // namespace

void AddStyle(GtkWidget& widget, const char* rules) {
    GtkStyleProvider* const provider = NewProvider(rules);
    gtk_style_context_add_provider(gtk_widget_get_style_context(&widget), provider,
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
}

void AddStyleToProgram(const char* rules) {
    GtkStyleProvider* const provider = NewProvider(rules);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), provider,
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
}

}  // namespace brelex
