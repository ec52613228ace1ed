// SPDX-License-Identifier: MIT
// Our order of texts, and the look-up built on it, against the system's own functions.
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

#include "database/modDataLoader.h"
#include "database/string_order.h"
#include "lookup/prefix_search.h"
#include "platform/system/program_folder.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

constexpr LCID kLocale = 1024;       // the user's default
constexpr DWORD kIgnoreCase = 4097;  // NORM_IGNORECASE and SORT_STRINGSORT
constexpr UINT kWesternCodePage = 1252;

// Less, equal or greater as -1, 0 or 1.
int SystemOrder(const std::string& left, const std::string& right) {
    return CompareStringA(kLocale, kIgnoreCase, left.c_str(), -1, right.c_str(), -1) - CSTR_EQUAL;
}

int OurOrder(std::string_view left, std::string_view right) {
    const auto order = CompareTexts(left, right);
    return std::is_lt(order) ? -1 : std::is_gt(order) ? 1 : 0;
}

// Counts mismatches and keeps the first.
class Mismatches {
  public:
    void Compare(const std::string& left, const std::string& right) {
        if (SystemOrder(left, right) != OurOrder(left, right)) {
            if (count_++ == 0) {
                first_ = testing::PrintToString(left) + " and " + testing::PrintToString(right);
            }
        }
    }

    [[nodiscard]] int Count() const { return count_; }

    [[nodiscard]] const std::string& First() const { return first_; }

  private:
    int count_ = 0;
    std::string first_;
};

class SystemOrderTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(GetACP(), kWesternCodePage) << "the functions would see other characters";
    }

    void LoadRealDatabase() {
        values_.DatabasePath = ProgramFolder() + "Acronyms.dat";
        values_.AppFolder = folder_.Text();
        ASSERT_TRUE(LoadDatabase(values_, store_, {files_, progress_, messages_}))
            << "scripts/make_database.sh makes it";
        ASSERT_GT(store_.RowCount(), 400);
    }

    TestFolder folder_;
    FakeTemporaryFiles files_{folder_.Text()};
    WorkWatcher progress_;
    FakeMessageSink messages_;
    ProgramValues values_;
    RecordStore store_;
    Mismatches mismatches_;
};

TEST_F(SystemOrderTest, AllPairsOfSingleBytesCompareAlike) {
    for (int left = 1; left < 256; ++left) {
        for (int right = 1; right < 256; ++right) {
            mismatches_.Compare(std::string(1, static_cast<char>(left)),
                                std::string(1, static_cast<char>(right)));
        }
    }
    EXPECT_EQ(mismatches_.Count(), 0) << mismatches_.First();
}

TEST_F(SystemOrderTest, AllNeighboursOfTheRealDatabaseCompareAlike) {
    ASSERT_NO_FATAL_FAILURE(LoadRealDatabase());
    for (std::int32_t row = 1; row < store_.RowCount(); ++row) {
        mismatches_.Compare(std::string(store_.RowText(row - 1)), std::string(store_.RowText(row)));
    }
    EXPECT_EQ(mismatches_.Count(), 0) << mismatches_.First();
}

TEST_F(SystemOrderTest, RandomTextsCompareAlike) {
    std::mt19937 random(5);
    const auto text = [&random](unsigned letters) {
        std::string bytes;
        for (std::size_t length = random() % 9; length > 0; --length) {
            bytes.push_back(static_cast<char>(1 + random() % letters));
        }
        return bytes;
    };
    for (int i = 0; i < 50000; ++i) {
        mismatches_.Compare(text(255), text(255));
        // Much alike, so that more than the first character decides.
        const std::string beginning = text(255);
        mismatches_.Compare(beginning + text(126), beginning + text(126));
    }
    EXPECT_EQ(mismatches_.Count(), 0) << mismatches_.First();
}

std::string Beginning(const RowList& rows, std::int32_t row, const std::string& probe) {
    return std::string(rows.RowText(row).substr(0, probe.size()));
}

// Any row that begins with the probe, by halving; -1 if that meets none.
std::int32_t HalvingWithSystem(const RowList& rows, const std::string& probe) {
    std::int32_t low = 0;
    std::int32_t high = rows.RowCount() - 1;
    while (low <= high) {
        const std::int32_t mid = (low + high) / 2;
        const int order = SystemOrder(probe, Beginning(rows, mid, probe));
        if (order == 0) {
            return mid;
        }
        order < 0 ? high = mid - 1 : low = mid + 1;
    }
    return -1;
}

// The search as it is defined, with the system's two comparisons.
std::int32_t FindWithSystem(const RowList& rows, std::string probe) {
    for (; !probe.empty(); probe.pop_back()) {
        std::int32_t row = HalvingWithSystem(rows, probe);
        if (row < 0) {
            continue;
        }
        while (row > 0 && lstrcmpiA(Beginning(rows, row - 1, probe).c_str(), probe.c_str()) == 0) {
            --row;
        }
        return row;
    }
    return 0;
}

TEST_F(SystemOrderTest, LookUpsFindTheRowsThatTheSystemsFunctionsFind) {
    ASSERT_NO_FATAL_FAILURE(LoadRealDatabase());
    std::mt19937 random(6);
    int differing = 0;
    std::string first;
    for (int i = 0; i < 2000; ++i) {
        const auto row =
            static_cast<std::int32_t>(random() % static_cast<unsigned>(store_.RowCount()));
        std::string text(store_.RowText(row).substr(0, 1 + random() % 10));
        if (i % 3 == 1) {
            text.back() = static_cast<char>(1 + random() % 255);
        } else if (i % 3 == 2) {
            text.insert(text.begin() + static_cast<int>(random() % text.size()),
                        static_cast<char>(1 + random() % 255));
        }
        if (FindFirstByPrefix(store_, text) != FindWithSystem(store_, text) && differing++ == 0) {
            first = testing::PrintToString(text);
        }
    }
    EXPECT_EQ(differing, 0) << first;
}

}  // namespace
}  // namespace brelex
