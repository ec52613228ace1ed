// SPDX-License-Identifier: MIT
#include "desktop_search/shell_search.h"

#include <cstdint>
#include <string>
#include <vector>

#include "base/windows1252.h"
#include "database/record_text.h"
#include "lookup/desktop_answers.h"

namespace brelex {

namespace {

std::vector<std::string> TextsOf(GVariant* parameters, gsize index) {
    GVariant* const list = g_variant_get_child_value(parameters, index);
    std::vector<std::string> texts;
    GVariantIter iterator;
    g_variant_iter_init(&iterator, list);
    const char* text = nullptr;
    while (g_variant_iter_next(&iterator, "&s", &text) != FALSE) {
        texts.emplace_back(text);
    }
    g_variant_unref(list);
    return texts;
}

// The shell takes the typed text apart at its blanks.
std::string TypedText(GVariant* parameters, gsize index) {
    std::string typed;
    for (const std::string& term : TextsOf(parameters, index)) {
        typed += (typed.empty() ? "" : " ") + term;
    }
    return typed;
}

GVariant* ResultSet(const RowList& rows, const std::string& typed) {
    GVariantBuilder ids;
    g_variant_builder_init(&ids, G_VARIANT_TYPE_STRING_ARRAY);
    for (const std::int32_t row : AnswersTo(rows, typed)) {
        g_variant_builder_add(&ids, "s", AnswerId(rows.RowText(row)).c_str());
    }
    return g_variant_new("(as)", &ids);
}

// Entries that are no longer there are left out.
GVariant* ResultMetas(const RowList& rows, const std::vector<std::string>& ids) {
    GVariantBuilder metas;
    g_variant_builder_init(&metas, G_VARIANT_TYPE("aa{sv}"));
    for (const std::string& id : ids) {
        const auto row = RowOfAnswer(rows, id);
        if (!row) {
            continue;
        }
        const std::string_view record = rows.RowText(*row);
        const auto text = [](std::string_view bytes) {
            return g_variant_new_string(Utf8OfBytes(bytes).c_str());
        };
        g_variant_builder_open(&metas, G_VARIANT_TYPE_VARDICT);
        g_variant_builder_add(&metas, "{sv}", "id", g_variant_new_string(id.c_str()));
        g_variant_builder_add(&metas, "{sv}", "name", text(ColumnText(record, 0)));
        g_variant_builder_add(&metas, "{sv}", "description", text(ColumnText(record, 1)));
        g_variant_builder_close(&metas);
    }
    return g_variant_new("(aa{sv})", &metas);
}

// The time of the key or click, in the form that X11 programs get from a desktop. The shell gives
// no more than that under Wayland, either.
Permission PermissionOfTime(GVariant* parameters, gsize index) {
    guint32 time = 0;
    g_variant_get_child(parameters, index, "u", &time);
    return {"", time == 0 ? "" : "brevilexicon-search_TIME" + std::to_string(time)};
}

}  // namespace

GVariant* AnswerShellSearch(std::string_view method, GVariant* parameters, const RowList& rows,
                            WindowProgram& window) {
    if (method == "GetInitialResultSet") {
        return ResultSet(rows, TypedText(parameters, 0));
    }
    // A longer text may have answers that a shorter one has not, because it had more than are
    // shown. So the search begins anew.
    if (method == "GetSubsearchResultSet") {
        return ResultSet(rows, TypedText(parameters, 1));
    }
    if (method == "GetResultMetas") {
        return ResultMetas(rows, TextsOf(parameters, 0));
    }
    if (method == "ActivateResult") {
        const char* id = nullptr;
        g_variant_get_child(parameters, 0, "&s", &id);
        window.Show(id, PermissionOfTime(parameters, 2));
    } else if (method == "LaunchSearch") {
        window.Show(TypedText(parameters, 0), PermissionOfTime(parameters, 1));
    }
    return nullptr;
}

}  // namespace brelex
