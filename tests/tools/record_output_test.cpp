// SPDX-License-Identifier: MIT
#include "tools/record_output.h"

#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "database/record_text.h"
#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct OutputCase {
    const char* name;
    OutputOptions options;
    std::vector<std::string> records;
    std::string output;
};

class RecordOutputTest : public testing::TestWithParam<OutputCase> {};

// The part of the record that is in brackets.
std::string_view Bracketed(std::string_view record) {
    const std::size_t begin = record.find('[');
    return begin == std::string_view::npos ? std::string_view()
                                           : record.substr(begin, record.find(']') + 1 - begin);
}

TEST_P(RecordOutputTest, IsLikeThis) {
    const FakeRows rows(GetParam().records);
    std::vector<std::int32_t> hits(GetParam().records.size());
    std::iota(hits.begin(), hits.end(), 0);
    std::ostringstream out;
    PrintRecords(rows, hits, GetParam().options, Bracketed, out);
    EXPECT_EQ(out.str(), GetParam().output);
}

OutputOptions Piped(bool numbers = false) {
    return {false, numbers, {}};
}

OutputOptions OnTerminal(int columns, bool numbers = false, bool hasStyles = false) {
    return {false, numbers, {columns, hasStyles}};
}

INSTANTIATE_TEST_SUITE_P(
    InAPipe, RecordOutputTest,
    testing::Values(OutputCase{"TheRecordsAsTheyAre",
                               Piped(),
                               {"A\tx\ty", "Lonely", "B\x1B\t[\x9D\xE9]"},
                               "A\tx\ty\nLonely\nB\x1B\t[\xC2\x9D\xC3\xA9]\n"},
                    OutputCase{
                        "WithNumbers", Piped(true), {"A\tx", "Lonely"}, "1\tA\tx\n2\tLonely\n"},
                    OutputCase{"NoneAtAll", Piped(), {}, ""}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    OnATerminal, RecordOutputTest,
    testing::Values(
        OutputCase{"InColumns",
                   OnTerminal(80),
                   {"A\tx", "ABCDEFGHIJ\ty"},
                   "A           x\nABCDEFGHIJ  y\n"},
        OutputCase{"ShortAbbreviationsInAUsualColumn",
                   OnTerminal(80),
                   {"A\tx", "ABC\ty"},
                   "A         x\nABC       y\n"},
        OutputCase{"NumbersAtTheRight",
                   OnTerminal(80, true),
                   {"A\tx", "B\tx", "C\tx", "D\tx", "E\tx", "F\tx", "G\tx", "H\tx", "I\tx", "J\tx"},
                   " 1  A         x\n 2  B         x\n 3  C         x\n 4  D         x\n"
                   " 5  E         x\n 6  F         x\n 7  G         x\n 8  H         x\n"
                   " 9  I         x\n10  J         x\n"},
        OutputCase{"WithoutTabOnlyTheFirstColumn", OnTerminal(80), {"Lonely"}, "Lonely\n"},
        OutputCase{"WithoutExpansionOnlyTheFirstColumn", OnTerminal(80), {"A\t"}, "A\n"},
        OutputCase{"ControlCharactersAreVisible",
                   OnTerminal(80),
                   {"A\x1B[2J\tx\ty\x9D"},
                   "A\xE2\x90\x9B[2J     x\xE2\x90\x89y\xEF\xBF\xBD\n"},
        OutputCase{"AccentsAreOneColumnWide",
                   OnTerminal(80),
                   {"\xC9\xC9\tx", "EE\tx"},
                   "\xC3\x89\xC3\x89        x\nEE        x\n"}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Wrapped, RecordOutputTest,
    testing::Values(OutputCase{"BetweenWordsBelowTheExpansion",
                               OnTerminal(30),
                               {"ABC\tone two three four five six"},
                               "ABC       one two three four\n          five six\n"},
                    OutputCase{"NotIfTheLineIsJustFull",
                               OnTerminal(30),
                               {"ABC\tabcdefghij klmnopqrs"},
                               "ABC       abcdefghij klmnopqrs\n"},
                    OutputCase{"IfOneCharacterIsTooMuch",
                               OnTerminal(30),
                               {"ABC\tabcdefghij klmnopqrst"},
                               "ABC       abcdefghij\n          klmnopqrst\n"},
                    OutputCase{"ALongWordAnywhere",
                               OnTerminal(30),
                               {"ABC\tabcdefghijklmnopqrstuvwxyz z"},
                               "ABC       abcdefghijklmnopqrst\n          uvwxyz z\n"},
                    OutputCase{"BehindTheNumbers",
                               OnTerminal(30, true),
                               {"ABC\tone two three four five"},
                               "1  ABC       one two three\n             four five\n"},
                    OutputCase{"BelowALongAbbreviation",
                               OnTerminal(30),
                               {"A\tx", "ABCDEFGHIJKL\ty z"},
                               "A           x\nABCDEFGHIJKL\n            y z\n"},
                    OutputCase{"OnATinyTerminal",
                               OnTerminal(1, true),
                               {"ABCDEF\tone two three"},
                               "1  ABCDEF\n          one two\n          three\n"},
                    OutputCase{"AWideTerminalHasRoomForAll",
                               OnTerminal(200),
                               {"A\t" + std::string(180, 'x')},
                               "A         " + std::string(180, 'x') + "\n"}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Bold, RecordOutputTest,
    testing::Values(
        OutputCase{"PartOfTheExpansion",
                   OnTerminal(80, false, true),
                   {"A\tx[y]z"},
                   "A         x\x1B[1m[y]\x1B[0mz\n"},
        OutputCase{"TheAbbreviation",
                   OnTerminal(80, true, true),
                   {"[A]\tx"},
                   "1  \x1B[1m[A]\x1B[0m       x\n"},
        OutputCase{"OnBothLines",
                   OnTerminal(30, false, true),
                   {"ABC\tone [two three four five] six"},
                   "ABC       one \x1B[1m[two three four\x1B[0m\n          \x1B[1mfive]\x1B[0m "
                   "six\n"},
        OutputCase{"NotInTheTextItself",
                   OnTerminal(80, false, true),
                   {"A\t[\x1B[1m]"},
                   "A         \x1B[1m[\xE2\x90\x9B[1m]\x1B[0m\n"},
        OutputCase{
            "NothingIfNothingMatches", OnTerminal(80, false, true), {"A\tx"}, "A         x\n"},
        OutputCase{"NotOnATerminalWithoutIt", OnTerminal(80), {"A\t[x]"}, "A         [x]\n"}),
    CaseName());

TEST(PrintRecords, JsonIsTheSameOnATerminal) {
    const FakeRows rows({"A\tx"});
    std::ostringstream out;
    PrintRecords(rows, {0}, {true, true, {80, true}}, Bracketed, out);
    EXPECT_EQ(out.str(), "[\n{\"recordNumber\":1,\"abbreviation\":\"A\",\"expansion\":\"x\"}\n]\n");
}

}  // namespace
}  // namespace brelex
