// SPDX-License-Identifier: MIT
#include "tests/support/fakes.h"

#include <fstream>

#include "database/file_io.h"

namespace brelex {

MessageAnswer FakeMessageSink::Show(const Message& message) {
    shown.push_back(message);
    if (message.buttons == MessageButtons::Ok) {
        return MessageAnswer::Ok;
    }
    if (answers.empty()) {
        return MessageAnswer::No;
    }
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string FakeFolderPicker::BrowseForFolder(const std::string& title) {
    titles.push_back(title);
    if (folders.empty()) {
        return {};
    }
    std::string folder = folders.front();
    folders.pop_front();
    return folder;
}

bool FakeTemporaryFiles::WriteNewFile(const std::string& path, std::string_view bytes) {
    written.push_back(path);
    std::ofstream file(PathOfUtf8(path), std::ios::binary | std::ios::trunc);
    const std::string_view fitting = diskIsFull ? bytes.substr(0, bytes.size() / 2) : bytes;
    file.write(fitting.data(), static_cast<std::streamsize>(fitting.size()));
    file.close();
    return !file.fail() && !diskIsFull;
}

}  // namespace brelex
