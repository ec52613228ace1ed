// SPDX-License-Identifier: MIT
// The pages of the help in help/, as they go into the book.
#include "presentation/help_pages.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace brelex {
namespace {

const std::filesystem::path kHelp = HELP_FOLDER;

std::string TextOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The first group of each match.
std::set<std::string> Matches(const std::string& text, const char* pattern) {
    std::set<std::string> found;
    const std::regex regex(pattern, std::regex::icase);
    for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match) {
        found.insert((*match)[1]);
    }
    return found;
}

std::map<std::string, std::string> Pages() {
    std::map<std::string, std::string> pages;
    for (const auto& entry : std::filesystem::directory_iterator(kHelp)) {
        if (entry.path().extension() == ".html") {
            pages[entry.path().filename().string()] = TextOf(entry.path());
        }
    }
    return pages;
}

// Whether a target, "page.html", "page.html#place" or "#place" on `page`, is in the book.
void ExpectTarget(const std::map<std::string, std::string>& pages, const std::string& page,
                  const std::string& target) {
    const auto hash = target.find('#');
    const std::string name = hash == 0 ? page : target.substr(0, hash);
    const auto found = pages.find(name);
    ASSERT_TRUE(found != pages.end()) << page << " names " << target;
    if (hash != std::string::npos) {
        const std::string place = target.substr(hash + 1);
        EXPECT_TRUE(Matches(found->second, "(?:name|id)=\"([^\"]+)\"").contains(place))
            << page << " names " << target;
    }
}

TEST(HelpPages, NameOnlyPagesAndPicturesThatAreThere) {
    const auto pages = Pages();
    ASSERT_GT(pages.size(), 10U);
    for (const auto& [name, text] : pages) {
        for (const std::string& target : Matches(text, "href=\"([^\"]+)\"")) {
            if (target.find(':') == std::string::npos) {  // no web address
                ExpectTarget(pages, name, target);
            }
        }
        for (const std::string& picture : Matches(text, "src=\"([^\"]+)\"")) {
            EXPECT_TRUE(std::filesystem::exists(kHelp / picture)) << name << " shows " << picture;
        }
        EXPECT_EQ(Matches(text, "<title>([^<]+)</title>").size(), 1U) << name;
    }
}

TEST(HelpPages, AreAllInTheContentsAndTheIndexNamesOnlyThem) {
    const auto pages = Pages();
    const char* const local = "name=\"Local\" value=\"([^\"]+)\"";
    const auto contents = Matches(TextOf(kHelp / "brelex.hhc"), local);
    for (const auto& [name, text] : pages) {
        EXPECT_TRUE(contents.contains(name)) << name;
    }
    for (const char* const list : {"brelex.hhc", "brelex.hhk"}) {
        const auto targets = Matches(TextOf(kHelp / list), local);
        EXPECT_GT(targets.size(), 10U) << list;
        for (const std::string& target : targets) {
            ExpectTarget(pages, list, target);
        }
    }
}

TEST(HelpPages, HavePicturesForLightAndForDarkWindows) {
    const auto names = [](const char* folder) {
        std::set<std::string> pictures;
        for (const auto& entry : std::filesystem::directory_iterator(kHelp / "pictures" / folder)) {
            pictures.insert(entry.path().filename().string());
        }
        return pictures;
    };
    EXPECT_GE(names("light").size(), 6U);
    EXPECT_EQ(names("light"), names("dark"));
}

TEST(HelpPages, ThePageOfTheToolbarShowsEachOfItsIcons) {
    const auto shown = Matches(TextOf(kHelp / "toolbar.html"), "src=\"pictures/([^\"]+)\\.png\"");
    std::set<std::string> icons;
    for (const auto& entry : std::filesystem::directory_iterator(kHelp.parent_path() / "assets")) {
        if (entry.path().filename().string().starts_with("toolbar_")) {
            icons.insert(entry.path().stem().string());
        }
    }
    EXPECT_EQ(shown, icons);
}

TEST(HelpPageOf, IsAPageOfTheHelpForEachWindow) {
    const auto pages = Pages();
    std::set<std::string> different;
    for (const char* const window :
         {"frmMain", "frmSearch", "frmAnagram", "frmDataInfo", "frmSmiley", "frmAbout",
          "frmCheckData", "frmDonation", "frmCredit", "frmViewEntry", "TextQuestion"}) {
        const std::string page(HelpPageOf(window));
        ASSERT_FALSE(page.empty()) << window;
        ASSERT_NE(page[0], '#') << window;
        ExpectTarget(pages, window, page);
        different.insert(page);
    }
    EXPECT_EQ(different.size(), 11U);
}

TEST(HelpPageOf, IsTheFirstPageForOtherWindows) {
    EXPECT_EQ(HelpPageOf("frmSplash"), "");
    EXPECT_EQ(HelpPageOf(""), "");
}

}  // namespace
}  // namespace brelex
