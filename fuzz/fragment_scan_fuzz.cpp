// SPDX-License-Identifier: MIT
// Input: a byte for the first position, one for where each of the two tests is, one whose lowest
// bits say which of them ignore the case of letters, the fragment as a pattern (UTF-8), a NUL, the
// text.
#include "search/fragment_scan.h"

#include "base/windows1252.h"
#include "fuzz/fuzz_support.h"

namespace brelex {

namespace {

// A test that all bytes of a set pass, which is what a scan requires of it.
PlacedTest TestFor(const WildcardPattern::Segment& sets, unsigned place, bool ignoresCase) {
    const std::size_t at = place % sets.size();
    const unsigned ignored = ignoresCase ? 0x20U : 0U;
    unsigned lowest = 0xFF;
    unsigned highest = 0;
    for (unsigned byte = 0; byte < sets[at].size(); ++byte) {
        if (sets[at][byte]) {
            lowest = std::min(lowest, byte | ignored);
            highest = std::max(highest, byte | ignored);
        }
    }
    const unsigned span = highest >= lowest ? highest - lowest : 0;
    return {at,
            {static_cast<unsigned char>(ignored), static_cast<unsigned char>(lowest),
             static_cast<unsigned char>(span)}};
}

std::size_t PlainPlace(std::string_view text, std::size_t from, std::size_t end,
                       const WildcardPattern::Segment& sets) {
    while (from < end && !SegmentStandsAt(sets, text, from)) {
        ++from;
    }
    return from;
}

}  // namespace

}  // namespace brelex

// Looks for the fragment in each way that the processor knows.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brelex::FuzzInput input(data, size);
    const std::size_t wantedFrom = input.Byte();
    const unsigned firstPlace = input.Byte();
    const unsigned secondPlace = input.Byte();
    const unsigned ignores = input.Byte();
    const auto pattern =
        brelex::WildcardPattern::Compile(brelex::DecodeUtf8(input.Text()), (ignores & 4U) != 0);
    const std::string_view text = input.Rest();
    if (!pattern || pattern->Segments().front().empty() ||
        pattern->Segments().front().size() > text.size()) {
        return 0;
    }
    brelex::Fragment fragment;
    fragment.sets = pattern->Segments().front();
    fragment.rarest = {brelex::TestFor(fragment.sets, firstPlace, (ignores & 1U) != 0),
                       brelex::TestFor(fragment.sets, secondPlace, (ignores & 2U) != 0)};
    const std::size_t end = text.size() - fragment.sets.size() + 1;
    const std::size_t from = std::min(wantedFrom, end);
    const std::size_t place = brelex::PlainPlace(text, from, end, fragment.sets);
    brelex::Require(brelex::ScanPlainly(text, from, end, fragment) == place,
                    "the plain scan finds the first place");
    std::vector<brelex::FragmentScan> scans = brelex::VectorScans();
    scans.push_back(brelex::FastestScan());
    for (const brelex::FragmentScan scan : scans) {
        brelex::Require(scan(text, from, end, fragment) == place,
                        "each scan finds the first place");
    }
    return 0;
}
