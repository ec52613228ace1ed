// SPDX-License-Identifier: MIT
#include "search/fragment_search.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>
#include <utility>

namespace brelex {

namespace {

constexpr int kBytes = 256;
constexpr unsigned char kCaseBit = 0x20;

}  // namespace

FragmentSearch::Probe FragmentSearch::ProbeOf(const WildcardPattern::ByteSet& set,
                                              std::size_t place, unsigned char ignored) {
    int lowest = kBytes;
    int highest = -1;
    for (int byte = 0; byte < kBytes; ++byte) {
        if (set[static_cast<std::size_t>(byte)]) {
            lowest = std::min(lowest, byte | ignored);
            highest = std::max(highest, byte | ignored);
        }
    }
    if (highest < 0) {  // a character outside the code page: nothing can match
        return {place, 0xFF, 0, 0};
    }
    return {place, ignored, static_cast<unsigned char>(lowest),
            static_cast<unsigned char>(highest - lowest)};
}

FragmentSearch::FragmentSearch(WildcardPattern::Segment fragment, std::string_view sample)
    : fragment_(std::move(fragment)) {
    assert(!fragment_.empty());
    std::array<double, kBytes> shares{};
    const double all = static_cast<double>(sample.size()) + kBytes;
    shares.fill(1 / all);  // no byte is considered impossible
    for (const char c : sample) {
        shares.at(static_cast<unsigned char>(c)) += 1 / all;
    }
    const auto shareOf = [&shares](const Probe& probe) {
        double share = 0;
        for (int byte = probe.lowest; byte <= probe.lowest + probe.span; ++byte) {
            if ((byte & probe.ignored) == probe.ignored) {
                share += shares.at(static_cast<std::size_t>(byte));
                share += probe.ignored == 0
                             ? 0
                             : shares.at(static_cast<std::size_t>(byte & ~probe.ignored));
            }
        }
        return share;
    };
    double firstShare = 2;  // more than any share
    double secondShare = 2;
    for (std::size_t place = 0; place < fragment_.size(); ++place) {
        Probe probe = ProbeOf(fragment_[place], place, 0);
        double share = shareOf(probe);
        const Probe caseless = ProbeOf(fragment_[place], place, kCaseBit);
        if (const double caselessShare = shareOf(caseless); caselessShare < share) {
            probe = caseless;
            share = caselessShare;
        }
        if (share < firstShare) {
            second_ = first_;
            secondShare = firstShare;
            first_ = probe;
            firstShare = share;
        } else if (share < secondShare) {
            second_ = probe;
            secondShare = share;
        }
    }
    if (fragment_.size() == 1) {
        second_ = first_;
        secondShare = 1;
    }
    expectedCandidates_ = firstShare * secondShare;
}

void FragmentSearch::MarkCandidates(const unsigned char* text, Marks& marks) const {
    const unsigned char* const a = text + first_.place;
    const unsigned char* const b = text + second_.place;
    // Local copies, because the compiler must assume that writing `marks` changes the members.
    const Probe first = first_;
    const Probe second = second_;
    const auto markAll = [&](auto passesFirst, auto passesSecond) {
        for (std::size_t i = 0; i < kStride; ++i) {
            // A "&&" would be a branch.
            const int passes =
                static_cast<int>(passesFirst(a[i])) & static_cast<int>(passesSecond(b[i]));
            marks[i] = static_cast<unsigned char>(-passes);
        }
    };
    // Most fragments have two plain letters, for which half the instructions are enough.
    if (first.span == 0 && second.span == 0) {
        markAll([&](unsigned char byte) { return (byte | first.ignored) == first.lowest; },
                [&](unsigned char byte) { return (byte | second.ignored) == second.lowest; });
    } else {
        markAll([&](unsigned char byte) { return first.Passes(byte); },
                [&](unsigned char byte) { return second.Passes(byte); });
    }
}

std::size_t FragmentSearch::Find(std::string_view text, std::size_t from) const {
    if (text.size() < fragment_.size()) {
        return std::string_view::npos;
    }
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    const std::size_t end = text.size() - fragment_.size() + 1;
    Marks marks{};
    const auto nextMark = [&marks](std::size_t i) {
        const void* const mark = std::memchr(marks.data() + i, kMark, kStride - i);
        return mark == nullptr ? kStride
                               : static_cast<std::size_t>(static_cast<const unsigned char*>(mark) -
                                                          marks.data());
    };
    for (; from < end && end - from >= kStride; from += kStride) {
        MarkCandidates(bytes + from, marks);
        for (std::size_t i = nextMark(0); i < kStride; i = nextMark(i + 1)) {
            if (SegmentStandsAt(fragment_, text, from + i)) {
                return from + i;
            }
        }
    }
    for (; from < end; ++from) {
        if (first_.Passes(bytes[from + first_.place]) && SegmentStandsAt(fragment_, text, from)) {
            return from;
        }
    }
    return std::string_view::npos;
}

}  // namespace brelex
