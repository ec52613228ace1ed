// SPDX-License-Identifier: MIT
#include "database/string_order.h"

#include <algorithm>
#include <cstddef>

#include "base/windows1252.h"

namespace brelex {

// Each line has eight bytes. Its comment names the first of them.
// clang-format off
constexpr std::array<ByteWeight, 256> kByteWeights = {{
    {0, 0, 0, 0}, {1, 0, 0, 0}, {2, 0, 0, 0}, {3, 0, 0, 0}, {4, 0, 0, 0}, {5, 0, 0, 0}, {6, 0, 0, 0}, {7, 0, 0, 0},  // 00
    {8, 0, 0, 0}, {34, 0, 0, 0}, {35, 0, 0, 0}, {36, 0, 0, 0}, {37, 0, 0, 0}, {38, 0, 0, 0}, {9, 0, 0, 0}, {10, 0, 0, 0},  // 08
    {11, 0, 0, 0}, {12, 0, 0, 0}, {13, 0, 0, 0}, {14, 0, 0, 0}, {15, 0, 0, 0}, {16, 0, 0, 0}, {17, 0, 0, 0}, {18, 0, 0, 0},  // 10
    {19, 0, 0, 0}, {20, 0, 0, 0}, {21, 0, 0, 0}, {22, 0, 0, 0}, {23, 0, 0, 0}, {24, 0, 0, 0}, {25, 0, 0, 0}, {26, 0, 0, 0},  // 18
    {32, 0, 0, 0}, {39, 0, 0, 0}, {40, 0, 0, 0}, {41, 0, 0, 0}, {42, 0, 0, 0}, {43, 0, 0, 0}, {44, 0, 0, 0}, {28, 0, 0, 0},  // 20
    {45, 0, 0, 0}, {46, 0, 0, 0}, {47, 0, 0, 0}, {86, 0, 0, 0}, {48, 0, 0, 0}, {29, 0, 0, 0}, {49, 0, 0, 0}, {50, 0, 0, 0},  // 28
    {109, 0, 0, 0}, {113, 0, 0, 0}, {114, 0, 0, 0}, {115, 0, 0, 0}, {116, 0, 0, 0}, {117, 0, 0, 0}, {118, 0, 0, 0}, {119, 0, 0, 0},  // 30
    {120, 0, 0, 0}, {121, 0, 0, 0}, {51, 0, 0, 0}, {52, 0, 0, 0}, {87, 0, 0, 0}, {88, 0, 0, 0}, {89, 0, 0, 0}, {53, 0, 0, 0},  // 38
    {54, 0, 0, 0}, {122, 0, 0, 0}, {123, 0, 0, 0}, {124, 0, 0, 0}, {125, 0, 0, 0}, {126, 0, 0, 0}, {127, 0, 0, 0}, {128, 0, 0, 0},  // 40
    {129, 0, 0, 0}, {130, 0, 0, 0}, {131, 0, 0, 0}, {132, 0, 0, 0}, {133, 0, 0, 0}, {134, 0, 0, 0}, {135, 0, 0, 0}, {136, 0, 0, 0},  // 48
    {137, 0, 0, 0}, {138, 0, 0, 0}, {139, 0, 0, 0}, {140, 0, 0, 0}, {141, 0, 0, 0}, {143, 0, 0, 0}, {144, 0, 0, 0}, {145, 0, 0, 0},  // 50
    {146, 0, 0, 0}, {147, 0, 0, 0}, {148, 0, 0, 0}, {55, 0, 0, 0}, {56, 0, 0, 0}, {57, 0, 0, 0}, {58, 0, 0, 0}, {59, 0, 0, 0},  // 58
    {60, 0, 0, 0}, {122, 0, 0, 0}, {123, 0, 0, 0}, {124, 0, 0, 0}, {125, 0, 0, 0}, {126, 0, 0, 0}, {127, 0, 0, 0}, {128, 0, 0, 0},  // 60
    {129, 0, 0, 0}, {130, 0, 0, 0}, {131, 0, 0, 0}, {132, 0, 0, 0}, {133, 0, 0, 0}, {134, 0, 0, 0}, {135, 0, 0, 0}, {136, 0, 0, 0},  // 68
    {137, 0, 0, 0}, {138, 0, 0, 0}, {139, 0, 0, 0}, {140, 0, 0, 0}, {141, 0, 0, 0}, {143, 0, 0, 0}, {144, 0, 0, 0}, {145, 0, 0, 0},  // 70
    {146, 0, 0, 0}, {147, 0, 0, 0}, {148, 0, 0, 0}, {61, 0, 0, 0}, {62, 0, 0, 0}, {63, 0, 0, 0}, {64, 0, 0, 0}, {27, 0, 0, 0},  // 78
    {85, 0, 0, 0}, {108, 0, 11, 0}, {75, 0, 0, 0}, {127, 0, 17, 0}, {78, 0, 0, 0}, {103, 0, 0, 0}, {104, 0, 0, 0}, {105, 0, 0, 0},  // 80
    {58, 0, 0, 0}, {107, 0, 2, 0}, {140, 0, 7, 0}, {79, 0, 0, 0}, {136, 126, 0, 0}, {108, 0, 13, 0}, {148, 0, 7, 0}, {108, 0, 14, 0},  // 88
    {108, 0, 15, 0}, {73, 0, 0, 0}, {74, 0, 0, 0}, {76, 0, 0, 0}, {77, 0, 0, 0}, {106, 0, 0, 0}, {30, 0, 0, 0}, {31, 0, 0, 0},  // 90
    {72, 0, 0, 0}, {142, 0, 0, 0}, {140, 0, 7, 0}, {80, 0, 0, 0}, {136, 126, 0, 0}, {108, 0, 16, 0}, {148, 0, 7, 0}, {147, 0, 6, 0},  // 98
    {33, 0, 0, 0}, {65, 0, 0, 0}, {81, 0, 0, 0}, {82, 0, 0, 0}, {83, 0, 0, 0}, {84, 0, 0, 0}, {66, 0, 0, 0}, {95, 0, 0, 0},  // A0
    {67, 0, 0, 0}, {96, 0, 0, 0}, {122, 0, 1, 1}, {91, 0, 0, 0}, {97, 0, 0, 0}, {0, 0, 0, 0}, {98, 0, 0, 0}, {68, 0, 0, 0},  // A8
    {99, 0, 0, 0}, {90, 0, 0, 0}, {114, 0, 0, 1}, {115, 0, 0, 1}, {69, 0, 0, 0}, {100, 0, 0, 0}, {101, 0, 0, 0}, {102, 0, 0, 0},  // B0
    {70, 0, 0, 0}, {113, 0, 0, 1}, {136, 0, 1, 1}, {92, 0, 0, 0}, {110, 0, 0, 0}, {111, 0, 0, 0}, {112, 0, 0, 0}, {71, 0, 0, 0},  // B8
    {122, 0, 4, 0}, {122, 0, 3, 0}, {122, 0, 5, 0}, {122, 0, 8, 0}, {122, 0, 6, 0}, {122, 0, 9, 0}, {122, 126, 0, 0}, {124, 0, 10, 0},  // C0
    {126, 0, 4, 0}, {126, 0, 3, 0}, {126, 0, 5, 0}, {126, 0, 6, 0}, {130, 0, 4, 0}, {130, 0, 3, 0}, {130, 0, 5, 0}, {130, 0, 6, 0},  // C8
    {125, 0, 18, 0}, {135, 0, 8, 0}, {136, 0, 4, 0}, {136, 0, 3, 0}, {136, 0, 5, 0}, {136, 0, 8, 0}, {136, 0, 6, 0}, {93, 0, 0, 0},  // D0
    {136, 0, 12, 0}, {143, 0, 4, 0}, {143, 0, 3, 0}, {143, 0, 5, 0}, {143, 0, 6, 0}, {147, 0, 3, 0}, {141, 129, 0, 0}, {140, 140, 0, 0},  // D8
    {122, 0, 4, 0}, {122, 0, 3, 0}, {122, 0, 5, 0}, {122, 0, 8, 0}, {122, 0, 6, 0}, {122, 0, 9, 0}, {122, 126, 0, 0}, {124, 0, 10, 0},  // E0
    {126, 0, 4, 0}, {126, 0, 3, 0}, {126, 0, 5, 0}, {126, 0, 6, 0}, {130, 0, 4, 0}, {130, 0, 3, 0}, {130, 0, 5, 0}, {130, 0, 6, 0},  // E8
    {125, 0, 18, 0}, {135, 0, 8, 0}, {136, 0, 4, 0}, {136, 0, 3, 0}, {136, 0, 5, 0}, {136, 0, 8, 0}, {136, 0, 6, 0}, {94, 0, 0, 0},  // F0
    {136, 0, 12, 0}, {143, 0, 4, 0}, {143, 0, 3, 0}, {143, 0, 5, 0}, {143, 0, 6, 0}, {147, 0, 3, 0}, {141, 129, 0, 0}, {147, 0, 6, 0},  // F8
}};

// clang-format on

constexpr std::array<std::uint8_t, 256> kPlainWeights = [] {
    std::array<std::uint8_t, 256> weights{};
    std::transform(kByteWeights.begin(), kByteWeights.end(), weights.begin(),
                   [](const ByteWeight& weight) {
                       return weight.IsPlain() ? weight.primary : std::uint8_t{0};
                   });
    return weights;
}();

namespace {

// Walks the elements of a text in order.
class ElementCursor {
  public:
    explicit ElementCursor(std::string_view text) : text_(text) { SkipIgnored(); }

    [[nodiscard]] bool AtEnd() const { return position_ == text_.size(); }

    [[nodiscard]] std::uint8_t Primary() const {
        const ByteWeight& weight = WeightOf(text_[position_]);
        return inSecond_ ? weight.secondPrimary : weight.primary;
    }

    [[nodiscard]] std::uint8_t Accent() const { return WeightOf(text_[position_]).accent; }

    [[nodiscard]] std::uint8_t Residue() const { return WeightOf(text_[position_]).residue; }

    void Advance() {
        if (!inSecond_ && WeightOf(text_[position_]).secondPrimary != 0) {
            inSecond_ = true;
            return;
        }
        inSecond_ = false;
        ++position_;
        SkipIgnored();
    }

  private:
    void SkipIgnored() {
        while (position_ < text_.size() && WeightOf(text_[position_]).primary == 0) {
            ++position_;
        }
    }

    std::string_view text_;
    std::size_t position_ = 0;
    bool inSecond_ = false;
};

std::weak_ordering CompareElements(std::string_view left, std::string_view right) {
    ElementCursor a(left);
    ElementCursor b(right);
    std::weak_ordering byAccent = std::weak_ordering::equivalent;
    std::weak_ordering byResidue = std::weak_ordering::equivalent;
    while (!a.AtEnd() && !b.AtEnd()) {
        if (a.Primary() != b.Primary()) {
            return a.Primary() <=> b.Primary();
        }
        if (byAccent == std::weak_ordering::equivalent) {
            byAccent = a.Accent() <=> b.Accent();
        }
        if (byResidue == std::weak_ordering::equivalent) {
            byResidue = a.Residue() <=> b.Residue();
        }
        a.Advance();
        b.Advance();
    }
    if (a.AtEnd() != b.AtEnd()) {
        return a.AtEnd() ? std::weak_ordering::less : std::weak_ordering::greater;
    }
    return byAccent != std::weak_ordering::equivalent ? byAccent : byResidue;
}

}  // namespace

std::weak_ordering CompareTexts(std::string_view left, std::string_view right) {
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (left[i] == right[i]) {
            continue;  // the same elements in both texts
        }
        const std::uint8_t a = PlainWeightOf(left[i]);
        const std::uint8_t b = PlainWeightOf(right[i]);
        if (a == 0 || b == 0) {
            return CompareElements(left.substr(i), right.substr(i));
        }
        if (a != b) {
            return a <=> b;
        }
    }
    return CompareElements(left.substr(common), right.substr(common));
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
    return CompareTexts(left, right) == std::weak_ordering::equivalent;
}

bool EqualIgnoringCaseUtf8(std::string_view left, std::string_view right) {
    const EncodedText a = BytesOfUtf8(left);
    const EncodedText b = BytesOfUtf8(right);
    return a.complete && b.complete ? EqualIgnoringCase(a.bytes, b.bytes) : left == right;
}

}  // namespace brelex
