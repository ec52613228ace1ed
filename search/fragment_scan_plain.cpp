// SPDX-License-Identifier: MIT
#include "search/fragment_scan.h"

namespace brelex {

std::vector<PositionScan> VectorScans() {
    return {};
}

}  // namespace brelex
