// SPDX-License-Identifier: MIT
#include "search/fragment_scan.h"

namespace brelex {

std::size_t ScanPlainly(std::string_view text, std::size_t from, std::size_t end,
                        const Fragment& fragment) {
    while (from < end && !(fragment.rarest.Passes(text.data() + from) &&
                           SegmentStandsAt(fragment.sets, text, from))) {
        ++from;
    }
    return from;
}

FragmentScan FastestScan() {
    static const FragmentScan fastest = [] {
        const std::vector<FragmentScan> vectorScans = VectorScans();
        return vectorScans.empty() ? ScanPlainly : vectorScans.back();
    }();
    return fastest;
}

}  // namespace brelex
