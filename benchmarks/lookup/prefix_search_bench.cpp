// SPDX-License-Identifier: MIT
#include "lookup/prefix_search.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "benchmarks/support/generated_records.h"
#include "database/database_file.h"
#include "database/record_text.h"
#include "database/string_order.h"

namespace brelex {
namespace {

struct Subject {
    RecordStore store;
    std::vector<std::int32_t> rows;       // 0, 1, 2, ... for the library's search
    std::vector<std::string> texts;       // beginnings of abbreviations, of all lengths
    std::vector<std::int32_t> directory;  // first row for each pair of first weights
};

unsigned DirectoryKey(std::string_view text) {
    const unsigned first = text.empty() ? 0U : WeightOf(text[0]).primary;
    const unsigned second = text.size() < 2 ? 0U : WeightOf(text[1]).primary;
    return first * 256 + second;
}

const Subject& SubjectOf(std::int64_t count) {
    static std::map<std::int64_t, std::unique_ptr<Subject>> subjects;
    auto& subject = subjects[count];
    if (!subject) {
        subject = std::make_unique<Subject>();
        DatabaseHeader header;
        if (ReadDatabase(GeneratedDatabase(count), header, subject->store) != LoadFailure::None) {
            std::abort();
        }
        subject->store.MeasureOrder();
        subject->rows.resize(static_cast<std::size_t>(count));
        std::iota(subject->rows.begin(), subject->rows.end(), 0);
        std::mt19937 random(1);
        for (int i = 0; i < 1024; ++i) {
            const auto row =
                static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(count));
            const auto abbreviation = GetAbbreviation(subject->store.RowText(row));
            subject->texts.emplace_back(abbreviation.substr(0, 1 + random() % abbreviation.size()));
        }
        subject->directory.assign(65537, static_cast<std::int32_t>(count));
        for (auto row = static_cast<std::int32_t>(count) - 1; row >= 0; --row) {
            subject->directory[DirectoryKey(subject->store.RowText(row))] = row;
        }
        for (std::size_t key = 65536; key > 0; --key) {
            subject->directory[key - 1] =
                std::min(subject->directory[key - 1], subject->directory[key]);
        }
    }
    return *subject;
}

bool RowLess(const RecordStore& store, std::int32_t row, std::string_view text) {
    return std::is_lt(CompareTexts(store.RowText(row).substr(0, text.size()), text));
}

void BM_FindFirstByPrefix(benchmark::State& state) {
    const Subject& subject = SubjectOf(state.range(0));
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(FindFirstByPrefix(subject.store, subject.texts[i++ % 1024]));
    }
}

void BM_LowerBound(benchmark::State& state) {
    const Subject& subject = SubjectOf(state.range(0));
    std::size_t i = 0;
    for (auto _ : state) {
        const std::string_view text = subject.texts[i++ % 1024];
        benchmark::DoNotOptimize(std::lower_bound(
            subject.rows.begin(), subject.rows.end(), text,
            [&](std::int32_t row, std::string_view t) { return RowLess(subject.store, row, t); }));
    }
}

// The alternative: a table with the first row for each pair of first letters.
void BM_LowerBoundWithDirectory(benchmark::State& state) {
    const Subject& subject = SubjectOf(state.range(0));
    std::size_t i = 0;
    for (auto _ : state) {
        const std::string_view text = subject.texts[i++ % 1024];
        const unsigned key = DirectoryKey(text);
        const auto begin = subject.rows.begin() + subject.directory[key];
        const auto end = text.size() < 2
                             ? subject.rows.begin() + subject.directory[(key | 255U) + 1]
                             : subject.rows.begin() + subject.directory[key + 1];
        benchmark::DoNotOptimize(std::lower_bound(
            begin, end, text,
            [&](std::int32_t row, std::string_view t) { return RowLess(subject.store, row, t); }));
    }
}

constexpr std::int64_t kRealSize = 12662;
constexpr std::int64_t kLargeSize = 1000000;

BENCHMARK(BM_FindFirstByPrefix)->Arg(kRealSize)->Arg(kLargeSize);
BENCHMARK(BM_LowerBound)->Arg(kRealSize)->Arg(kLargeSize);
BENCHMARK(BM_LowerBoundWithDirectory)->Arg(kRealSize)->Arg(kLargeSize);

}  // namespace
}  // namespace brelex
