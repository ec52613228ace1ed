# SPDX-License-Identifier: MIT
# Functions that the scripts in this folder share. Source this file.

cache=${XDG_CACHE_HOME:-$HOME/.cache}/brevilexicon
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

# Prints "MIRROR CODENAME" of Debian's release. The scripts use only the release itself, because an
# update suite that is being synced may list versions that its mirror does not have yet.
release_suite() {
    local codename
    codename=$(. /etc/os-release; echo "$VERSION_CODENAME")
    apt-get indextargets --format '$(SITE) $(CODENAME) $(COMPONENT)' 'Identifier: Packages' |
        awk -v c="$codename" '$2 == c && $3 == "main" { print $1, $2; found = 1; exit }
                              END { exit !found }' ||
        fail "apt knows no package list of $codename (apt-get update?)"
}

# up_to_date STAMP KEY: succeeds if the stamp file contains exactly this key.
up_to_date() { [ "$(cat "$1" 2>/dev/null)" = "$2" ]; }

# Lets only one script at a time change the cache, which all clones share.
lock_cache() {
    mkdir -p "$cache"
    exec 8>"$cache/.lock"
    flock 8
}
