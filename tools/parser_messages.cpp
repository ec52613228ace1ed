// SPDX-License-Identifier: MIT
#include "tools/parser_messages.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "base/file_io.h"
#include "base/windows1252.h"
#include "tools/nearest_word.h"

namespace brelex {

namespace {

std::vector<std::string> CommandsOf(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        names.push_back(command->get_name());
    }
    return names;
}

std::vector<std::string> OptionsOf(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options()) {
        for (const std::string& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
        for (const std::string& name : option->get_snames()) {
            names.push_back("-" + name);
        }
    }
    return names;
}

std::string Suggestion(std::string_view word, const std::vector<std::string>& known) {
    const std::string nearest = NearestWord(word, known);
    return nearest.empty() ? "" : "; did you mean " + nearest + "?";
}

std::string UnknownOption(const CLI::App& app, const std::string& word) {
    std::vector<std::string> known = OptionsOf(app);
    std::string hint;
    for (const CLI::App* command : app.get_subcommands()) {
        const std::vector<std::string> more = OptionsOf(*command);
        known.insert(known.end(), more.begin(), more.end());
        hint = "; write -- before arguments that begin with -";
    }
    const std::string suggestion = Suggestion(word.substr(0, word.find('=')), known);
    return "there is no option " + word + (suggestion.empty() ? hint : suggestion);
}

}  // namespace

bool IsUtf8(std::string_view text) {
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
    std::size_t inText = 0;
    for (std::size_t at = text.find(kReplacement); at != std::string_view::npos;
         at = text.find(kReplacement, at + 1)) {
        ++inText;
    }
    const std::u32string characters = DecodeUtf8(text);
    return static_cast<std::size_t>(std::ranges::count(characters, U'\uFFFD')) == inText;
}

std::string ParserMessage(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<std::string> unknown = app.remaining(true);
    if (unknown.empty()) {
        return app.get_subcommands().empty() ? "name a command" : error.what();
    }
    const std::string& word = unknown.front();
    if (word.size() > 1 && word.starts_with('-')) {
        return UnknownOption(app, word);
    }
    if (app.get_subcommands().empty()) {
        return "there is no command " + word + Suggestion(word, CommandsOf(app));
    }
    return app.get_subcommands().front()->get_name() + " does not take the argument " + word;
}

std::string EncodingMessage(const std::vector<std::string>& arguments) {
    const auto bad = std::ranges::find_if(arguments, [](const std::string& argument) {
        std::error_code error;
        return !IsUtf8(argument) && !std::filesystem::exists(PathOfUtf8(argument), error);
    });
    return bad == arguments.end()
               ? ""
               : "argument " + std::to_string(bad - arguments.begin() + 1) + " is not UTF-8";
}

}  // namespace brelex
