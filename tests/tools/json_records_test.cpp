// SPDX-License-Identifier: MIT
#include "tools/json_records.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct JsonCase {
    const char* name;
    const char* expansion;
    const char* json;
};

class JsonStringTest : public testing::TestWithParam<JsonCase> {};

TEST_P(JsonStringTest, EscapesWhatItMust) {
    const FakeRows rows({std::string("A\t") + GetParam().expansion});
    std::ostringstream out;
    PrintJsonRecords(rows, {0}, out);
    EXPECT_EQ(out.str(), std::string("[\n{\"recordNumber\":1,\"abbreviation\":\"A\","
                                     "\"expansion\":\"") +
                             GetParam().json + "\"}\n]\n");
}

INSTANTIATE_TEST_SUITE_P(
    Strings, JsonStringTest,
    testing::Values(JsonCase{"Plain", "a b", "a b"},
                    JsonCase{"QuotesAndBackslashes", "\"a\\b\"", "\\\"a\\\\b\\\""},
                    JsonCase{"Accents", "\xE9\x80", "\xC3\xA9\xE2\x82\xAC"},
                    JsonCase{"ControlCharacters", "\t\x1B[1m\x1F", "\\u0009\\u001b[1m\\u001f"},
                    JsonCase{"ControlCharactersAboveThem", "\x7F\x81\x8D\x8F\x90\x9D",
                             "\\u007f\\u0081\\u008d\\u008f\\u0090\\u009d"}),
    CaseName());

}  // namespace
}  // namespace brelex
