# SPDX-License-Identifier: MIT
# Shared by the scripts of this folder; to be sourced.

cache=${XDG_CACHE_HOME:-$HOME/.cache}/brevilexicon
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

# Of Debian's package sources only the release itself is used: an update suite that is being synced
# may list versions that its mirror does not hold yet. Prints "MIRROR CODENAME".
release_suite() {
    local codename
    codename=$(. /etc/os-release; echo "$VERSION_CODENAME")
    apt-get indextargets --format '$(SITE) $(CODENAME) $(COMPONENT)' 'Identifier: Packages' |
        awk -v c="$codename" '$2 == c && $3 == "main" { print $1, $2; found = 1; exit }
                              END { exit !found }' ||
        fail "apt knows no package list of $codename (apt-get update?)"
}

# up_to_date STAMP KEY: whether the stamp file says that this very version is there.
up_to_date() { [ "$(cat "$1" 2>/dev/null)" = "$2" ]; }

# One at a time: two clones share the cache.
lock_cache() {
    mkdir -p "$cache"
    exec 8>"$cache/.lock"
    flock 8
}
