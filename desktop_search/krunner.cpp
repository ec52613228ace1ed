// SPDX-License-Identifier: MIT
#include "desktop_search/krunner.h"

#include <cstdint>
#include <utility>

#include "base/app_info.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "database/string_order.h"
#include "lookup/desktop_answers.h"

namespace brelex {

namespace {

constexpr char kCopy[] = "copy";

// How KRunner ranks a match among those of other runners.
constexpr gint32 kCompletion = 10;
constexpr gint32 kExact = 100;

GVariant* Actions() {
    GVariantBuilder actions;
    g_variant_builder_init(&actions, G_VARIANT_TYPE("a(sss)"));
    g_variant_builder_add(&actions, "(sss)", kCopy, "Copy", "edit-copy");
    return g_variant_new("(a(sss))", &actions);
}

// KRunner sorts matches by their relevance, so that of ours falls from one to the next.
GVariant* Matches(const RowList& rows, const std::string& query) {
    const std::string typed = BytesOfUtf8(query).bytes;
    GVariantBuilder matches;
    g_variant_builder_init(&matches, G_VARIANT_TYPE("a(sssida{sv})"));
    double relevance = 1;
    for (const std::int32_t row : AnswersTo(rows, query)) {
        const std::string_view record = rows.RowText(row);
        const std::string_view abbreviation = ColumnText(record, 0);
        const bool isExact = EqualIgnoringCase(abbreviation, TrimBlanks(typed));
        GVariantBuilder properties;
        g_variant_builder_init(&properties, G_VARIANT_TYPE_VARDICT);
        g_variant_builder_add(&properties, "{sv}", "subtext",
                              g_variant_new_string(Utf8OfBytes(ColumnText(record, 1)).c_str()));
        g_variant_builder_add(&matches, "(sssida{sv})", AnswerId(record).c_str(),
                              Utf8OfBytes(abbreviation).c_str(), kApplicationId,
                              isExact ? kExact : kCompletion, relevance, &properties);
        constexpr double kStep = 0.05;
        relevance -= kStep;
    }
    return g_variant_new("(a(sssida{sv}))", &matches);
}

}  // namespace

void KRunner::Run(GVariant* parameters, const RowList& rows) {
    const char* id = nullptr;
    const char* action = nullptr;
    g_variant_get(parameters, "(&s&s)", &id, &action);
    const std::string token = std::exchange(activationToken_, {});
    if (std::string_view(action) == kCopy) {
        if (const auto row = RowOfAnswer(rows, id)) {
            window_.Copy(rows.RowText(*row));
        }
    } else if (std::string_view(action).empty()) {
        window_.Show(id, {token, token});
    }
}

GVariant* KRunner::Answer(std::string_view method, GVariant* parameters, const RowList& rows) {
    if (method == "Actions") {
        return Actions();
    }
    if (method == "Config") {
        return g_variant_new_parsed("(@a{sv} {},)");
    }
    if (method == "Match") {
        const char* query = nullptr;
        g_variant_get(parameters, "(&s)", &query);
        return Matches(rows, query);
    }
    if (method == "SetActivationToken") {
        const char* token = nullptr;
        g_variant_get(parameters, "(&s)", &token);
        activationToken_ = token;
    } else if (method == "Run") {
        Run(parameters, rows);
    }
    return nullptr;
}

}  // namespace brelex
