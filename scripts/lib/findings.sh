# shellcheck shell=bash
# What the checks have found.

findings=0

finding() # FILE LINE MESSAGE
{
    printf '%s:%s: %s\n' "$@"
    findings=1
}

nothing_found() { ((findings == 0)); }
