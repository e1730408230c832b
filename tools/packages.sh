# SPDX-License-Identifier: Apache-2.0
# Sourced by ./run, ./test and bench/measure: installs what is missing from packages.txt.

# packages_of GROUP...: the packages of these groups, one a line.
packages_of() {
    local group
    for group in "$@"; do
        sed -n "/^\[$group\]/,/^\[/{s/[[:space:]]*#.*//;/^\[/d;/^$/d;p}" packages.txt
    done
}

# install_missing GROUP...: says what it installs; needs root or sudo only where something is missing.
install_missing() {
    local wanted missing=() name
    mapfile -t wanted < <(packages_of "$@")
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is no Debian system, so nothing is installed; the packages needed are: ${wanted[*]}" >&2
        return 0
    fi
    local have
    have=" $(dpkg-query -W -f '${db:Status-Status}:${Package} ' "${wanted[@]}" 2>/dev/null || true)"
    for name in "${wanted[@]}"; do
        [[ $have == *" installed:$name "* ]] || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing packages: ${missing[*]}" >&2
            echo "Neither root nor sudo is at hand. As root: apt-get install --no-install-recommends ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
