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

void BM_FindAnagrams(benchmark::State& state) {
    const RecordStore& store = GeneratedStore(state.range(0));
    std::size_t hits = 0;
    for (auto _ : state) {
        hits = FindAnagrams(store, AnagramLetters(DecodeUtf8(kLetters)), nullptr).size();
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

// The alternative: 8 stored bytes for each record, a signature that is the same for every order of
// the letters.
void BM_AnagramsBySignature(benchmark::State& state) {
    const RecordStore& store = GeneratedStore(state.range(0));
    const auto signatureOf = [](std::string_view text) {
        std::uint64_t signature = 0;
        for (const char c : text) {
            if (c != '-') {
                const auto letter =
                    static_cast<std::uint64_t>(std::tolower(static_cast<unsigned char>(c)));
                std::uint64_t mixed = (letter + 1) * 0x9E3779B97F4A7C15U;
                mixed ^= mixed >> 29U;
                signature += mixed * 0xBF58476D1CE4E5B9U;
            }
        }
        return signature;
    };
    std::vector<std::uint64_t> signatures;
    for (std::int32_t row = 0; row < store.RowCount(); ++row) {
        signatures.push_back(signatureOf(GetAbbreviation(store.RowText(row))));
    }
    const AnagramLetters letters(DecodeUtf8(kLetters));
    std::size_t hits = 0;
    for (auto _ : state) {
        hits = 0;
        const std::uint64_t wanted = signatureOf(kLetters);
        for (std::size_t row = 0; row < signatures.size(); ++row) {
            if (signatures[row] == wanted) {
                hits += letters.IsHit(store.RowText(static_cast<std::int32_t>(row))) ? 1U : 0U;
            }
        }
    }
    state.counters["hits"] = static_cast<double>(hits);
}

constexpr std::int64_t kRealSize = 12662;
constexpr std::int64_t kLargeSize = 1000000;

BENCHMARK(BM_FindAnagrams)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_AnagramsStepByStep)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_AnagramsBySignature)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace brelex
