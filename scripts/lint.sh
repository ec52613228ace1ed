#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# lint.sh [FILE...]: runs clang-tidy on all sources, or only on the given ones. Requires that
# build/dev is built, because it needs the generated headers, and that build/win32 is configured.
#
# Most of the time goes into the toolkit's headers, so several sources with the same options are
# linted as one text. If that does not compile because two of them use the same name for different
# things, each half is linted separately. A set that has passed is not linted again until its
# compiler options, the rules, the tools, or one of the files that it includes changes. build/lint/
# records this.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
root=$PWD
sources_together=8
# Windows passes pointers as numbers, and the names of its pointer types do not look like pointers.
# clang has no C++ library for that target, so it uses the cross compiler's.
cxx=$(dirname "$(i686-w64-mingw32-g++-posix -print-libgcc-file-name)")/include/c++
win32_options=(--target=i686-w64-mingw32 -Wno-unused-command-line-argument
               "-isystem$cxx" "-isystem$cxx/i686-w64-mingw32")
windows_source='_msw\.cpp$|(^|/)windows_[a-z_]*\.cpp$'
tools=$({ clang-tidy --version; cat .clang-tidy scripts/lint.sh; } | sha256sum)

# commands PRESET: prints "SOURCE<tab>OPTIONS" for each source, quoted as in the compilation
# database.
commands() {
    sed -n 's/^  "command": "[^ ]* \(.*\) -o [^ ]* -c '"${root//\//\\/}"'\/\([^ ]*\)",$/\2\t\1/p' \
        "build/$1/compile_commands.json" | sed 's/-Winvalid-pch -include [^ ]*//' | LC_ALL=C sort -u -k1,1
}

# fingerprint FOLDER: a hash of a set and everything it includes; empty if that is not known.
fingerprint() {
    [ -f "$1/includes" ] || return 0
    { echo "$tools"; cat "$1/compile_commands.json" "$1/all.cpp"
      xargs sha256sum 2>/dev/null <"$1/includes" || echo "$RANDOM"; } | sha256sum
}

# lint_set PRESET OPTIONS SOURCE...
lint_set() {
    local preset=$1 options=$2 source folder extra=() checks
    shift 2
    folder=$root/build/lint/$preset-$(echo "$@" | sha256sum | cut -c1-16)
    mkdir -p "$folder"
    cat "$@" >"$folder/all.cpp"
    cat >"$folder/compile_commands.json" <<END
[{"directory": "$root/build/$preset", "file": "$folder/all.cpp",
  "command": "clang++ $options -Wno-unknown-warning-option -Wno-unused-function -c $folder/all.cpp"}]
END
    [ "$(fingerprint "$folder")" != "$(cat "$folder/passed" 2>/dev/null || echo none)" ] || return 0
    [ "$preset" = dev ] || extra=("${win32_options[@]}")
    if [ $# -gt 1 ] && { [ -f "$folder/clash" ] || ! parses; }; then
        touch "$folder/clash"
        local half=$(($# / 2)) result=0
        lint_set "$preset" "$options" "${@:1:half}" || result=1
        lint_set "$preset" "$options" "${@:half+1}" || result=1
        return $result
    fi
    parses || { in_sources "$@" <"$folder/errors" >&2; return 1; }
    checks=-readability-duplicate-include  # check.sh looks for those in each source
    [ "$preset" = dev ] || checks=$checks,-misc-misplaced-const,-performance-no-int-to-ptr
    # The tests run with checks of every memory access. The analyzer could only guess at the same
    # faults.
    [[ $1 != tests/* ]] || checks=$checks,-clang-analyzer-*
    clang-tidy -p "$folder" --quiet --checks="$checks" "${extra[@]/#/--extra-arg-before=}" \
        "$folder/all.cpp" >"$folder/findings" 2>/dev/null || {
        in_sources "$@" <"$folder/findings" >&2
        return 1
    }
    fingerprint "$folder" >"$folder/passed"
}

# Checks whether the current set compiles, and records the files that it includes.
parses() {
    eval "clang++ $(sed 's/\\\(.\)/\1/g' <<<"$options") -w -Wno-error -Wno-unknown-warning-option" \
        '"${extra[@]}" -fsyntax-only -MD -MF "$folder/makefile" "$folder/all.cpp" 2>"$folder/errors"' ||
        return 1
    sed 's/^[^ ].*://; s/\\$//' "$folder/makefile" | tr -s ' ' '\n' | grep . >"$folder/includes"
}

# in_sources SOURCE...: converts line numbers of the combined text to those of its sources.
in_sources() {
    awk -v text="$folder/all.cpp:" '
        NR == FNR { begin[++count] = total; total += $1; name[count] = $2; next }
        index($0, text) == 1 {
            rest = substr($0, length(text) + 1)
            line = rest + 0
            for (i = count; begin[i] >= line; --i) {}
            $0 = name[i] ":" (line - begin[i]) substr(rest, length(line "") + 1)
        }
        { print }' <(wc -l "$@") -
}

# in_background COMMAND...: runs as many commands at a time as there are processors.
failed=0 running=0
in_background() {
    if [ $running -ge "$(nproc)" ]; then
        wait -n || failed=1
        running=$((running - 1))
    fi
    "$@" &
    running=$((running + 1))
}

# lint PRESET SOURCE...: lints the sources in sets, with the options that the preset has for them.
lint() {
    local preset=$1 line source options set=() set_options= alone
    shift
    [ $# -gt 0 ] || return 0
    # X11 defines words such as None as macros, and several sources may declare the same C function.
    alone=$(grep -lE '<(X11/|gdk/gdkx)|extern "C"' "$@" || true)
    while IFS=$'\t' read -r source options; do
        if [ ${#set[@]} = $sources_together ] || [ "$options" != "$set_options" ]; then
            [ ${#set[@]} = 0 ] || in_background lint_set "$preset" "$set_options" "${set[@]}"
            set=() set_options=$options
        fi
        if grep -qxF "$source" <<<"$alone"; then
            in_background lint_set "$preset" "$options" "$source"
        else
            set+=("$source")
        fi
    done < <(commands "$preset" | grep -F -f <(printf '%s\t\n' "$@") | LC_ALL=C sort -t $'\t' -k2,2 -k1,1)
    [ ${#set[@]} = 0 ] || in_background lint_set "$preset" "$set_options" "${set[@]}"
}

if [ $# = 0 ]; then
    mapfile -t sources < <(git ls-files --cached --others --exclude-standard -- \
        '*.cpp' ':!benchmarks')
else
    sources=("$@")
fi
mapfile -t windows < <(printf '%s\n' "${sources[@]}" | grep -E "$windows_source" || true)
mapfile -t others < <(printf '%s\n' "${sources[@]}" | grep -vE "$windows_source" || true)
unbuilt=$(printf '%s\n' "${sources[@]}" |
    grep -vxF -f <({ commands dev; commands win32; } | cut -f1) || true)
[ -z "$unbuilt" ] || fail "nothing builds these: $unbuilt"
lint dev "${others[@]}"
lint win32 "${windows[@]}"
while [ $running -gt 0 ]; do
    wait -n || failed=1
    running=$((running - 1))
done
[ $failed = 0 ] || fail "clang-tidy found something"
