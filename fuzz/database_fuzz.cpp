// SPDX-License-Identifier: MIT
// Input: a byte for what follows (0: a database file, 1: an expanded one, 2: its records only, with
// a header that fits), two bytes of fields to change (a bit each), a byte of options (the low six
// bits: of the search; 64: the search list is the text; 128: the first temporary folder is full,
// and without letters all are), a text to look up and search for, a NUL, letters, a NUL; for each
// field to change two bytes; what was said to follow.
#include <type_traits>
#include <variant>

#include "base/windows1252.h"
#include "database/database_builder.h"
#include "database/database_check.h"
#include "database/database_statistics.h"
#include "database/integrity_check.h"
#include "database/modDataLoader.h"
#include "database/szdd.h"
#include "fuzz/fuzz_support.h"
#include "fuzz/search_options.h"
#include "lookup/abbreviation_finder.h"
#include "lookup/prefix_search.h"
#include "search/anagram.h"
#include "search/database_search.h"
#include "search/prepared_search.h"
#include "search/search_list.h"

namespace brelex {

namespace {

// The CRC-32 of bytes, bit by bit.
std::int32_t PlainCrc(std::string_view bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc & 1U) != 0 ? crc >> 1U ^ 0xEDB88320U : crc >> 1U;
        }
    }
    return static_cast<std::int32_t>(~crc);
}

std::vector<std::string_view> RecordsOf(std::string_view block) {
    std::vector<std::string_view> records;
    for (std::size_t end = block.find('\0'); end != std::string_view::npos;
         end = block.find('\0')) {
        records.push_back(block.substr(0, end));
        block.remove_prefix(end + 1);
    }
    return records;
}

// A header for the records, but for the fields that the input changes.
DatabaseHeader HeaderOf(std::string_view block, std::string_view searchList, unsigned changed,
                        FuzzInput& input) {
    DatabaseHeader header = ComputeStatistics(RecordsOf(block));
    header.Version = 1;
    header.ReleaseDate = 46347;
    header.DataSize = static_cast<std::int32_t>(block.size());
    header.DataCRC = PlainCrc(block);
    header.SearchListText = searchList;
    VisitFields([&](const char* /*name*/, auto member, FieldSource /*source*/) {
        using Field = std::remove_reference_t<decltype(header.*member)>;
        if ((changed & 1U) != 0) {
            if constexpr (std::is_arithmetic_v<Field>) {
                header.*member = static_cast<Field>(static_cast<std::int16_t>(input.TwoBytes()));
            }
        }
        changed >>= 1U;
    });
    return header;
}

// Keeps to a folder of its own and folders in it. Files can be written in all but the first `full`
// of them. If any is full, the system names none.
class Files final : public TemporaryFiles {
  public:
    Files(const FuzzFolder& folder, int full) : folder_(folder), full_(full) {
        std::filesystem::create_directory(folder_.Path() / "other");
    }

    [[nodiscard]] std::string Folder() const {
        return WithTrailingSeparator(Utf8OfPath(folder_.Path()));
    }

    [[nodiscard]] std::string GetTempFolder() const override { return full_ > 0 ? "" : Folder(); }

    [[nodiscard]] std::vector<std::string> OtherFolders() const override {
        return {Folder(), WithTrailingSeparator(Folder() + "other")};
    }

    [[nodiscard]] bool WriteNewFile(const std::string& path, std::string_view bytes) override {
        std::ofstream file(PathOfUtf8(path), std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return ++tried_ > full_ && file.flush().good();
    }

  private:
    const FuzzFolder& folder_;
    int full_;
    int tried_ = 0;
};

class Messages final : public MessageSink {
  public:
    MessageAnswer Show(const Message& message) override {
        Require(!message.text.empty(), "a message says something");
        ++count_;
        return MessageAnswer::Ok;
    }

    [[nodiscard]] int Count() const { return count_; }

  private:
    int count_ = 0;
};

class Progress final : public WorkWatcher {
  public:
    void SetProgress(int percent) override {
        Require(percent >= 0 && percent <= 100, "progress is a percentage");
    }
};

void CheckRecords(const RecordStore& store, std::string_view file) {
    const auto expanded = file.substr(kSzddHeaderBytes);
    const std::string wanted =
        file.starts_with(kSzddSignature) ? ExpandedWithARing(expanded) : std::string(file);
    const std::string_view block = std::string_view(wanted).substr(kHeaderBytes);
    const auto records = RecordsOf(block);
    Require(store.Block() == block, "the records are those of the file");
    Require(store.RowCount() >= 0 && static_cast<std::size_t>(store.RowCount()) <= records.size(),
            "there are no more rows than records");
    for (std::int32_t row = 0; row < store.RowCount(); ++row) {
        Require(store.RowText(row) == records[static_cast<std::size_t>(row)],
                "a row is the record of its number");
    }
}

void Search(const RecordStore& store, std::string_view text, unsigned options) {
    const PreparedSearch prepared = PrepareSearch(RequestOf(options, text), store);
    if (const auto* const finder = std::get_if<RecordFinder>(&prepared)) {
        const auto hits = SearchDatabase(*finder, store, 0, kMaxHits, nullptr).hits;
        Require(std::all_of(hits.begin(), hits.end(),
                            [&](std::int32_t row) { return finder->IsHit(store.RowText(row)); }),
                "what a search finds is a hit");
        (void)ResultText(store, hits);
    }
}

void LookUp(const RecordStore& store, std::string_view text) {
    const std::int32_t row = FindFirstByPrefix(store, text);
    Require(row == 0 || (row > 0 && row < store.RowCount()), "a look-up finds a row");
    AbbreviationFinder finder(store);
    (void)finder.Find(text);
    constexpr std::size_t kMost = 8;
    Require(finder.FindSimilar(text, kMost).size() <= kMost, "no more is found than asked for");
}

// Checks a file of which only the beginning is left since it was loaded.
void CheckCutFile(ProgramValues values, TemporaryFiles& files, const FuzzFolder& folder,
                  std::string_view file) {
    file.remove_suffix(file.size() / 4);
    values.DatabasePath = folder.Write("cut.dat", file);
    std::string expanded = file.size() >= kSzddHeaderBytes && file.starts_with(kSzddSignature)
                               ? ExpandedWithARing(file.substr(kSzddHeaderBytes))
                               : std::string(file);
    const auto length = static_cast<std::size_t>(values.Header.DataSize);
    std::string block = expanded.substr(std::min(kHeaderBytes, expanded.size()), length);
    block.resize(length, '\0');
    WorkWatcher nobody;
    Require(IsDataIntact(values, files, nobody) == (PlainCrc(block) == values.Header.DataCRC),
            "what is missing of a file counts as zeros");
    values.DatabasePath = folder.PathOf("missing.dat");
    Require(IsDataIntact(values, files, nobody) ==
                (PlainCrc(std::string(length, '\0')) == values.Header.DataCRC),
            "all of a file can be missing");
}

// Shows everything that the program says about a database.
void Describe(const ProgramValues& values, const RecordStore& store) {
    (void)StatisticsOf(values);
    (void)SearchListItems(values.Header.SearchListText);
    const bool isIntact = PlainCrc(store.Block()) == values.Header.DataCRC;
    const std::vector<std::string> findings =
        CheckDatabase(values.Header, store, FindFirstByPrefix);
    Require(isIntact || !findings.empty(), "a check finds a wrong CRC");
}

std::string FileOf(unsigned kind, std::string_view searchList, unsigned changed, FuzzInput& input) {
    if (kind == 0) {
        return std::string(input.Rest());
    }
    if (kind == 1) {
        return CompressSzdd(input.Rest());
    }
    FuzzInput fields = input;
    for (unsigned bits = changed; bits != 0; bits >>= 1U) {
        if ((bits & 1U) != 0) {
            (void)input.TwoBytes();
        }
    }
    const std::string block = std::string(input.Rest()) + '\0';
    return CompressSzdd(EncodeHeader(HeaderOf(block, searchList, changed, fields)) + block);
}

}  // namespace

}  // namespace brelex

// Loads the database as the program does, and uses it in every way.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const brelex::FuzzFolder folder;
    brelex::FuzzInput input(data, size);
    const unsigned kind = input.Byte() % 3;
    const unsigned changed = input.TwoBytes();
    const unsigned options = input.Byte();
    const std::string_view text = input.Text();
    const std::u32string letters = brelex::DecodeUtf8(input.Text());
    const std::string_view searchList = (options & 64U) != 0 ? text : "word1another";
    const std::string file = brelex::FileOf(kind, searchList, changed, input);

    brelex::RecordStore store;
    brelex::ProgramValues values;
    values.DatabasePath = folder.Write("Acronyms.dat", file);
    values.AcronymList = &store;
    const int full = (options & 128U) == 0 ? 0 : letters.empty() ? 2 : 1;
    brelex::Files files(folder, full);
    values.AppFolder = files.Folder();
    brelex::Messages messages;
    brelex::Progress progress;
    const bool isLoaded = brelex::LoadDatabase(values, store, {files, progress, messages});
    brelex::DatabaseHeader header;
    brelex::RecordStore other;
    brelex::Require(isLoaded == (full < 2 && brelex::ReadDatabase(file, header, other) ==
                                                 brelex::LoadFailure::None),
                    "a file can be loaded from the disk if it can be from memory");
    brelex::Require(messages.Count() == (isLoaded ? 0 : 1), "the user is told of each failure");
    if (!isLoaded) {
        brelex::Require(store.RowCount() == 0, "a failure leaves no rows");
        return 0;
    }
    brelex::CheckRecords(store, file);
    brelex::Require(brelex::IsDataIntact(values, files, progress) ==
                        (values.Header.DataCRC == brelex::PlainCrc(store.Block())),
                    "data are intact if their CRC is right");
    brelex::CheckCutFile(values, files, folder, file);
    brelex::Describe(values, store);
    brelex::LookUp(store, text);
    brelex::Search(store, text, options);
    (void)brelex::AnagramFinder(store).Find(brelex::AnagramLetters(letters), nullptr);
    return 0;
}
