// SPDX-License-Identifier: MIT
// Input: a byte for how the dictionary is stored (0: as it is, otherwise as a gzip file made of it,
// with that level of compression), the index, a NUL, the dictionary.
#include <zlib.h>

#include "base/windows1252.h"
#include "fuzz/fuzz_support.h"
#include "tools/corrections.h"
#include "tools/dictd_reader.h"

namespace brelex {

namespace {

std::string GzipFileOf(std::string_view bytes, int level) {
    constexpr int kWindowOfGzip = MAX_WBITS + 16;
    constexpr int kMemory = 8;
    z_stream stream{};
    Require(deflateInit2(&stream, level, Z_DEFLATED, kWindowOfGzip, kMemory, Z_DEFAULT_STRATEGY) ==
                Z_OK,
            "zlib compresses");
    std::string input(bytes);
    std::string file(deflateBound(&stream, static_cast<uLong>(input.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    stream.next_out = reinterpret_cast<Bytef*>(file.data());
    stream.avail_out = static_cast<uInt>(file.size());
    Require(deflate(&stream, Z_FINISH) == Z_STREAM_END, "a gzip file has the length foretold");
    file.resize(stream.total_out);
    deflateEnd(&stream);
    return file;
}

struct ReadEntries {
    std::vector<std::string> records;
    InputReport report;
};

ReadEntries Read(std::string_view index, std::string_view dictionary) {
    ReadEntries read;
    ReadDictd({"a.index", index}, {"a.dict", dictionary}, read.records, read.report);
    return read;
}

// A dictionary in two files has the same entries, whichever of its names the second file has.
void CheckFiles(std::string_view index, std::string_view dictionary,
                const std::vector<std::string>& wanted) {
    static const FuzzFolder folder;
    for (const auto& [indexName, dictionaryName] :
         {std::pair("a.index", "a.dict.dz"), std::pair("b.index", "b.dict")}) {
        const auto indexPath = PathOfUtf8(folder.Write(indexName, index));
        const auto dictionaryPath = PathOfUtf8(folder.Write(dictionaryName, dictionary));
        Require(DictionaryOfIndex(indexPath) == dictionaryPath &&
                    IndexOfDictionary(dictionaryPath) == indexPath,
                "the two files find each other");
        std::vector<std::string> records;
        InputReport report;
        ReadDictdPair(indexPath, records, report);
        Require(records == wanted, "a dictionary in files has the same entries");
    }
}

// Leaves out the first entry, unless a correction cannot name it.
void CheckCorrection(std::string_view index, std::string_view dictionary,
                     std::vector<std::string> wanted) {
    if (wanted.empty() || std::count(wanted[0].begin(), wanted[0].end(), '\t') != 1) {
        return;
    }
    static const FuzzFolder folder;
    const std::string first = wanted.front();
    Corrections corrections;
    InputReport report;
    corrections.ReadFile(PathOfUtf8(folder.Write("corrections.tsv", Utf8OfBytes(first))), report);
    Require(report.errors.empty(), "an entry can be left out");
    std::erase(wanted, first);
    std::vector<std::string> records;
    ReadDictd({"a.index", index}, {"a.dict", dictionary}, records, report, &corrections);
    Require(records == wanted, "a correction leaves out its entry and no other");
}

void CheckArticle(std::string_view article) {
    for (const auto& entries : {EntriesOfArticle(article), EntriesOfHeaderArticle(article)}) {
        for (const DictdEntry& entry : entries) {
            Require(!entry.expansion.empty(), "an entry has an expansion");
            Require((entry.abbreviation + entry.expansion).find('\n') == std::string::npos,
                    "the lines of an entry are joined");
        }
    }
}

}  // namespace

}  // namespace brelex

// Reads the dictionary. It does not matter whether it is compressed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brelex::FuzzInput input(data, size);
    const int level = static_cast<int>(input.Byte() % 10);
    const std::string_view index = input.Text();
    const std::string_view dictionary = input.Rest();
    const brelex::ReadEntries read = brelex::Read(index, dictionary);
    std::for_each(read.records.begin(), read.records.end(), brelex::RequireStorable);
    const bool isCompressed = dictionary.starts_with("\x1f\x8b");
    if (level > 0 && !isCompressed) {
        const auto same = brelex::Read(index, brelex::GzipFileOf(dictionary, level));
        brelex::Require(same.records == read.records && same.report.errors == read.report.errors &&
                            same.report.warnings == read.report.warnings,
                        "a compressed dictionary has the same entries");
    }
    brelex::CheckFiles(index, dictionary, read.records);
    brelex::CheckCorrection(index, dictionary, read.records);
    brelex::CheckArticle(dictionary);
    return 0;
}
