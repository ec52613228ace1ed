# SPDX-License-Identifier: MIT
# Writes the text of INPUT to the header OUTPUT as the constant NAME.
file(READ "${INPUT}" text)
file(WRITE "${OUTPUT}" "#pragma once\ninline constexpr char ${NAME}[] = R\"embedded(${text})embedded\";\n")
