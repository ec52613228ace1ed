// SPDX-License-Identifier: MIT
// replay FOLDER...: passes every file of a corpus to a fuzz target that was built without a fuzzer.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <string_view>

#include "base/file_io.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {  // then it fails, as it should
    if (argc < 2) {
        std::cerr << "usage: replay FOLDER...\n";
        return 2;
    }
    int files = 0;
    for (int folder = 1; folder < argc; ++folder) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[folder])) {
            if (const auto file = brelex::ReadWholeFile(entry.path())) {
                const std::string_view bytes = file->View();
                LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                       bytes.size());
                ++files;
            }
        }
    }
    std::cout << files << " files replayed\n";
    return files > 0 ? 0 : 1;
}
