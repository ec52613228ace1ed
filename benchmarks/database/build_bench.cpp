// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#include "base/file_io.h"
#include "benchmarks/support/generated_records.h"
#include "database/database_builder.h"
#include "database/database_check.h"
#include "database/szdd.h"
#include "lookup/prefix_search.h"
#include "platform/system/replace_file.h"
#include "tools/build_command.h"
#include "tools/input_entries.h"

namespace brelex {
namespace {

std::filesystem::path TemporaryPath(const std::string& name) {
    return std::filesystem::temp_directory_path() / ("brelex-bench-" + name);
}

// The generated records in random order.
std::vector<std::string> Shuffled(std::int64_t count) {
    const RecordStore& store = GeneratedStore(count);
    std::vector<std::string> records;
    for (std::int32_t row = 0; row < store.RowCount(); ++row) {
        records.emplace_back(store.RowText(row));
    }
    std::shuffle(records.begin(), records.end(), std::mt19937(1));
    return records;
}

std::string TsvOf(const std::vector<std::string>& records) {
    std::string tsv;
    for (const std::string& record : records) {
        tsv += record + "\n";
    }
    return tsv;
}

std::filesystem::path WriteTsv(const std::string& name, std::string_view tsv) {
    auto path = TemporaryPath(name + ".tsv");
    if (!ReplaceFile(path, tsv)) {
        std::abort();
    }
    return path;
}

void BuildFrom(benchmark::State& state, const std::filesystem::path& input) {
    BuildRequest request;
    request.date = "2026-11-21";
    request.output.name = Utf8OfPath(TemporaryPath("built.dat"));
    request.inputs = {Utf8OfPath(input)};
    for (auto _ : state) {
        std::istringstream in;
        std::ostringstream out;
        if (RunBuild(request, in, out, out) != 0) {
            std::abort();
        }
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(std::filesystem::file_size(input)));
    std::filesystem::remove(input);
    std::filesystem::remove(PathOfUtf8(request.output.name));
}

// All of "brelex build", then its parts.
void BM_Build(benchmark::State& state) {
    BuildFrom(state, WriteTsv("shuffled", TsvOf(Shuffled(state.range(0)))));
}

void BM_ReadTsv(benchmark::State& state) {
    const auto path = WriteTsv("read", TsvOf(Shuffled(state.range(0))));
    for (auto _ : state) {
        std::vector<std::string> records;
        InputReport report;
        ReadTsvFile(path, records, report);
        benchmark::DoNotOptimize(records);
    }
    std::filesystem::remove(path);
}

void BM_SortAndCount(benchmark::State& state) {
    const std::vector<std::string> records = Shuffled(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        DatabaseContent content;
        content.records = records;
        state.ResumeTiming();
        benchmark::DoNotOptimize(BuildDatabase(std::move(content)));
    }
}

void BM_Compress(benchmark::State& state) {
    const auto expanded = ExpandSzdd(GeneratedDatabase(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(CompressSzdd(expanded->View()));
    }
}

void BM_CheckDatabase(benchmark::State& state) {
    const RecordStore& store = GeneratedStore(state.range(0));
    const DatabaseHeader header;
    for (auto _ : state) {
        benchmark::DoNotOptimize(CheckDatabase(header, store, FindFirstByPrefix));
    }
}

// A million bytes that take a build longest: whoever writes them must not be able to make it take
// more than a time in proportion to them.
enum HostileInput {
    OneLongAbbreviation,
    OneLongAbbreviationWithAccents,
    LongAbbreviationsThatDifferAtTheEnd,
    LongExpansionsThatDifferAtTheEnd,
    OneEntryAgainAndAgain,
    EqualBytes,
    TwoLetters,
    RunsOfFifteen
};

std::string HostileTsv(HostileInput kind, std::size_t bytes) {
    std::mt19937 random(3);
    std::string tsv;
    switch (kind) {
        case OneLongAbbreviation:
            return std::string(bytes, 'a') + "\tx\nb\ty\n";
        case OneLongAbbreviationWithAccents:
            for (std::size_t i = 0; i < bytes / 2; ++i) {
                tsv += "\xC3\xA9";
            }
            return tsv + "\tx\nb\ty\n";
        case LongAbbreviationsThatDifferAtTheEnd:
        case LongExpansionsThatDifferAtTheEnd:
            for (std::size_t i = 0; tsv.size() < bytes; ++i) {
                tsv += (kind == LongAbbreviationsThatDifferAtTheEnd ? "" : "a\t") +
                       std::string(2000, 'a') + std::to_string(random() % 1000) +
                       (kind == LongAbbreviationsThatDifferAtTheEnd ? "\tx\n" : "\n");
            }
            return tsv;
        case OneEntryAgainAndAgain:
            while (tsv.size() < bytes) {
                tsv += "TCP\tTransmission Control Protocol\n";
            }
            return tsv + "b\tx\n";
        case EqualBytes:
            return "a\t" + std::string(bytes, 'a') + "\n";
        case TwoLetters:
        case RunsOfFifteen:
            // Text in which what comes next has been seen often, but never all of it.
            tsv = "a\t";
            while (tsv.size() < bytes) {
                tsv += kind == TwoLetters
                           ? std::string(1, static_cast<char>('a' + random() % 2))
                           : std::string(15, 'a') + static_cast<char>('b' + random() % 24);
            }
            return tsv + "\n";
    }
    return tsv;
}

void BM_BuildHostile(benchmark::State& state, HostileInput kind) {
    const auto bytes = static_cast<std::size_t>(state.range(0));
    BuildFrom(state, WriteTsv("hostile", HostileTsv(kind, bytes)));
}

constexpr std::int64_t kRealSize = 12662;
constexpr std::int64_t kLargeSize = 1000000;

BENCHMARK(BM_Build)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadTsv)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortAndCount)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Compress)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CheckDatabase)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);

// clang-format off
BENCHMARK_CAPTURE(BM_BuildHostile, OneLongAbbreviation, OneLongAbbreviation)
    ->Arg(20000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_BuildHostile, OneLongAbbreviationWithAccents, OneLongAbbreviationWithAccents)
    ->Arg(20000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_BuildHostile, LongAbbreviationsThatDifferAtTheEnd, LongAbbreviationsThatDifferAtTheEnd)
    ->Arg(20000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_BuildHostile, LongExpansionsThatDifferAtTheEnd, LongExpansionsThatDifferAtTheEnd)
    ->Arg(20000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_BuildHostile, OneEntryAgainAndAgain, OneEntryAgainAndAgain)
    ->Arg(20000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_BuildHostile, EqualBytes, EqualBytes)
    ->Arg(20000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_BuildHostile, TwoLetters, TwoLetters)
    ->Arg(20000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_BuildHostile, RunsOfFifteen, RunsOfFifteen)
    ->Arg(20000)->Arg(1000000)->Unit(benchmark::kMillisecond);
// clang-format on

}  // namespace
}  // namespace brelex
