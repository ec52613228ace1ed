// SPDX-License-Identifier: MIT
#include "search/anagram.h"

#include <array>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "base/windows1252.h"
#include "benchmarks/support/generated_records.h"
#include "database/record_text.h"

namespace brelex {
namespace {

constexpr const char* kLetters = "MPCT";

void BM_FirstAnagrams(benchmark::State& state) {
    const RecordStore& store = GeneratedStore(state.range(0));
    std::size_t hits = 0;
    for (auto _ : state) {
        hits = AnagramFinder(store).Find(AnagramLetters(DecodeUtf8(kLetters)), nullptr).size();
    }
    state.counters["hits"] = static_cast<double>(hits);
}

void BM_SecondAnagrams(benchmark::State& state) {
    const RecordStore& store = GeneratedStore(state.range(0));
    for (auto _ : state) {
        AnagramFinder finder(store);
        for (int i = 0; i < 2; ++i) {
            benchmark::DoNotOptimize(finder.Find(AnagramLetters(DecodeUtf8(kLetters)), nullptr));
        }
    }
    state.SetLabel("and the first");
}

void BM_NextAnagrams(benchmark::State& state) {
    AnagramFinder finder(GeneratedStore(state.range(0)));
    std::size_t hits = 0;
    for (int i = 0; i < 2; ++i) {
        hits = finder.Find(AnagramLetters(U"FIRST"), nullptr).size();
    }
    for (auto _ : state) {
        hits = finder.Find(AnagramLetters(DecodeUtf8(kLetters)), nullptr).size();
    }
    state.counters["hits"] = static_cast<double>(hits);
}

// Without anything kept: looks at each record as far as its first letter that does not fit.
void BM_AnagramsRecordByRecord(benchmark::State& state) {
    const RecordStore& store = GeneratedStore(state.range(0));
    std::size_t hits = 0;
    for (auto _ : state) {
        const AnagramLetters letters(DecodeUtf8(kLetters));
        hits = 0;
        for (std::int32_t row = 0; row < store.RowCount(); ++row) {
            hits += letters.IsHit(store.RowText(row)) ? 1U : 0U;
        }
    }
    state.counters["hits"] = static_cast<double>(hits);
}

// Drops hyphens, compares lengths, and then counts each typed letter in both texts.
void BM_AnagramsStepByStep(benchmark::State& state) {
    const RecordStore& store = GeneratedStore(state.range(0));
    const std::string typed = kLetters;
    const auto occurrences = [](char letter, const std::string& text) {
        int count = 0;
        for (const char c : text) {
            count += std::tolower(static_cast<unsigned char>(c)) ==
                             std::tolower(static_cast<unsigned char>(letter))
                         ? 1
                         : 0;
        }
        return count;
    };
    std::size_t hits = 0;
    for (auto _ : state) {
        hits = 0;
        for (std::int32_t row = 0; row < store.RowCount(); ++row) {
            std::string candidate(GetAbbreviation(store.RowText(row)));
            std::erase(candidate, '-');
            bool isAnagram = candidate.size() == typed.size();
            for (std::size_t i = 0; isAnagram && i < typed.size(); ++i) {
                isAnagram = occurrences(typed[i], typed) == occurrences(typed[i], candidate);
            }
            hits += isAnagram ? 1U : 0U;
        }
    }
    state.counters["hits"] = static_cast<double>(hits);
}

constexpr std::int64_t kRealSize = 12662;
constexpr std::int64_t kLargeSize = 1000000;

BENCHMARK(BM_FirstAnagrams)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_SecondAnagrams)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_NextAnagrams)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_AnagramsStepByStep)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_AnagramsRecordByRecord)
    ->Arg(kRealSize)
    ->Arg(kLargeSize)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace brelex
