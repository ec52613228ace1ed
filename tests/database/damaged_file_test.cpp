// SPDX-License-Identifier: MIT
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "database/database_check.h"
#include "database/database_file.h"
#include "database/record_text.h"
#include "database/szdd.h"
#include "lookup/prefix_search.h"
#include "tests/support/test_files.h"

// In a build with sanitizers, these tests find reads outside a buffer.

namespace brelex {
namespace {

// Touches everything that the program uses of a database.
void Use(const DatabaseHeader& header, const RecordStore& store) {
    std::size_t bytes = 0;
    for (std::int32_t row = 0; row < store.RowCount(); ++row) {
        bytes += GetAbbreviation(store.RowText(row)).size();
        bytes += GetExpansion(store.RowText(row)).size();
    }
    EXPECT_LE(bytes, store.Block().size());
    for (const char* text : {"A", "ABC", "\xFF", "zzzz"}) {
        const std::int32_t row = FindFirstByPrefix(store, text);
        EXPECT_TRUE(row >= 0 && row <= std::max(store.RowCount() - 1, 0));
    }
    EXPECT_LT(CheckDatabase(header, store, FindFirstByPrefix).size(), 100U);
}

// Reads a file as the program does, and uses it.
LoadFailure ReadAndUse(std::string_view file) {
    DatabaseHeader header;
    RecordStore store;
    const LoadFailure failure = ReadDatabase(file, header, store);
    if (failure == LoadFailure::None) {
        store.MeasureOrder();
        Use(header, store);
    }
    return failure;
}

// The same with what a file expanded to. To compress it first would take most of the time.
LoadFailure ReadAndUseExpanded(std::string_view expanded) {
    DatabaseHeader header;
    RecordStore store;
    WorkWatcher progress;
    const LoadFailure failure = ReadExpandedDatabase({*ExpandSzdd(expanded), expanded.size() / 2},
                                                     header, store, progress, [] {});
    if (failure == LoadFailure::None) {
        store.MeasureOrder();
        Use(header, store);
    }
    return failure;
}

void Damage(std::string& bytes, std::mt19937& random) {
    const std::size_t changes = 1 + random() % 4;
    for (std::size_t i = 0; i < changes && !bytes.empty(); ++i) {
        const std::size_t at = random() % bytes.size();
        switch (random() % 5) {
            case 0:
                bytes[at] = static_cast<char>(random());
                break;
            case 1:
                bytes.resize(at);
                break;
            case 2:
                bytes.insert(at, 1 + random() % 9, static_cast<char>(random()));
                break;
            case 3:
                bytes.erase(at, 1 + random() % 9);
                break;
            default:
                bytes[at] = static_cast<char>(bytes[at] ^ static_cast<char>(1U << (random() % 8)));
        }
    }
}

std::vector<std::string> SampleRecords() {
    auto records = NumberedRecords(60);
    records.emplace_back("ABC\tAlpha Beta Charlie");
    records.emplace_back("ABC\tAlpha\tBeta");
    records.emplace_back("Z\xC9\tAccent");
    return records;
}

TEST(DamagedFile, DamageInTheCompressedFileIsSurvived) {
    const std::string good = DatabaseBytes(SampleRecords());
    ASSERT_EQ(ReadAndUse(good), LoadFailure::None);
    std::mt19937 random(2026);
    for (int i = 0; i < 4000; ++i) {
        std::string file = good;
        Damage(file, random);
        ReadAndUse(file);
    }
}

TEST(DamagedFile, DamageInTheExpandedFileIsSurvived) {
    const std::string good = ExpandedBytes(SampleRecords());
    ASSERT_EQ(ReadAndUseExpanded(good), LoadFailure::None);
    std::mt19937 random(2027);
    int accepted = 0;
    for (int i = 0; i < 2000; ++i) {
        std::string expanded = good;
        Damage(expanded, random);
        if (expanded.size() > kHeaderBytes && random() % 2 == 0) {
            // Lets the damage get past the first checks.
            DatabaseHeader header = DecodeHeader(expanded);
            header.DataSize = static_cast<std::int32_t>(expanded.size() - kHeaderBytes);
            expanded.replace(0, kHeaderBytes, EncodeHeader(header));
        }
        accepted += ReadAndUseExpanded(expanded) == LoadFailure::None ? 1 : 0;
    }
    EXPECT_GT(accepted, 500);
}

TEST(DamagedFile, AFileCutAtAnyByteIsSurvived) {
    const std::string good = DatabaseBytes({"ABC\tx", "DEF\ty"});
    for (std::size_t length = 0; length < good.size(); ++length) {
        EXPECT_NE(ReadAndUse(std::string_view(good).substr(0, length)), LoadFailure::None)
            << length;
    }
}

TEST(DamagedFile, RandomBytesAreSurvived) {
    std::mt19937 random(2028);
    const std::string start = DatabaseBytes({"ABC\tx"}).substr(0, 14);
    for (int i = 0; i < 1000; ++i) {
        std::string file = i % 2 == 0 ? start : std::string();
        for (std::size_t length = random() % 4000; length > 0; --length) {
            file.push_back(static_cast<char>(random()));
        }
        ReadAndUse(file);
    }
}

}  // namespace
}  // namespace brelex
