// SPDX-License-Identifier: MIT
#include "tools/export_command.h"

#include <sstream>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

class ExportTest : public testing::Test {
  protected:
    int Export(ExportFormat format, const std::string& name = "-", bool force = false) {
        return RunExport(database_, {format, {name, force}}, out_, err_);
    }

    TestFolder folder_;
    std::string database_ =
        folder_.Write("Acronyms.dat", DatabaseBytes({"AB\tA \"B\", or\xC9", "CD\tOne"}));
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(ExportTest, ListsGoToStandardOutput) {
    EXPECT_EQ(Export(ExportFormat::Tsv), 0);
    EXPECT_EQ(out_.str(), "AB\tA \"B\", or\u00C9\nCD\tOne\n");
    out_.str("");
    EXPECT_EQ(Export(ExportFormat::Csv), 0);
    EXPECT_EQ(out_.str(), "abbreviation,expansion\r\nAB,\"A \"\"B\"\", or\u00C9\"\r\nCD,One\r\n");
    out_.str("");
    EXPECT_EQ(Export(ExportFormat::Json), 0);
    EXPECT_TRUE(out_.str().ends_with(
        "\n{\"recordNumber\":2,\"abbreviation\":\"CD\",\"expansion\":\"One\"}\n]\n"))
        << out_.str();
    EXPECT_EQ(err_.str(), "");
}

TEST_F(ExportTest, AListGoesToTheFile) {
    const std::string name = folder_.Text() + "list.csv";
    EXPECT_EQ(Export(ExportFormat::Csv, name), 0) << err_.str();
    EXPECT_TRUE(ReadText(PathOfUtf8(name)).ends_with("CD,One\r\n"));
    EXPECT_EQ(out_.str(), "");
}

TEST_F(ExportTest, ADictionaryConsistsOfSeveralFilesWithTheSameName) {
    EXPECT_EQ(Export(ExportFormat::Dictd, folder_.Text() + "my.words"), 0) << err_.str();
    EXPECT_EQ(Export(ExportFormat::Stardict, folder_.Text() + "other.ifo"), 0) << err_.str();
    for (const char* name :
         {"my.words.index", "my.words.dict", "other.ifo", "other.idx", "other.dict"}) {
        EXPECT_TRUE(std::filesystem::exists(folder_.Path() / name)) << name;
    }
}

TEST_F(ExportTest, ADictionaryDoesNotGoToStandardOutput) {
    EXPECT_EQ(Export(ExportFormat::Stardict), 2);
    EXPECT_EQ(err_.str(), "brelex: this format consists of several files; name them with -o\n");
}

TEST_F(ExportTest, LeavesOutEntriesThatADictionaryCannotHave) {
    database_ = folder_.Write("odd.dat", DatabaseBytes({"\tNo abbreviation", "AB\t ", "CD\tOne"}));
    EXPECT_EQ(Export(ExportFormat::Stardict, folder_.Text() + "odd"), 0) << err_.str();
    EXPECT_NE(ReadText(folder_.Path() / "odd.ifo").find("wordcount=1\n"), std::string::npos);
}

TEST_F(ExportTest, ReplacesAFileOnlyByForceAndTheDatabaseNever) {
    folder_.Write("my.idx", "mine");
    EXPECT_EQ(Export(ExportFormat::Stardict, folder_.Text() + "my"), 2);
    EXPECT_EQ(err_.str(),
              "brelex: " + folder_.Text() + "my.idx is there already; --force replaces it\n");
    EXPECT_FALSE(std::filesystem::exists(folder_.Path() / "my.dict")) << "nothing is written";
    EXPECT_EQ(Export(ExportFormat::Stardict, folder_.Text() + "my", true), 0);
    EXPECT_EQ(Export(ExportFormat::Tsv, database_, true), 2);
}

TEST_F(ExportTest, SaysIfThereAreNoEntriesOrNoDatabase) {
    database_ = folder_.Text() + "no.dat";
    EXPECT_EQ(Export(ExportFormat::Tsv), 2);
    EXPECT_EQ(err_.str(), "brelex: cannot read " + database_ + "\n");
}

}  // namespace
}  // namespace brelex
