// SPDX-License-Identifier: MIT
#include "search/record_finder.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "base/letter_case.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "search/loose_text.h"
#include "search/whole_word.h"

namespace brelex {

namespace {

std::u32string PatternText(const SearchRequest& request) {
    std::u32string pattern = DecodeUtf8(request.text);
    if (request.position != SearchPosition::Beginning) {
        pattern.insert(pattern.begin(), U'*');
    }
    if (request.position != SearchPosition::Ending) {
        pattern.push_back(U'*');
    }
    return pattern;
}

std::string SmallLettersOfBytes(std::string_view bytes) {
    std::string small(bytes);
    std::transform(small.begin(), small.end(), small.begin(), [](char c) {
        return static_cast<char>(SmallLetterOfByte(static_cast<unsigned char>(c)));
    });
    return small;
}

// A part of the pattern that occurs in each hit as it is.
struct FixedPart {
    WildcardPattern::Segment bytes;
    bool isAtStart = false;  // of the field
    bool isAtEnd = false;
};

// The parts of the pattern that are not empty. In a loose pattern, a part ends where a separator
// may be, because there can be more of them in the record.
std::vector<FixedPart> FixedPartsOf(const WildcardPattern& pattern, bool loose) {
    std::vector<FixedPart> parts;
    const auto add = [&parts](const FixedPart& part) {
        if (!part.bytes.empty()) {
            parts.push_back(part);
        }
    };
    const auto& segments = pattern.Segments();
    for (const WildcardPattern::Segment& segment : segments) {
        FixedPart part{{}, &segment == &segments.front()};
        for (const WildcardPattern::ByteSet& bytes : segment) {
            if (loose && bytes[' ']) {
                add(part);
                part = {};
            } else {
                part.bytes.push_back(bytes);
            }
        }
        part.isAtEnd = &segment == &segments.back();
        add(part);
    }
    return parts;
}

// Takes pieces from all over the rows.
std::string Sample(const RowList& rows) {
    constexpr std::size_t kPieces = 64;
    constexpr std::size_t kPieceBytes = 64;
    const std::string_view all = rows.TextOfRows(0, rows.RowCount());
    std::string sample;
    for (std::size_t i = 0; i < kPieces; ++i) {
        sample += all.substr(all.size() / kPieces * i, kPieceBytes);
    }
    return sample;
}

}  // namespace

std::optional<RecordFinder> RecordFinder::Compile(const SearchRequest& request,
                                                  const RowList& rows) {
    auto pattern = WildcardPattern::Compile(PatternText(request), request.matchCase);
    if (!pattern) {
        return std::nullopt;
    }
    return RecordFinder(request, rows, std::move(*pattern));
}

RecordFinder::RecordFinder(const SearchRequest& request, const RowList& rows,
                           WildcardPattern pattern)
    : rows_(rows),
      in_(request.in),
      matchCase_(request.matchCase),
      loose_(request.loose),
      pattern_(loose_ ? LoosePattern(pattern) : std::move(pattern)) {
    if (request.wholeWord) {
        const std::string bytes = BytesOfUtf8(request.text).bytes;
        const std::string word = loose_ ? LooseText(bytes) : bytes;
        word_ = matchCase_ ? word : SmallLettersOfBytes(word);
    }
    if (rows.RowCount() == 0) {
        return;
    }
    // The bytes next to a field: the TAB between abbreviation and expansion, or the NUL at the end.
    const WildcardPattern::ByteSet edge = WildcardPattern::ByteSet().set(0).set('\t');
    const std::string sample = Sample(rows);
    for (const FixedPart& part : FixedPartsOf(pattern_, loose_)) {
        const std::size_t before = part.isAtStart ? 1 : 0;
        const std::size_t behind = part.isAtEnd ? 1 : 0;
        WildcardPattern::Segment fragment(before + part.bytes.size() + behind, edge);
        std::copy(part.bytes.begin(), part.bytes.end(), fragment.data() + before);
        FragmentSearch search(std::move(fragment), sample);
        if (!rarest_ || search.ExpectedCandidates() < rarest_->ExpectedCandidates()) {
            rarest_ = std::move(search);
            edge_ = before;
        }
    }
    const auto& segments = pattern_.Segments();
    if (segments.size() == 3 && segments.front().empty() && segments.back().empty() && !word_ &&
        !loose_) {
        onlyFragment_ = segments[1].size();
    }
}

std::string_view RecordFinder::FieldOf(std::string_view recordText) const {
    return in_ == SearchIn::Abbreviations ? GetAbbreviation(recordText) : GetExpansion(recordText);
}

bool RecordFinder::IsHit(std::string_view recordText) const {
    const std::string_view field = FieldOf(recordText);
    return loose_ ? IsHitInField(LooseText(field)) : IsHitInField(field);
}

bool RecordFinder::IsHitInField(std::string_view field) const {
    if (!pattern_.Matches(field)) {
        return false;
    }
    return !word_ || IsWholeWord(matchCase_ ? std::string(field) : SmallLettersOfBytes(field),
                                 *word_, ComparisonMode::Binary);
}

std::string_view RecordFinder::MatchIn(std::string_view recordText) const {
    const std::string_view field = FieldOf(recordText);
    if (!loose_) {
        return pattern_.Find(field).value_or(std::string_view());
    }
    const std::string looseField = LooseText(field);
    const std::string_view match = pattern_.Find(looseField).value_or(std::string_view());
    if (match.empty()) {
        return {};
    }
    const auto position = static_cast<std::size_t>(match.data() - looseField.data());
    const std::size_t begin = LengthBeforeLoosening(field, position);
    return field.substr(begin, LengthBeforeLoosening(field, position + match.size()) - begin);
}

// Whether a fragment that makes up the whole pattern, found at `found`, lies in the field of this
// record.
bool RecordFinder::IsInField(std::string_view recordText, const char* found) const {
    const std::string_view field = FieldOf(recordText);
    return found >= field.data() && found + *onlyFragment_ <= field.data() + field.size();
}

void RecordFinder::FindHits(std::int32_t first, std::int32_t last, std::size_t limit,
                            std::vector<std::int32_t>& hits) const {
    assert(first >= 0 && last <= rows_.RowCount());
    limit += hits.size();
    // The very first record is a special case, because nothing precedes it.
    const std::int32_t alone = rarest_ ? std::min(last, 1) : last;
    for (; first < alone && hits.size() < limit; ++first) {
        if (IsHit(rows_.RowText(first))) {
            hits.push_back(first);
        }
    }
    if (first >= last || hits.size() >= limit) {
        return;
    }
    std::int32_t row = first - 1;
    const std::string_view text = rows_.TextOfRows(row, last);
    std::size_t next = rows_.RowText(row).size() + 1;  // the first byte that is not done
    rarest_->VisitPlaces(text, next - edge_, [&](std::size_t position) {
        const std::size_t found = position + edge_;
        if (found < next) {
            return next - edge_;
        }
        row = rows_.RowHolding(text.data() + found, row);
        const std::string_view record = rows_.RowText(row);
        const bool isHit =
            onlyFragment_ ? IsInField(record, text.data() + position) : IsHit(record);
        if (isHit) {
            hits.push_back(row);
        }
        // If only the place matters, a later one in the same record may be right.
        if (isHit || !onlyFragment_) {
            next = static_cast<std::size_t>(record.data() + record.size() - text.data()) + 1;
        }
        // Not from the next record, although one look at each is enough: the processor can already
        // go on while it works out where that is.
        return hits.size() < limit ? position + 1 : std::string_view::npos;
    });
}

}  // namespace brelex
