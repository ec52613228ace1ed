// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/long_work.h"
#include "base/message_sink.h"
#include "database/row_list.h"

namespace brelex {

/// Counts how often a character occurs in a text, in either case.
[[nodiscard]] std::int32_t GetNumOccr(char32_t character, std::u32string_view text);

/// Counts how many of the letters A to Z occur in a text, in either case.
[[nodiscard]] std::int32_t CountDistinctLetters(std::u32string_view text);

/// n! in double precision; 1 for an n below 1, infinity from 171 on.
[[nodiscard]] double Factorial(std::int32_t n);

/// The number of different orders of the characters in a text, ignoring case: the factorial of its
/// length, divided by the factorial of each character's occurrences, in double precision. 0 for an
/// empty text. Not finite for 171 characters or more.
[[nodiscard]] double CountRearrangements(std::u32string_view text);

/// The same as text, with digits in groups of three. Says so if there are too many to count.
[[nodiscard]] std::string RearrangementsText(std::u32string_view text, std::string_view separator);

/// The message that refuses the letters if fewer than 2 of them are distinct.
[[nodiscard]] std::optional<Message> AnagramRefusalOf(std::u32string_view letters);

/// A number that is the same for all orders of a text's letters in either case, whether or not it
/// has hyphens. Other texts (Windows-1252 bytes) rarely share it.
using AnagramSignature = std::uint16_t;

/// Recognizes anagrams of a set of letters.
class AnagramLetters {
  public:
    explicit AnagramLetters(std::u32string_view letters);

    /// Whether a text (Windows-1252 bytes) consists of exactly the same letters, ignoring case.
    [[nodiscard]] bool IsAnagram(std::string_view candidate) const;

    /// Whether the abbreviation of a record, without its hyphens, is an anagram.
    [[nodiscard]] bool IsHit(std::string_view recordText) const;

    /// The signature of all anagrams.
    [[nodiscard]] AnagramSignature Signature() const { return signature_; }

  private:
    std::size_t length_;
    std::array<std::uint32_t, 256> occurrences_{};  // of each byte, in either case
    std::array<bool, 256> mayOccur_{};  // in the abbreviation of a hit, as a letter or a hyphen
    AnagramSignature signature_ = 0;
};

/// Finds anagrams among rows that stay the same. The first search looks at each row. The second one
/// also works out and keeps 2 bytes for each row, and from then on, searches look only at the
/// hundreds of rows where these match. A user who searches once does not pay for it.
class AnagramFinder {
  public:
    /// `rows` must outlive the finder.
    explicit AnagramFinder(const RowList& rows) : rows_(rows) {}

    /// Returns the rows (0-based, ascending) whose abbreviations are anagrams. Reports each hit to
    /// `watcher`, which may be null. After rows 0, 100, 200, ... it reports the progress and
    /// pauses. The progress may reach 100 percent before the last row is done.
    [[nodiscard]] std::vector<std::int32_t> Find(const AnagramLetters& letters,
                                                 WorkWatcher* watcher);

  private:
    [[nodiscard]] bool FindAmong(std::int32_t first, std::int32_t end,
                                 const AnagramLetters& letters, WorkWatcher* watcher,
                                 std::vector<std::int32_t>& hits);
    [[nodiscard]] bool MayHaveHits(std::int32_t first, std::int32_t end, AnagramSignature wanted);
    void SignRowsBefore(std::int32_t end);

    const RowList& rows_;
    bool isFirst_ = true;                       // no search has ended yet
    std::vector<AnagramSignature> signatures_;  // of the abbreviations; empty at first
    std::int32_t signedRows_ = 0;               // how many of the rows have theirs
};

}  // namespace brelex
