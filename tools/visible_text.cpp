// SPDX-License-Identifier: MIT
#include "tools/visible_text.h"

#include <cstddef>

#include "base/windows1252.h"

namespace brelex {

namespace {

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

// The longest bytes of one character.
constexpr std::size_t kMostBytes = 4;

std::size_t BytesOf(char32_t character) {
    return character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
}

}  // namespace

std::string VisibleText(std::string_view text, std::string_view kept) {
    std::string visible;
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text.front());
        const bool isDelete = byte == 0x7F;
        if (byte < 0x80) {
            const bool isKept = kept.find(text.front()) != std::string_view::npos;
            if ((byte < 0x20 || isDelete) && !isKept) {
                // Unicode has a picture for each: U+2400 to U+241F, and U+2421.
                visible += "\xE2\x90";
                visible.push_back(static_cast<char>(0x80 + (isDelete ? 0x21 : byte)));
            } else {
                visible.push_back(text.front());
            }
            text.remove_prefix(1);
            continue;
        }
        const char32_t character = DecodeUtf8(text.substr(0, kMostBytes)).front();
        const bool isStray = character == 0xFFFD && !text.starts_with(kReplacementCharacter);
        const std::size_t bytes = isStray ? 1 : BytesOf(character);
        const bool isControl = character >= 0x80 && character < 0xA0;
        visible += isStray || isControl ? kReplacementCharacter : text.substr(0, bytes);
        text.remove_prefix(bytes);
    }
    return visible;
}

void PrintMessage(std::ostream& err, std::string_view message) {
    err << "brelex: " << VisibleText(message) << "\n";
}

VisibleOutput::VisibleOutput(std::ostream& stream) : stream_(stream), target_(stream.rdbuf(this)) {}

VisibleOutput::~VisibleOutput() {
    Write(pending_.size());
    stream_.rdbuf(target_);
}

VisibleOutput::int_type VisibleOutput::overflow(int_type character) {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        pending_.push_back(traits_type::to_char_type(character));
    }
    return traits_type::not_eof(character);
}

std::streamsize VisibleOutput::xsputn(const char* bytes, std::streamsize count) {
    pending_.append(bytes, static_cast<std::size_t>(count));
    return count;
}

int VisibleOutput::sync() {
    const std::size_t lineEnd = pending_.rfind('\n');
    return lineEnd == std::string::npos || Write(lineEnd + 1) ? 0 : -1;
}

bool VisibleOutput::Write(std::size_t count) {
    const std::string text = VisibleText(std::string_view(pending_).substr(0, count), "\n");
    pending_.erase(0, count);
    const auto size = static_cast<std::streamsize>(text.size());
    return target_->sputn(text.data(), size) == size && target_->pubsync() == 0;
}

}  // namespace brelex
