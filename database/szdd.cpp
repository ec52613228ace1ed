// SPDX-License-Identifier: MIT
#include "database/szdd.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace brelex {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kSignature = "SZDD\x88\xF0\x27\x33\x41"sv;  // 41 hex: the LZSS method
constexpr std::size_t kFileHeaderBytes = 14;  // signature, method, missing character, length
constexpr std::size_t kRingBytes = 4096;
constexpr std::size_t kRingStart = kRingBytes - 16;  // where the first byte goes in the ring
constexpr std::size_t kMinMatch = 3;
constexpr std::size_t kMaxMatch = 18;

// One group is a byte of eight flags and eight items of at most two bytes.
constexpr std::size_t kMaxGroupInput = 1 + 8 * 2;
constexpr std::size_t kMaxGroupOutput = 8 * kMaxMatch;

// Expands into one growing buffer that begins with the ring's first content, 4096 blanks. So every
// match is a copy within the buffer, and no ring is needed.
class Expander {
  public:
    Expander(std::string_view data, std::size_t mostBytes)
        : next_(data.data()),
          end_(data.data() + data.size()),
          mostBytes_(mostBytes) {}

    std::optional<ExpandedFile> Run(std::size_t expectedBytes) {
        if (!Grow(expectedBytes)) {
            return std::nullopt;
        }
        std::memset(buffer_.Data(), ' ', kRingBytes);
        while (next_ != end_) {
            if (used_ + kMaxGroupOutput > buffer_.Size()) {
                const std::size_t soFar = used_ - kRingBytes;
                if (soFar > mostBytes_ || !Grow(soFar * 2)) {
                    return std::nullopt;
                }
            }
            if (static_cast<std::size_t>(end_ - next_) >= kMaxGroupInput) {
                ExpandWholeGroup();
            } else {
                ExpandLastGroup();
            }
        }
        const std::size_t size = used_ - kRingBytes;
        if (size > mostBytes_) {
            return std::nullopt;
        }
        return ExpandedFile(std::move(buffer_), kRingBytes, size);
    }

  private:
    // Makes room for `bytes` of output and one more group. Returns false if memory is short.
    [[nodiscard]] bool Grow(std::size_t bytes) {
        ByteBuffer larger(kRingBytes + bytes + kMaxGroupOutput);
        if (larger.IsNull()) {
            return false;
        }
        if (used_ > kRingBytes) {
            std::memcpy(larger.Data(), buffer_.Data(), used_);
        }
        buffer_ = std::move(larger);
        return true;
    }

    // Expands eight items, all of which are in the input.
    void ExpandWholeGroup() {
        auto flags = static_cast<unsigned char>(*next_++);
        for (int item = 0; item < 8; ++item, flags = static_cast<unsigned char>(flags >> 1U)) {
            if ((flags & 1U) != 0) {
                buffer_.Data()[used_++] = *next_++;
            } else {
                CopyMatch(static_cast<unsigned char>(next_[0]),
                          static_cast<unsigned char>(next_[1]));
                next_ += 2;
            }
        }
    }

    // The same near the end of the input, which may end anywhere.
    void ExpandLastGroup() {
        auto flags = static_cast<unsigned char>(*next_++);
        for (int item = 0; item < 8; ++item, flags = static_cast<unsigned char>(flags >> 1U)) {
            const bool literal = (flags & 1U) != 0;
            if (end_ - next_ < (literal ? 1 : 2)) {
                next_ = end_;
                return;
            }
            if (literal) {
                buffer_.Data()[used_++] = *next_++;
            } else {
                CopyMatch(static_cast<unsigned char>(next_[0]),
                          static_cast<unsigned char>(next_[1]));
                next_ += 2;
            }
        }
    }

    void CopyMatch(unsigned char first, unsigned char second) {
        const std::size_t ringPosition = first | ((second & 0xF0U) << 4U);
        const std::size_t length = (second & 0x0FU) + kMinMatch;
        const std::size_t ringNext = used_ + kRingStart;  // modulo the ring's size
        // 1 to 4096: the next position to be written still has the byte from one round ago.
        const std::size_t distance = ((ringNext - ringPosition - 1) % kRingBytes) + 1;
        char* const to = buffer_.Data() + used_;
        const char* const from = to - distance;
        if (distance >= kMaxMatch) {
            std::memcpy(to, from, kMaxMatch);  // a fixed size is fast; any excess is overwritten
        } else {
            for (std::size_t i = 0; i < length; ++i) {  // repeats what it has just written
                to[i] = from[i];
            }
        }
        used_ += length;
    }

    const char* next_;
    const char* end_;
    std::size_t mostBytes_;
    ByteBuffer buffer_;
    std::size_t used_ = kRingBytes;
};

std::size_t DeclaredLength(std::string_view file) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        length |= std::size_t{static_cast<unsigned char>(file[10 + i])} << (8 * i);
    }
    return length;
}

// Finds the longest earlier run of the bytes at a position. Positions with the same three bytes are
// chained from the newest to the oldest.
class MatchFinder {
  public:
    explicit MatchFinder(std::string_view bytes)
        : bytes_(bytes),
          newest_(kBuckets, kNone),
          older_(kRingBytes, kNone) {}

    struct Match {
        std::size_t position = 0;
        std::size_t length = 0;
    };

    void Insert(std::size_t position) {
        if (position + kMinMatch <= bytes_.size()) {
            std::uint32_t& head = newest_[Bucket(position)];
            older_[position % kRingBytes] = head;
            head = static_cast<std::uint32_t>(position);
        }
    }

    [[nodiscard]] Match Longest(std::size_t position) const {
        Match best;
        const std::size_t limit = std::min(kMaxMatch, bytes_.size() - position);
        if (limit < kMinMatch) {
            return best;
        }
        const char* const here = bytes_.data() + position;
        std::uint32_t candidate = newest_[Bucket(position)];
        for (int tries = 0; tries < kMaxTries && candidate != kNone; ++tries) {
            if (position - candidate > kMaxDistance) {
                break;
            }
            const char* const there = bytes_.data() + candidate;
            // A run can be longer than the best one only if it has the next byte, too.
            if (there[best.length] == here[best.length]) {
                const char* const end = std::mismatch(here, here + limit, there).first;
                const auto length = static_cast<std::size_t>(end - here);
                if (length == limit) {
                    return {candidate, length};
                }
                if (length > best.length) {
                    best = {candidate, length};
                }
            }
            candidate = older_[candidate % kRingBytes];
        }
        return best;
    }

  private:
    static constexpr std::size_t kBuckets = std::size_t{1} << 15U;
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;
    static constexpr int kMaxTries = 256;
    // A classic encoder keeps the next 18 bytes in the same ring, so its files never reach further
    // back than this. Neither do ours.
    static constexpr std::size_t kMaxDistance = kRingBytes - kMaxMatch;

    [[nodiscard]] std::size_t Bucket(std::size_t position) const {
        const auto byte = [&](std::size_t i) {
            return std::uint32_t{static_cast<unsigned char>(bytes_[position + i])};
        };
        return ((byte(0) | byte(1) << 8U | byte(2) << 16U) * 2654435761U) >> 17U;
    }

    std::string_view bytes_;
    std::vector<std::uint32_t> newest_;
    std::vector<std::uint32_t> older_;
};

// Writes items in groups of eight, each after its byte of flags.
class GroupWriter {
  public:
    explicit GroupWriter(std::string& file) : file_(file) {}

    void Literal(char byte) {
        BeginItem(true);
        file_.push_back(byte);
    }

    void Match(std::size_t position, std::size_t length) {
        BeginItem(false);
        const std::size_t ringPosition = (position + kRingStart) % kRingBytes;
        file_.push_back(static_cast<char>(ringPosition & 0xFFU));
        file_.push_back(static_cast<char>(((ringPosition >> 4U) & 0xF0U) | (length - kMinMatch)));
    }

  private:
    void BeginItem(bool literal) {
        if (items_ % 8 == 0) {
            flagsAt_ = file_.size();
            file_.push_back(0);
        }
        if (literal) {
            const unsigned flags = static_cast<unsigned char>(file_[flagsAt_]) | 1U << (items_ % 8);
            file_[flagsAt_] = static_cast<char>(flags);
        }
        ++items_;
    }

    std::string& file_;
    std::size_t flagsAt_ = 0;
    std::size_t items_ = 0;
};

}  // namespace

std::optional<ExpandedFile> ExpandSzdd(std::string_view file, std::size_t mostBytes) {
    if (file.size() < kFileHeaderBytes || !file.starts_with(kSignature)) {
        if (file.size() > mostBytes) {
            return std::nullopt;
        }
        ByteBuffer copy(file.size());
        if (copy.IsNull()) {
            return std::nullopt;
        }
        std::copy(file.begin(), file.end(), copy.Data());
        return ExpandedFile(std::move(copy), 0, file.size());
    }
    const std::string_view data = file.substr(kFileHeaderBytes);
    // Whatever length is declared, reserves no more than the data can expand to.
    const std::size_t most = (data.size() / kMaxGroupInput + 1) * kMaxGroupOutput;
    return Expander(data, mostBytes).Run(std::min({DeclaredLength(file), most, mostBytes}));
}

std::string CompressSzdd(std::string_view bytes) {
    assert(bytes.size() <= kMaxExpandedBytes);
    std::string file(kSignature);
    file.push_back(0);  // the missing character of a name that ends in "_", which ours does not
    for (std::size_t i = 0; i < 4; ++i) {
        file.push_back(static_cast<char>((bytes.size() >> (8 * i)) & 0xFFU));
    }
    MatchFinder finder(bytes);
    GroupWriter groups(file);
    std::size_t position = 0;
    while (position < bytes.size()) {
        const auto match = finder.Longest(position);
        finder.Insert(position);
        // A longer match at the next byte is worth a literal now.
        const bool wait = match.length >= kMinMatch && position + 1 < bytes.size() &&
                          finder.Longest(position + 1).length > match.length;
        if (match.length < kMinMatch || wait) {
            groups.Literal(bytes[position++]);
            continue;
        }
        groups.Match(match.position, match.length);
        for (std::size_t i = 1; i < match.length; ++i) {
            finder.Insert(position + i);
        }
        position += match.length;
    }
    return file;
}

}  // namespace brelex
