// SPDX-License-Identifier: MIT
#include "database/szdd.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/little_endian.h"
#include "database/szdd_format.h"

namespace brelex {

namespace {

// Finds the longest earlier run of the bytes at a position. Positions with the same three bytes are
// chained from the newest to the oldest.
class MatchFinder {
  public:
    explicit MatchFinder(std::string_view bytes)
        : bytes_(bytes),
          newest_(kBuckets, kNone),
          older_(kRingBytes, kNone) {}

    struct Match {
        std::size_t position;
        std::size_t length;
    };

    void Insert(std::size_t position) {
        if (position + kMinMatch <= bytes_.size()) {
            std::uint32_t& head = newest_[Bucket(position)];
            older_[position % kRingBytes] = head;
            head = static_cast<std::uint32_t>(position);
        }
    }

    [[nodiscard]] Match Longest(std::size_t position) const {
        Match best{};
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
    explicit GroupWriter(std::string& file) : file_(file), flagsAt_(file.size()) {}

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
    std::size_t flagsAt_;  // where the flags of the group are
    std::size_t items_ = 0;
};

}  // namespace

std::optional<ExpandedFile> ExpandSzdd(std::string_view file, std::size_t mostBytes) {
    return CompressedFile::Copy(file).Expand(mostBytes);
}

std::string CompressSzdd(std::string_view bytes) {
    assert(bytes.size() <= kMaxExpandedBytes);
    std::string file(kSzddSignature);
    file.push_back(0);  // the missing character of a name that ends in "_", which ours does not
    AppendLittleEndian(file, static_cast<std::uint32_t>(bytes.size()));
    MatchFinder finder(bytes);
    GroupWriter groups(file);
    std::size_t position = 0;
    MatchFinder::Match match{};
    while (position < bytes.size()) {
        finder.Insert(position);
        const MatchFinder::Match next = finder.Longest(position + 1);
        // A longer match at the next byte is worth a literal now.
        if (match.length < kMinMatch || next.length > match.length) {
            groups.Literal(bytes[position++]);
            match = next;
            continue;
        }
        groups.Match(match.position, match.length);
        for (std::size_t i = 1; i < match.length; ++i) {
            finder.Insert(position + i);
        }
        position += match.length;
        match = finder.Longest(position);
    }
    return file;
}

}  // namespace brelex
