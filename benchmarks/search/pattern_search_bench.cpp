// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include "benchmarks/support/generated_records.h"
#include "search/database_search.h"

namespace brelex {
namespace {

struct PatternCase {
    const char* name;
    const char* text;
    SearchPosition position;
    const char* regex;  // the same pattern for PCRE2
};

// Rare and frequent literals, then patterns. In the store a NUL ends a record, not a newline, so
// the negated sets exclude NUL.
constexpr PatternCase kCases[] = {
    {"rare literal", "zone xml yield", SearchPosition::Anywhere, "zone xml yield"},
    {"frequent literal", "system", SearchPosition::Anywhere, "system"},
    {"net?ork", "net?ork", SearchPosition::Anywhere, "net[^\\0]ork"},
    {"rfc ###", "rfc ###", SearchPosition::Anywhere, "rfc [0-9][0-9][0-9]"},
    {"[aeiou][!a-z]system", "[aeiou][!a-z]system", SearchPosition::Anywhere,
     "[aeiou][^a-z\\0]system"},
    {"net[a-m]", "net[a-m]", SearchPosition::Beginning, "\\tnet[a-m]"},
    {"[0-9]?[!0-9 ]#", "[0-9]?[!0-9 ]#", SearchPosition::Anywhere, "[0-9][^\\0][^0-9 \\0][0-9]"},
};

void BM_Search(benchmark::State& state) {
    const PatternCase& searched = kCases[state.range(1)];
    const RecordStore& store = GeneratedStore(state.range(0));
    SearchRequest request;
    request.text = searched.text;
    request.position = searched.position;
    std::size_t hits = 0;
    for (auto _ : state) {
        const auto finder = RecordFinder::Compile(request, store);
        hits = SearchDatabase(*finder, store, 0, store.RowCount(), nullptr).hits.size();
    }
    state.SetLabel(searched.name);
    state.counters["hits"] = static_cast<double>(hits);
}

void BM_Pcre2(benchmark::State& state) {
    const PatternCase& searched = kCases[state.range(1)];
    const RecordStore& store = GeneratedStore(state.range(0));
    const std::string_view text = store.TextOfRows(0, store.RowCount());
    int error = 0;
    PCRE2_SIZE errorAt = 0;
    pcre2_code* const code =
        pcre2_compile(reinterpret_cast<PCRE2_SPTR>(searched.regex), PCRE2_ZERO_TERMINATED,
                      PCRE2_CASELESS | PCRE2_DOTALL, &error, &errorAt, nullptr);
    if (code == nullptr || pcre2_jit_compile(code, PCRE2_JIT_COMPLETE) != 0) {
        std::abort();
    }
    pcre2_match_data* const data = pcre2_match_data_create_from_pattern(code, nullptr);
    std::size_t hits = 0;
    for (auto _ : state) {
        hits = 0;
        std::size_t at = 0;
        while (at < text.size() && pcre2_jit_match(code, reinterpret_cast<PCRE2_SPTR>(text.data()),
                                                   text.size(), at, 0, data, nullptr) >= 0) {
            ++hits;
            at = text.find('\0', pcre2_get_ovector_pointer(data)[1] - 1) + 1;  // the next record
        }
    }
    pcre2_match_data_free(data);
    pcre2_code_free(code);
    state.SetLabel(searched.name);
    state.counters["hits"] = static_cast<double>(hits);
}

// Runs a program that searches the entries as TSV for a literal, in a process of its own. Without
// records, this shows how long starting it takes.
void BM_Program(benchmark::State& state, const std::string& program) {
    const PatternCase& searched = kCases[state.range(1)];
    const auto path = std::filesystem::temp_directory_path() / "brelex_search_bench.tsv";
    std::ofstream file(path, std::ios::binary);
    if (state.range(0) > 0) {
        const RecordStore& store = GeneratedStore(state.range(0));
        for (std::int32_t row = 0; row < store.RowCount(); ++row) {
            file << store.RowText(row) << '\n';
        }
    }
    file.close();
    // Not to /dev/null: grep would then stop at the first hit.
    const std::string command = program + " -c '" + searched.text + "' '" + path.string() + "' >'" +
                                path.string() + ".out'";
    for (auto _ : state) {
        if (std::system(command.c_str()) > 256) {  // 256 means exit code 1: nothing found
            std::abort();
        }
    }
    std::filesystem::remove(path);
    std::filesystem::remove(path.string() + ".out");
    state.SetLabel(searched.name);
}

void BM_First500(benchmark::State& state) {
    const RecordStore& store = GeneratedStore(state.range(0));
    SearchRequest request;
    request.text = "system";
    for (auto _ : state) {
        const auto finder = RecordFinder::Compile(request, store);
        benchmark::DoNotOptimize(SearchDatabase(*finder, store, 0, kMaxHits, nullptr));
    }
}

constexpr std::int64_t kRealSize = 12662;
constexpr std::int64_t kLargeSize = 1000000;

BENCHMARK(BM_Search)
    ->ArgsProduct({{kRealSize, kLargeSize}, {0, 1, 2, 3, 4, 5, 6}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Pcre2)
    ->ArgsProduct({{kRealSize, kLargeSize}, {0, 1, 2, 3, 4, 5, 6}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_Program, rg, std::string("rg -i -j1"))
    ->ArgsProduct({{0, kRealSize, kLargeSize}, {0, 1}})
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(BM_Program, grep, std::string("grep -i"))
    ->ArgsProduct({{0, kRealSize, kLargeSize}, {0, 1}})
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
BENCHMARK(BM_First500)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace brelex
