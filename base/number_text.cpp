// SPDX-License-Identifier: MIT
#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>
#include <utility>

#include "base/text.h"

namespace brelex {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// `text` without its group separators. Nothing if it is not digits or the groups are wrong.
std::optional<std::string> UngroupedDigits(std::string_view text, std::string_view separator) {
    std::string digits;
    std::size_t inGroup = 0;
    bool grouped = false;
    while (!text.empty()) {
        if (IsDigit(text.front())) {
            digits.push_back(text.front());
            ++inGroup;
            text.remove_prefix(1);
            continue;
        }
        const bool goodGroup = grouped ? inGroup == 3 : inGroup >= 1 && inGroup <= 3;
        if (separator.empty() || !text.starts_with(separator) || !goodGroup) {
            return std::nullopt;
        }
        grouped = true;
        inGroup = 0;
        text.remove_prefix(separator.size());
    }
    if (digits.empty() || (grouped && inGroup != 3)) {
        return std::nullopt;
    }
    return digits;
}

std::string Grouped(std::string_view digits, std::string_view separator) {
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i != 0 && (digits.size() - i) % 3 == 0) {
            text += separator;
        }
        text.push_back(digits[i]);
    }
    return text;
}

// A whole number in decimal digits, plus 1.
std::string Incremented(std::string digits) {
    std::size_t at = digits.size();
    while (at > 0 && digits[at - 1] == '9') {
        digits[--at] = '0';
    }
    if (at == 0) {
        return "1" + digits;
    }
    ++digits[at - 1];
    return digits;
}

}  // namespace

std::string FormatGrouped(std::int32_t number, std::string_view separator) {
    assert(!separator.empty());
    const std::string digits = std::to_string(number < 0 ? -std::int64_t{number} : number);
    return (number < 0 ? "-" : "") + Grouped(digits, separator);
}

std::string FormatGrouped(double number, std::string_view separator) {
    assert(number >= 0 && std::isfinite(number));
    constexpr std::size_t kExactDigits = 15;  // of every double
    std::array<char, 320> buffer{};           // the largest double has 309 digits
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                       std::chars_format::fixed, 0);
    std::string digits(buffer.data(), written.ptr);
    if (digits.size() > kExactDigits) {
        // Once more, rounded after the exact digits.
        const std::size_t length = digits.size();
        double scale = 1;
        for (std::size_t i = kExactDigits; i < length; ++i) {
            scale *= 10;
        }
        const auto shortened = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                             number / scale, std::chars_format::fixed, 0);
        digits.assign(buffer.data(), shortened.ptr);
        digits.append(length - kExactDigits, '0');
    }
    return Grouped(digits, separator);
}

std::optional<std::int32_t> ParseWholeNumber(std::string_view text, std::string_view separator) {
    text = TrimWhitespace(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const auto digits = UngroupedDigits(text, separator);
    if (!digits) {
        return std::nullopt;
    }
    const std::string signedDigits = (negative ? "-" : "") + *digits;
    std::int32_t number = 0;
    const auto [end, error] =
        std::from_chars(signedDigits.data(), signedDigits.data() + signedDigits.size(), number);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

std::string FormatPlain(float number, std::string_view decimalSeparator) {
    assert(std::isfinite(number));
    std::array<char, 160> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::fixed);
    std::string text(buffer.data(), result.ptr);
    if (const auto point = text.find('.'); point != std::string::npos) {
        text.replace(point, 1, decimalSeparator);
    }
    return text;
}

std::string FormatOneDecimal(float number, std::string_view decimalSeparator) {
    // Long enough for the largest number, which has 39 digits, and for the smallest.
    std::array<char, 160> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                      std::abs(number), std::chars_format::fixed);
    std::string digits(buffer.data(), result.ptr);
    if (!std::isfinite(number)) {
        return digits;
    }
    // The number of tenths, in digits: the number itself may be too large for any integer type.
    const std::size_t point = std::min(digits.find('.'), digits.size());
    std::string tenths =
        digits.substr(0, point) + (digits.size() > point ? digits[point + 1] : '0');
    const bool roundsUp = digits.size() > point + 2 && digits[point + 2] >= '5';
    if (roundsUp) {
        tenths = Incremented(std::move(tenths));
    }
    const std::string whole = tenths.substr(0, tenths.size() - 1);
    const bool negative = number < 0 && tenths.find_first_not_of('0') != std::string::npos;
    std::string text = negative ? "-" : "";
    text += whole == "0" ? std::string() : whole;
    text += decimalSeparator;
    text += tenths.back();
    return text;
}

int PercentOf(std::int32_t done, std::int32_t total) {
    assert(total > 0);
    const double share = static_cast<double>(done) / total;
    return static_cast<int>(std::nearbyint(share * 100));
}

}  // namespace brelex
