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

/// Recognizes anagrams of a set of letters.
class AnagramLetters {
  public:
    explicit AnagramLetters(std::u32string_view letters);

    /// Whether a text (Windows-1252 bytes) consists of exactly the same letters, ignoring case.
    [[nodiscard]] bool IsAnagram(std::string_view candidate) const;

    /// Whether the abbreviation of a record, without its hyphens, is an anagram. Most records are
    /// rejected at their first character.
    [[nodiscard]] bool IsHit(std::string_view recordText) const;

  private:
    std::size_t length_;
    std::array<std::uint32_t, 256> occurrences_{};  // of each byte, in either case
    std::array<bool, 256> mayOccur_{};  // in the abbreviation of a hit, as a letter or a hyphen
};

/// Returns the rows (0-based, ascending) whose abbreviations are anagrams. Reports each hit to
/// `watcher`, which may be null. After rows 0, 100, 200, ... it reports the progress and pauses.
/// The progress may reach 100 percent before the last row is done.
[[nodiscard]] std::vector<std::int32_t> FindAnagrams(const RowList& rows,
                                                     const AnagramLetters& letters,
                                                     WorkWatcher* watcher);

}  // namespace brelex
