// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace brelex {

/// Who follows the computing of a CRC and may end it.
class CrcWatcher {
  public:
    CrcWatcher() = default;
    CrcWatcher(const CrcWatcher&) = delete;
    CrcWatcher& operator=(const CrcWatcher&) = delete;
    virtual ~CrcWatcher() = default;

    /// So many percent are done, to the nearest, halves to even: about 100 times from 0 on, and 100
    /// at the end, also at an early one.
    virtual void DrawProgress(int percent) = 0;

    /// Time to let events run, behind each progress but the last. The computing ends if this
    /// returns false.
    [[nodiscard]] virtual bool OnPause() = 0;
};

/// The CRC-32 of IEEE 802.3 and zip (reflected, polynomial EDB88320 hex) of `bytes`; 0 for none.
/// If `watcher`, which may be null, ends the computing, the value means nothing.
[[nodiscard]] std::int32_t GetCRCFromByteArray(std::string_view bytes,
                                               CrcWatcher* watcher = nullptr);

}  // namespace brelex
