# shellcheck shell=bash
# Layout of all sources, static checks of those that changed.

source "$(dirname "${BASH_SOURCE[0]}")/base.sh"
source "$(dirname "${BASH_SOURCE[0]}")/findings.sh"

llvm_version=14 # other versions lay out and find differently

# llvm_tool NAME: the command of that version; fails with a note when there is none.
llvm_tool()
{
    local command
    for command in "$1-$llvm_version" "$1"; do
        if [[ $("$command" --version 2>/dev/null) == *"version $llvm_version."* ]]; then
            printf '%s\n' "$command"
            return
        fi
    done
    say "There is no $1 of version $llvm_version here; its check is left out" >&2
    return 1
}

check_layout()
{
    local tool file line message
    local -a folders
    tool=$(llvm_tool clang-format) || return 0
    mapfile -t folders < <(find src tests bench tools -maxdepth 0 2>/dev/null)
    while IFS=: read -r file line _ _ message; do
        finding "${file#"$root/"}" "$line" "${message# }"
    done < <(find "${folders[@]}" -name '*.cpp' -o -name '*.h' | sort |
        xargs -r "$tool" --dry-run -Werror 2>&1 |
        grep -E '^[^ ].*: error: ' | awk -F: '!seen[$1]++') # the first place of each file is enough
}

in_git() { git -c safe.directory="$root" "$@"; }

# The sources that differ from the main branch, or from the commit before where there is no such branch, with what
# is not committed yet. A header stands for its source. The most recently changed first.
changed_sources()
{
    local base
    base=$(in_git merge-base origin/main HEAD 2>/dev/null || in_git rev-parse -q --verify HEAD~1 ||
        in_git rev-parse -q --verify HEAD) || true
    {
        [[ -z $base ]] || in_git diff --name-only "$base"
        in_git ls-files --others --exclude-standard
    } | sed -nE 's/\.(cpp|h)$/.cpp/p' | sort -u | while IFS= read -r file; do
        [[ ! -f $file ]] || stat -c '%Y %n' "$file"
    done | sort -rn | cut -d ' ' -f 2-
}

# The changed sources that the build in this folder compiles.
changed_in() # BUILD-FOLDER
{
    local file
    changed_sources | while IFS= read -r file; do
        ! grep -qF "\"$root/$file\"" "$1/compile_commands.json" || printf '%s\n' "$file"
    done
}

# How a build compiles its sources, but for what makes it faster: without the precompiled headers, a header that a
# source forgets to include is missed.
plain_commands() # BUILD-FOLDER
{
    sed -E 's/("command": ")[^"]* [^" ]*ccache /\1/; s/ (-fpch-preprocess|-Winvalid-pch|-include [^" ]*cmake_pch\.hxx)//g' \
        "$1/compile_commands.json"
}

check_changed() # BUILD-FOLDER
{
    local build=$1 tool most=12 commands
    local -a changed
    tool=$(llvm_tool clang-tidy) || return 0
    if ! in_git rev-parse --git-dir >/dev/null 2>&1; then
        say "This is no git repository; static checks are left out"
    elif [[ ! -f $build/compile_commands.json ]]; then
        say "There is no build in $build; static checks are left out"
    else
        mapfile -t changed < <(changed_in "$build")
        ((${#changed[@]})) || return 0
        ((${#changed[@]} <= most)) || say "Static checks take the $most sources changed last and leave out" \
            "${changed[@]:most}"
        commands=$(mktemp -d)
        plain_commands "$build" >"$commands/compile_commands.json"
        printf '%s\n' "${changed[@]:0:most}" |
            xargs -r -d '\n' -n 1 -P "$(nproc)" "$root/scripts/lib/tidy" "$tool" "$commands" || findings=1
        rm -r "$commands"
    fi
}
