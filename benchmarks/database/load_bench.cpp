// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>

#include "base/file_io.h"
#include "benchmarks/support/generated_records.h"
#include "database/database_file.h"
#include "database/modDataLoader.h"
#include "database/szdd.h"
#include "platform/system/replace_file.h"
#include "platform/system/system_temporary_files.h"

namespace brelex {
namespace {

// A database file of `count` records on disk.
std::string FileOf(std::int64_t count) {
    static std::map<std::int64_t, std::string> files;
    std::string& path = files[count];
    if (path.empty()) {
        const auto file = std::filesystem::temp_directory_path() /
                          ("brelex-bench-" + std::to_string(count) + ".dat");
        if (!ReplaceFile(file, GeneratedDatabase(count))) {
            std::abort();
        }
        path = Utf8OfPath(file);
    }
    return path;
}

class SilentMessages final : public MessageSink {
  public:
    MessageAnswer Show(const Message& /*message*/) override { std::abort(); }
};

// Everything: reading, expanding, the temporary file, the index.
void BM_LoadDatabase(benchmark::State& state) {
    ProgramValues values;
    values.DatabasePath = FileOf(state.range(0));
    SystemTemporaryFiles files;
    WorkWatcher progress;
    SilentMessages messages;
    for (auto _ : state) {
        RecordStore store;
        benchmark::DoNotOptimize(LoadDatabase(values, store, {files, progress, messages}));
    }
}

// Without the temporary file.
void BM_ReadExpandIndex(benchmark::State& state) {
    const auto path = PathOfUtf8(FileOf(state.range(0)));
    for (auto _ : state) {
        DatabaseHeader header;
        RecordStore store;
        auto file = CompressedFile::Read(path);
        benchmark::DoNotOptimize(ReadDatabase(std::move(*file), header, store));
    }
}

void BM_Expand(benchmark::State& state) {
    const auto content = ReadWholeFile(PathOfUtf8(FileOf(state.range(0))));
    std::size_t bytes = 0;
    for (auto _ : state) {
        bytes += ExpandSzdd(content->View())->View().size();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

constexpr std::int64_t kRealSize = 12662;
constexpr std::int64_t kLargeSize = 1000000;

BENCHMARK(BM_LoadDatabase)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadExpandIndex)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Expand)->Arg(kRealSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brelex
