// SPDX-License-Identifier: MIT
#include "tools/licenses_command.h"

#include <optional>

#include "base/byte_buffer.h"
#include "base/file_io.h"
#include "tools/open_database.h"
#include "tools/visible_text.h"

namespace brelex {

int RunLicenses(const std::string& folder, std::ostream& out, std::ostream& err) {
    const std::string path =
        FindFileIgnoringCase(folder, kLicensesName).value_or(folder + kLicensesName);
    const std::optional<ByteBuffer> bytes = ReadWholeFile(PathOfUtf8(path));
    if (!bytes) {
        PrintMessage(err, "cannot read " + path);
        return kFailed;
    }
    // The file has the system's line ends, which the output makes by itself.
    for (const char byte : bytes->View()) {
        if (byte != '\r') {
            out.put(byte);
        }
    }
    return kFound;
}

}  // namespace brelex
