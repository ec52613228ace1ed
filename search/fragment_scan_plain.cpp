// SPDX-License-Identifier: MIT
#include "search/fragment_scan.h"

namespace brelex {

std::vector<FragmentScan> VectorScans() {
    return {};
}

}  // namespace brelex
