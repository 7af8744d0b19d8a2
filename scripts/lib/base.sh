# shellcheck shell=bash
# What every script needs: where things lie and how to speak.

# shellcheck disable=SC2034 # for the scripts that read this file
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

say() { printf '==> %s\n' "$*"; }

die()
{
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# The comment at the head of a script is its help text.
usage() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$1"; }
