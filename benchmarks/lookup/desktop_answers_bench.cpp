// SPDX-License-Identifier: MIT
#include "lookup/desktop_answers.h"

#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "base/windows1252.h"
#include "benchmarks/support/generated_records.h"
#include "database/record_text.h"

namespace brelex {
namespace {

constexpr std::size_t kTexts = 1024;

// Beginnings of abbreviations, of all lengths, as a user types them.
std::vector<std::string> TypedTexts(const RowList& rows) {
    std::mt19937 random(1);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < kTexts; ++i) {
        const auto row =
            static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(rows.RowCount()));
        const auto abbreviation = GetAbbreviation(rows.RowText(row));
        texts.push_back(Utf8OfBytes(abbreviation.substr(0, 1 + random() % abbreviation.size())));
    }
    return texts;
}

// One query of the desktop's search: the rows, what they are called, and finding them again.
void BM_DesktopQuery(benchmark::State& state) {
    const RecordStore& rows = GeneratedStore(state.range(0));
    const std::vector<std::string> texts = TypedTexts(rows);
    std::size_t i = 0;
    for (auto _ : state) {
        for (const std::int32_t row : AnswersTo(rows, texts[i++ % kTexts])) {
            benchmark::DoNotOptimize(RowOfAnswer(rows, AnswerId(rows.RowText(row))));
        }
    }
}

void BM_DesktopQueryWithoutAnswer(benchmark::State& state) {
    const RecordStore& rows = GeneratedStore(state.range(0));
    const std::string text(kLongestQuestion, 'Q');
    for (auto _ : state) {
        benchmark::DoNotOptimize(AnswersTo(rows, text));
    }
}

constexpr std::int64_t kRealSize = 25000;
constexpr std::int64_t kLargeSize = 1000000;

BENCHMARK(BM_DesktopQuery)->Arg(kRealSize)->Arg(kLargeSize);
BENCHMARK(BM_DesktopQueryWithoutAnswer)->Arg(kRealSize)->Arg(kLargeSize);

}  // namespace
}  // namespace brelex
