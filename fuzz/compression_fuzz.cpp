// SPDX-License-Identifier: MIT
// Input: two bytes whose highest bit says whether there is a copy of the text, and the rest how
// many bytes are between the two; then the text.
#include "database/szdd.h"
#include "fuzz/fuzz_support.h"

// Compresses and expands again. A copy lets matches reach back as far as they can.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brelex::FuzzInput input(data, size);
    const unsigned copy = input.TwoBytes();
    const std::size_t gap = copy % (2 * brelex::kRingBytes);
    std::string text(input.Rest());
    if (copy >> 15U != 0) {
        // Bytes that follow no pattern soon, so that they do not compress.
        std::minstd_rand random(static_cast<std::uint32_t>(gap));
        for (std::size_t i = 0; i < gap; ++i) {
            text.push_back(static_cast<char>(random() >> 8U));
        }
        text += input.Rest();
    }
    const std::string file = brelex::CompressSzdd(text);
    brelex::Require(file.size() <= brelex::kSzddHeaderBytes + text.size() + (text.size() + 7) / 8,
                    "no file is longer than one of literals only");
    const std::string_view compressed = std::string_view(file).substr(brelex::kSzddHeaderBytes);
    brelex::Require(brelex::ExpandedWithARing(compressed) == text, "a ring gives back the text");
    const auto back = brelex::ExpandSzdd(file, text.size());
    brelex::Require(back && back->View() == text, "expanding gives back the text");
    return 0;
}
