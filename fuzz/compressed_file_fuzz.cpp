// SPDX-License-Identifier: MIT
// Input: the four bytes of the declared length, then the compressed data.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "database/database_file.h"
#include "database/szdd.h"
#include "database/szdd_format.h"
#include "lookup/prefix_search.h"

namespace {

// Expands data as the format describes it, item by item with a ring.
std::string ExpandedWithARing(std::string_view data) {
    std::string ring(brelex::kRingBytes, ' ');
    std::size_t at = brelex::kRingStart;
    std::string out;
    const auto put = [&](char c) {
        out.push_back(c);
        ring[at] = c;
        at = (at + 1) % ring.size();
    };
    std::size_t next = 0;
    while (next < data.size()) {
        auto flags = static_cast<unsigned char>(data[next++]);
        for (int item = 0; item < 8; ++item, flags = static_cast<unsigned char>(flags >> 1U)) {
            const bool literal = (flags & 1U) != 0;
            if (data.size() - next < (literal ? 1 : 2)) {
                return out;
            }
            if (literal) {
                put(data[next++]);
                continue;
            }
            const auto first = static_cast<unsigned char>(data[next++]);
            const auto second = static_cast<unsigned char>(data[next++]);
            const std::size_t from = first | ((second & 0xF0U) << 4U);
            for (std::size_t i = 0; i < (second & 0x0FU) + brelex::kMinMatch; ++i) {
                put(ring[(from + i) % ring.size()]);
            }
        }
    }
    return out;
}

// Reads an expanded file whose header is made to pass the first checks, and uses every record.
void ReadRecords(std::string expanded) {
    brelex::DatabaseHeader header = brelex::DecodeHeader(expanded);
    header.DataSize = static_cast<std::int32_t>(expanded.size() - brelex::kHeaderBytes);
    expanded.replace(0, brelex::kHeaderBytes, brelex::EncodeHeader(header));
    brelex::RecordStore store;
    brelex::WorkWatcher nobody;
    if (brelex::ReadExpandedDatabase({*brelex::ExpandSzdd(expanded), 0}, header, store, nobody,
                                     [] {}) != brelex::LoadFailure::None) {
        return;
    }
    store.MeasureOrder();
    std::size_t bytes = 0;
    for (std::int32_t row = 0; row < store.RowCount(); ++row) {
        const std::string_view text = store.RowText(row);
        bytes += text.size() + 1;
        const std::int32_t found = brelex::FindFirstByPrefix(store, text.substr(0, 4));
        if (found < 0 || found >= store.RowCount() || text.find('\0') != std::string_view::npos) {
            std::abort();
        }
    }
    if (bytes > store.Block().size()) {
        std::abort();
    }
}

}  // namespace

// Expands, compares with what a ring gives, and loads it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kLengthBytes = 4;
    if (size < kLengthBytes) {
        return 0;
    }
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    std::string file(brelex::kSzddSignature);
    file.push_back('\0');
    file += input;
    const auto expanded = brelex::ExpandSzdd(file);
    if (!expanded || expanded->View() != ExpandedWithARing(input.substr(kLengthBytes))) {
        std::abort();
    }
    if (expanded->View().size() > brelex::kHeaderBytes) {
        ReadRecords(std::string(expanded->View()));
    }
    return 0;
}
