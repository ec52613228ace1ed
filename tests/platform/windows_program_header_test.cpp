// SPDX-License-Identifier: MIT
// What the loader of Windows reads at the beginning of the programs.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "platform/system/program_folder.h"
#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

// The header of a 32-bit program, field by field as the format has it.
class ProgramHeader {
  public:
    explicit ProgramHeader(std::string bytes) : bytes_(std::move(bytes)) {
        constexpr std::size_t kPlaceOfOffset = 0x3C;
        coff_ = Double(kPlaceOfOffset) + 4;  // behind "PE" and two zeros
    }

    [[nodiscard]] bool IsProgramOf32Bit() const {
        return coff_ >= 4 && bytes_.compare(coff_ - 4, 4, std::string("PE\0\0", 4)) == 0 &&
               Word(Optional()) == 0x10B;
    }

    [[nodiscard]] std::uint32_t SymbolCount() const { return Double(coff_ + 12); }

    [[nodiscard]] unsigned Characteristics() const { return Word(coff_ + 18); }

    [[nodiscard]] std::string OsVersion() const { return Version(40); }

    [[nodiscard]] std::string SubsystemVersion() const { return Version(48); }

    [[nodiscard]] unsigned Subsystem() const { return Word(Optional() + 68); }

    [[nodiscard]] unsigned DllCharacteristics() const { return Word(Optional() + 70); }

    [[nodiscard]] std::vector<std::string> SectionNames() const {
        constexpr std::size_t kNameBytes = 8;
        constexpr std::size_t kSectionBytes = 40;
        std::vector<std::string> names;
        std::size_t at = Optional() + Word(coff_ + 16);
        for (unsigned left = Word(coff_ + 2); left > 0; --left, at += kSectionBytes) {
            const std::string name = bytes_.substr(at, kNameBytes);
            names.push_back(name.substr(0, name.find('\0')));
        }
        return names;
    }

  private:
    [[nodiscard]] std::size_t Optional() const { return coff_ + 20; }

    [[nodiscard]] unsigned Byte(std::size_t at) const {
        return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0U;
    }

    [[nodiscard]] unsigned Word(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8U; }

    [[nodiscard]] std::uint32_t Double(std::size_t at) const {
        return Word(at) | Word(at + 2) << 16U;
    }

    [[nodiscard]] std::string Version(std::size_t at) const {
        return std::to_string(Word(Optional() + at)) + "." +
               std::to_string(Word(Optional() + at + 2));
    }

    std::string bytes_;
    std::size_t coff_ = 0;
};

constexpr unsigned kWindows = 2;
constexpr unsigned kTerminal = 3;

struct HeaderCase {
    const char* name;
    const char* file;
    unsigned subsystem;
};

class ProgramHeaderTest : public testing::TestWithParam<HeaderCase> {
  protected:
    void SetUp() override { ASSERT_TRUE(header_.IsProgramOf32Bit()); }

    ProgramHeader header_{ReadText(PathOfUtf8(ProgramFolder() + GetParam().file))};
};

TEST_P(ProgramHeaderTest, HasNoSymbols) {
    if (!TEST_RELEASE) {
        GTEST_SKIP() << "only a release build goes without";
    }
    EXPECT_EQ(header_.SymbolCount(), 0U);
    for (const std::string& name : header_.SectionNames()) {
        // A longer name such as that of a debug section is a slash and the place of the name.
        EXPECT_NE(name.front(), '/') << name;
        EXPECT_FALSE(name.starts_with(".debug")) << name;
    }
}

TEST_P(ProgramHeaderTest, AsksForWindows7) {
    EXPECT_EQ(header_.OsVersion(), "6.1");
    EXPECT_EQ(header_.SubsystemVersion(), "6.1");
    EXPECT_EQ(header_.Subsystem(), GetParam().subsystem);
}

TEST_P(ProgramHeaderTest, LetsTheSystemProtectIt) {
    constexpr unsigned kDynamicBase = 0x40;
    constexpr unsigned kNxCompatible = 0x100;
    constexpr unsigned kNoExceptionHandlers = 0x400;
    for (const unsigned flag : {kDynamicBase, kNxCompatible, kNoExceptionHandlers}) {
        EXPECT_NE(header_.DllCharacteristics() & flag, 0U) << flag;
    }
    // Without its relocations the program could not be moved.
    constexpr unsigned kRelocationsStripped = 0x1;
    EXPECT_EQ(header_.Characteristics() & kRelocationsStripped, 0U);
    const std::vector<std::string> sections = header_.SectionNames();
    EXPECT_NE(std::find(sections.begin(), sections.end(), ".reloc"), sections.end());
}

TEST_P(ProgramHeaderTest, MayUseAllAddresses) {
    constexpr unsigned kLargeAddressAware = 0x20;
    EXPECT_NE(header_.Characteristics() & kLargeAddressAware, 0U);
}

INSTANTIATE_TEST_SUITE_P(Programs, ProgramHeaderTest,
                         testing::Values(HeaderCase{"Dictionary", "brevilexicon.exe", kWindows},
                                         HeaderCase{"Companion", "brelex.exe", kTerminal},
                                         HeaderCase{"HelpViewer", "brelex-help.exe", kWindows}),
                         CaseName());

}  // namespace
}  // namespace brelex
