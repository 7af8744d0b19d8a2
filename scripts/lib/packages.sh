# shellcheck shell=bash
# Installs what scripts/packages.txt lists.

source "$(dirname "${BASH_SOURCE[0]}")/base.sh"

packages_file=$root/scripts/packages.txt

# packages_in GROUP...: the names, one a line.
packages_in()
{
    awk -v groups=" $* " '
        /^\[/ { wanted = index(groups, " " substr($1, 2, length($1) - 2) " ") }
        wanted && /^[a-z]/ { print $1 }' "$packages_file"
}

missing_packages()
{
    comm -23 <(packages_in "$@" | LC_ALL=C sort -u) \
        <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p' | LC_ALL=C sort -u)
}

explain_other_system()
{
    cat >&2 <<EOF
error: this system has no apt-get, so nothing can be installed from here. Install what these Debian packages
stand for by the system's own means:

$(awk '/^\[/ { run = $1 == "[run]" } run && /^[a-z]/ { print "  " $0 }' "$packages_file")

then build and start the tool with
  cmake --preset release -DMORVEL_TESTS=OFF -DMORVEL_BENCH=OFF
  cmake --build --preset release
  build/release/program/morvel
EOF
    exit 1
}

# ensure_packages GROUP...: installs what is missing, or says what to type and ends the script.
ensure_packages()
{
    local -a missing as_root=() install=(apt-get install --no-install-recommends)
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        explain_other_system
    fi
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0

    if ((EUID != 0)); then
        as_root=(sudo -n)
        if ! sudo -n true 2>/dev/null; then
            printf 'Packages are missing, and installing them takes the rights of root. Please run\n\n' >&2
            printf '  sudo %s\n\nand then this script again.\n' "${install[*]} ${missing[*]}" >&2
            exit 1
        fi
    fi
    as_root+=(env DEBIAN_FRONTEND=noninteractive)
    say "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update </dev/null || say "The package lists could not be renewed; trying with the old ones."
    "${as_root[@]}" "${install[@]}" -y -o DPkg::Lock::Timeout=120 "${missing[@]}" </dev/null ||
        die "the packages could not be installed; see the lines above."
}
