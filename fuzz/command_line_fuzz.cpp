// SPDX-License-Identifier: MIT
// Input: a byte for the columns of the terminal (0: a pipe), a byte for its styles (0: none), the
// arguments (UTF-8), a NUL after each, one more NUL, the standard input. The files listed below can
// be named. An input with a path to any other folder is passed over.
#include "tools/command_line.h"

#include <algorithm>
#include <sstream>
#include <type_traits>

#include "base/windows1252.h"
#include "database/database_builder.h"
#include "database/szdd.h"
#include "fuzz/fuzz_support.h"
#include "tools/open_database.h"
#include "tools/visible_text.h"

namespace brelex {

namespace {

// A database of these records, which need not be in order or have a TAB.
std::string DatabaseOf(const std::vector<std::string_view>& records) {
    DatabaseHeader header = ComputeStatistics(records);
    header.Version = 1;
    header.SearchListText = "memory1\x1B[2J";
    std::string block;
    for (const std::string_view record : records) {
        block.append(record).push_back('\0');
    }
    header.DataSize = static_cast<std::int32_t>(block.size());
    return CompressSzdd(EncodeHeader(header) + block);
}

void WriteFiles(const FuzzFolder& folder) {
    folder.Clear();
    folder.Write("Acronyms.dat",
                 DatabaseOf({"ABC\tAtanasoff-Berry Computer", "PS/2\tPersonal System/2",
                             "RAM\tRandom Access Memory", "RAM\tRemote Area Monitoring",
                             "TCP/IP\tTransmission Control Protocol / Internet Protocol (a suite)",
                             "\311cole\tschool", "\212\tcaron"}));
    DatabaseContent good;
    good.version = 1;
    good.releaseDate = std::chrono::year(2026) / 11 / 21;
    good.records = {"ABC\tAtanasoff-Berry Computer", "RAM\tRandom Access Memory"};
    folder.Write("good.dat", CompressSzdd(BuildDatabase(std::move(good)).expanded));
    folder.Write("bad.dat", DatabaseOf({"", "no tab", "\x1B]0;title\x07\t\2332J", "B\t\r\n\x7F",
                                        "A\t\x81\xAD\xFF", "\"A,\\\t\"b\",c", "\t"}));
    folder.Write("damaged.dat", "SZDD");
    constexpr std::size_t kManyRecords = 520;  // more than a search returns
    folder.Write("many.dat", DatabaseOf(std::vector<std::string_view>(kManyRecords, "A\ta b")));
    folder.Write("list.tsv", "ABC\tAmerican Broadcasting Company\nXML\tmarkup\n");
    folder.Write("d.index", "ABC\tA\tS\n00-database-info\tS\tO\n");
    folder.Write("d.dict", "ABC\n   alpha beta\nXYZ\n    omega\n");
    folder.Write("corrections.tsv", "XYZ\tomega\tXYZ\tlast\n");
    folder.Write("corrected.tsv", "ABC\talpha beta\tABC\tbeta\n");
    folder.Write("bad.tsv", "\357\273\277A\tb\tc\nA\tb\nA\tb\nA\tb\t\t\x1B\nno tab\n");
    folder.Write("Licenses.txt", "licenses\n");
}

// Makes a folder the current one until it goes out of scope.
class InFolder {
  public:
    explicit InFolder(const FuzzFolder& folder) : before_(std::filesystem::current_path()) {
        std::filesystem::current_path(folder.Path());
    }

    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;

    ~InFolder() {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
    }

  private:
    std::filesystem::path before_;
};

// Where paths are not bytes, the system passes nothing but UTF-8 to a program.
bool CanBeArgument(std::string_view word) {
    constexpr bool kPathsAreBytes = std::is_same_v<std::filesystem::path::value_type, char>;
    return kPathsAreBytes || DecodeUtf8(word).find(U'\uFFFD') == std::u32string::npos;
}

// The arguments, or none if one of them may name a file elsewhere.
std::vector<std::string> ArgumentsOf(FuzzInput& input) {
    std::vector<std::string> arguments;
    for (std::string_view word = input.Text(); !word.empty(); word = input.Text()) {
        if (word.find_first_of("/\\:") != std::string_view::npos ||
            word.find("..") != std::string_view::npos || !CanBeArgument(word)) {
            return {};
        }
        arguments.emplace_back(word);
    }
    return arguments;
}

bool Names(const std::vector<std::string>& arguments, std::string_view command) {
    return std::find(arguments.begin(), arguments.end(), command) != arguments.end();
}

// Nothing in a database can make a terminal do anything.
void RequireHarmless(std::string text) {
    for (const std::string_view style : {"\x1B[1m", "\x1B[0m"}) {
        for (std::size_t at = text.find(style); at != std::string::npos; at = text.find(style)) {
            text.erase(at, style.size());
        }
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
        const bool isControl = byte < 0x20 || byte == 0x7F || (byte == 0xC2 && next < 0xA0);
        Require(!isControl || byte == '\n' || byte == '\t' || byte == '\r',
                "a terminal gets no control characters");
    }
}

// A text as the program writes it to a terminal.
std::string ShownText(const std::string& text) {
    std::ostringstream shown;
    {
        const VisibleOutput output(shown);
        for (std::size_t at = 0; at < text.size(); at += 7) {
            shown << text.substr(at, 7) << text[at];
            shown.flush();
        }
        shown.put('.');
    }
    return shown.str();
}

// A JSON array: brackets in pairs, and texts without control characters and with known escapes.
void RequireJson(std::string_view text) {
    constexpr std::string_view kEscapable = "\"\\/bfnrtu";
    std::string open;  // the brackets that are to be closed
    bool isInText = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (isInText) {
            Require(static_cast<unsigned char>(c) >= 0x20 && c != 0x7F,
                    "a text in JSON has no control characters");
            if (c == '\\') {
                ++i;
                Require(i < text.size() && kEscapable.find(text[i]) != std::string_view::npos,
                        "JSON knows the escape");
            }
        } else if (c == '[' || c == '{') {
            open.push_back(c == '[' ? ']' : '}');
        } else if (c == ']' || c == '}') {
            Require(open.ends_with(c), "brackets in JSON are pairs");
            open.pop_back();
        }
        isInText = isInText != (c == '"');
    }
    Require(open.empty() && !isInText, "JSON is complete");
}

}  // namespace

}  // namespace brelex

// Runs the command line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const brelex::FuzzFolder folder;
    static bool isChanged = true;
    brelex::FuzzInput input(data, size);
    const int columns = static_cast<int>(input.Byte());
    const bool hasStyles = input.Byte() != 0;
    const std::vector<std::string> arguments = brelex::ArgumentsOf(input);
    if (std::exchange(isChanged, false)) {
        brelex::WriteFiles(folder);
    }
    isChanged =
        isChanged || brelex::Names(arguments, "build") || brelex::Names(arguments, "export");
    const brelex::InFolder here(folder);
    std::istringstream in{std::string(input.Rest())};
    std::ostringstream out;
    std::ostringstream err;
    const int code =
        brelex::RunCommandLine(arguments, {in, out, err, {columns, hasStyles}, folder.PathOf("")});
    brelex::Require(code >= brelex::kFound && code <= brelex::kFailed,
                    "an exit code has a meaning");
    brelex::Require(code != brelex::kFailed || err.str().starts_with("brelex: ") ||
                        err.str().find("\nbrelex: ") != std::string::npos,
                    "a failure has a reason");
    // No entry of these databases begins like that; a file that "build" reports may.
    if (out.str().starts_with("[") && !brelex::Names(arguments, "build")) {
        brelex::RequireJson(out.str());
    }
    brelex::RequireHarmless(brelex::ShownText(out.str() + err.str()));
    const bool isDatabase = out.str().starts_with(brelex::kSzddSignature);  // from "build -o -"
    if (columns > 0 && !isDatabase) {
        brelex::RequireHarmless(out.str());
    }
    return 0;
}
