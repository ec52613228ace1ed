// SPDX-License-Identifier: MIT
#include "database/compressed_file.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cstdint>
#include <cstring>

#include "base/file_io.h"
#include "base/little_endian.h"
#include "database/szdd_format.h"

namespace brelex {

namespace {

// One group is a byte of eight flags and eight items of at most two bytes.
constexpr std::size_t kItemsOfGroup = 8;
constexpr std::size_t kMaxGroupInput = 1 + kItemsOfGroup * 2;
constexpr std::size_t kMaxGroupOutput = kItemsOfGroup * kMaxMatch;

// Copies of a fixed size are fast. They read and write beyond what is wanted, which is overwritten
// later: a match may write all bytes of a longest one, and a run of literals all that a group can
// have, even behind the group's last item.
constexpr std::size_t kCopiedLiterals = kItemsOfGroup;
constexpr std::size_t kInputOfFastGroup = kMaxGroupInput + kCopiedLiterals;
constexpr std::size_t kRoomOfGroup = kMaxGroupOutput + kCopiedLiterals;

// What comes out must not reach what is still to be read. The distance only shrinks where the data
// are shorter than what they expand to, as nearly all are, and at the end it is what it should have
// been at the beginning. So a little is enough unless the file ends in much that did not compress.
constexpr std::size_t kGapBytes = 4096;
static_assert(kGapBytes >= kRoomOfGroup);

std::size_t Byte(char c) {
    return static_cast<unsigned char>(c);
}

struct MatchPlace {
    std::size_t distance;
    std::size_t length;
};

// Decodes the two bytes of a match that is written at `used`.
MatchPlace PlaceOf(char first, char second, std::size_t used) {
    const std::size_t ringPosition = Byte(first) | ((Byte(second) & 0xF0U) << 4U);
    const std::size_t ringNext = used + kRingStart;  // modulo the ring's size
    // 1 to 4096: the next position to be written still has the byte from one round ago.
    return {((ringNext - ringPosition - 1) % kRingBytes) + 1, (Byte(second) & 0x0FU) + kMinMatch};
}

// Copies byte by byte, so that it repeats what it has just written.
void Repeat(char* to, std::size_t distance, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i) {
        to[i] = (to - distance)[i];
    }
}

// Expands data at the end of a buffer into the same buffer, which then begins with the ring's first
// content, 4096 blanks. So every match is a copy within the buffer, and no ring is needed.
class Expander {
  public:
    Expander(ByteBuffer buffer, std::size_t dataAt, std::size_t mostBytes)
        : buffer_(std::move(buffer)),
          next_(dataAt),
          mostBytes_(mostBytes) {
        assert(next_ >= used_ + kRoomOfGroup);
        std::memset(buffer_.Data(), ' ', kRingBytes);
    }

    std::optional<ExpandedFile> Run() {
        while (next_ != buffer_.Size()) {
            if (next_ - used_ < kRoomOfGroup && !Grow()) {
                return std::nullopt;
            }
            if (buffer_.Size() - next_ >= kInputOfFastGroup) {
                ExpandGroups();
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
    // Moves to a buffer with room for twice as much output and what the rest expands to at least.
    // Returns false if there is too much already.
    [[nodiscard]] bool Grow() {
        const std::size_t soFar = used_ - kRingBytes;
        if (soFar > mostBytes_) {
            return false;
        }
        const std::size_t rest = buffer_.Size() - next_;
        const std::size_t room = std::min(2 * soFar + rest, mostBytes_ + kMaxGroupOutput);
        ByteBuffer larger(kRingBytes + room + kGapBytes + rest);
        std::memcpy(larger.Data(), buffer_.Data(), used_);
        std::memcpy(larger.Data() + larger.Size() - rest, buffer_.Data() + next_, rest);
        buffer_ = std::move(larger);
        next_ = buffer_.Size() - rest;
        return true;
    }

    // Expands groups, at least one, as long as there is room and enough input behind them.
    void ExpandGroups() {
        // Local copies, because the compiler must assume that writing bytes changes the members.
        char* const bytes = buffer_.Data();
        const std::size_t lastStart = buffer_.Size() - kInputOfFastGroup;
        std::size_t next = next_;
        std::size_t used = used_;
        do {
            ExpandGroup(bytes, next, used);
        } while (next <= lastStart && next - used >= kRoomOfGroup);
        next_ = next;
        used_ = used;
    }

    // Literals and matches follow each other in no order that a processor could foresee, so a
    // branch for each item would take twice as long. This goes from match to match, and always
    // copies the literals before it, even if there are none.
    static void ExpandGroup(char* bytes, std::size_t& next, std::size_t& used) {
        unsigned matches = ~static_cast<unsigned>(Byte(bytes[next++])) & 0xFFU;
        std::size_t items = 0;
        const auto copyLiterals = [&](std::size_t count) {
            std::memcpy(bytes + used, bytes + next, kCopiedLiterals);
            next += count;
            used += count;
        };
        for (; matches != 0; matches &= matches - 1) {
            const auto item = static_cast<std::size_t>(std::countr_zero(matches));
            copyLiterals(item - items);
            items = item + 1;
            const MatchPlace match = PlaceOf(bytes[next], bytes[next + 1], used);
            if (match.distance < kMaxMatch) [[unlikely]] {
                Repeat(bytes + used, match.distance, match.length);
            } else {
                std::memcpy(bytes + used, bytes + used - match.distance, kMaxMatch);
            }
            next += 2;
            used += match.length;
        }
        copyLiterals(kItemsOfGroup - items);
    }

    // The same near the end of the input, which may end anywhere.
    void ExpandLastGroup() {
        char* const bytes = buffer_.Data();
        std::size_t flags = Byte(bytes[next_++]);
        for (std::size_t item = 0; item < kItemsOfGroup; ++item, flags >>= 1U) {
            const bool literal = (flags & 1U) != 0;
            if (buffer_.Size() - next_ < (literal ? 1 : 2)) {
                next_ = buffer_.Size();
                return;
            }
            if (literal) {
                bytes[used_++] = bytes[next_++];
                continue;
            }
            const MatchPlace match = PlaceOf(bytes[next_], bytes[next_ + 1], used_);
            Repeat(bytes + used_, match.distance, match.length);
            next_ += 2;
            used_ += match.length;
        }
    }

    ByteBuffer buffer_;
    std::size_t next_;               // where the input goes on
    std::size_t used_ = kRingBytes;  // where the output ends
    std::size_t mostBytes_;
};

// The declared length, but no more than `dataBytes` of data can expand to.
std::size_t ExpectedBytes(std::string_view header, std::size_t dataBytes) {
    const auto declared =
        ReadLittleEndian<std::uint32_t>(header.substr(header.size() - sizeof(std::uint32_t)));
    const std::uint64_t groups = dataBytes / kMaxGroupInput + 1;
    return static_cast<std::size_t>(
        std::min<std::uint64_t>({declared, groups * kMaxGroupOutput, kMaxExpandedBytes}));
}

}  // namespace

// `readNext` copies the next bytes of the file to a place, and returns whether it could.
template <typename ReadNext>
std::optional<CompressedFile> CompressedFile::Fill(std::size_t length, ReadNext&& readNext) {
    std::array<char, kSzddHeaderBytes> head{};
    const std::size_t headBytes = std::min(length, head.size());
    if (!readNext(head.data(), headBytes)) {
        return std::nullopt;
    }
    const std::string_view header(head.data(), headBytes);
    CompressedFile file;
    file.length_ = length;
    file.hasSignature_ = headBytes == head.size() && header.starts_with(kSzddSignature);
    const std::size_t rest = length - headBytes;
    file.buffer_ = ByteBuffer(
        file.hasSignature_ ? kRingBytes + std::max(ExpectedBytes(header, rest), rest) + kGapBytes
                           : length);
    file.dataAt_ = file.buffer_.Size() - rest;
    if (!file.hasSignature_) {
        header.copy(file.buffer_.Data(), headBytes);
    }
    if (!readNext(file.buffer_.Data() + file.dataAt_, rest)) {
        return std::nullopt;
    }
    return file;
}

std::optional<CompressedFile> CompressedFile::Read(const std::filesystem::path& path) {
    FileReader reader(path);
    if (!reader.IsOpen()) {
        return std::nullopt;
    }
    auto file =
        Fill(reader.Size(), [&](char* to, std::size_t count) { return reader.Read(to, count); });
    return reader.IsAtEnd() ? std::move(file) : std::nullopt;
}

CompressedFile CompressedFile::Copy(std::string_view file) {
    auto copy = Fill(file.size(), [rest = file](char* to, std::size_t count) mutable {
        rest.copy(to, count);
        rest.remove_prefix(count);
        return true;
    });
    assert(copy);
    return std::move(*copy);
}

std::optional<ExpandedFile> CompressedFile::Expand(std::size_t mostBytes) && {
    assert(mostBytes <= kMaxExpandedBytes);
    if (hasSignature_) {
        return Expander(std::move(buffer_), dataAt_, mostBytes).Run();
    }
    return length_ <= mostBytes ? std::optional(ExpandedFile(std::move(buffer_), 0, length_))
                                : std::nullopt;
}

}  // namespace brelex
