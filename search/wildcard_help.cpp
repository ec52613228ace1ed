// SPDX-License-Identifier: MIT
#include "search/wildcard_help.h"

#include <string>

#include "database/program_values.h"

namespace brelex {

Message WildcardHelp() {
    return {std::string(kAppTitle) +
                " supports extensive wildcard patterns in search text. The asterisk (*), question "
                "mark (?), number sign (#), exclamation point (!), hyphen (-) and brackets ([]) "
                "are wildcard characters. Follow these simple rules:\n\n"
                "1. Free use of asterisk (*) is not allowed.\n\n"
                "2. Question mark(?) matches any single character and number sign (#) matches any "
                "single digit.\n\n"
                "3. Use brackets ([]) to specify a range of characters. Hyphen (-) matches any one "
                "of a range of characters, eg, [a-n]. Exclamation point (!) matches any character "
                "not in the list, eg, [!a-n].\n\n"
                "4. The wildcard characters asterisk (*), question mark (?), number sign (#) and "
                "opening bracket ([) can match themselves literally only if enclosed in square "
                "brackets ([]).\n\n"
                "5. If you want to find whole words only, then wildcards are not allowed.",
            "Help on Wildcards", MessageIcon::None, MessageButtons::Ok};
}

}  // namespace brelex
