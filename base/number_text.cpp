// SPDX-License-Identifier: MIT
#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <utility>

#include "base/text.h"

namespace brelex {

namespace {

bool IsDigit(char c) {
    constexpr std::string_view kDigits = "0123456789";
    return kDigits.find(c) != std::string_view::npos;
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

// A number in decimal digits, without an exponent, with so many decimals or as many as it has.
template <typename Number, typename... Decimals>
std::string FixedText(Number number, Decimals... decimals) {
    std::array<char, 320> buffer{};  // the largest double has 309 digits
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                       std::chars_format::fixed, decimals...);
    return {buffer.data(), written.ptr};
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
    const std::string digits = std::to_string(std::abs(std::int64_t{number}));
    return (number < 0 ? "-" : "") + Grouped(digits, separator);
}

std::string FormatGrouped(double number, std::string_view separator) {
    assert(number >= 0 && std::isfinite(number));
    constexpr std::size_t kExactDigits = 15;  // of every double
    const std::size_t length = FixedText(number, 0).size();
    const std::size_t zeros = length - std::min(length, kExactDigits);
    // Once more, rounded after the exact digits.
    double scale = 1;
    for (std::size_t i = 0; i < zeros; ++i) {
        scale *= 10;
    }
    return Grouped(FixedText(number / scale, 0) + std::string(zeros, '0'), separator);
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
    return NumberOf<std::int32_t>((negative ? "-" : "") + *digits);
}

std::string FormatPlain(float number, std::string_view decimalSeparator) {
    assert(std::isfinite(number));
    std::string text = FixedText(number);
    if (const auto point = text.find('.'); point != std::string::npos) {
        text.replace(point, 1, decimalSeparator);
    }
    return text;
}

std::string FormatOneDecimal(float number, std::string_view decimalSeparator) {
    std::string digits = FixedText(std::abs(number));
    if (!std::isfinite(number)) {
        return digits;
    }
    // The number of tenths, in digits: the number itself may be too large for any integer type.
    const std::size_t point = std::min(digits.find('.'), digits.size());
    digits += point == digits.size() ? ".00" : "0";  // there are two decimals at least
    std::string tenths = digits.substr(0, point) + digits[point + 1];
    if (digits[point + 2] >= '5') {
        tenths = Incremented(std::move(tenths));
    }
    const std::string whole = tenths.substr(0, tenths.size() - 1);
    const bool negative =
        std::signbit(number) && tenths.find_first_not_of('0') != std::string::npos;
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
