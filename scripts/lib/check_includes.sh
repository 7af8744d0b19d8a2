# shellcheck shell=bash
# Includes follow the arrows between the rooms and never run in a circle, and rules know no windows.

source "$(dirname "${BASH_SOURCE[0]}")/findings.sh"

declare -A arrows=(
    [shell]="surface layoutfile controls recorder variables graphics forms platform common"
    [surface]="controls recorder variables graphics forms platform common"
    [layoutfile]="controls recorder variables graphics forms platform common"
    [controls]="recorder variables graphics forms platform common"
    [recorder]="variables graphics forms platform common"
    [variables]="forms platform common"
    [graphics]="forms platform common"
    [forms]="platform common"
    [platform]="common"
    [common]=""
)
windowless='^src/(common|platform|graphics|variables|recorder)/'
window_folders='/(desktop|dialogs|editors)/'
forms_rules='^forms/(choice|verdict)\.h$' # what a rule may know of a dialog

qt_headers=$(qmake6 -query QT_INSTALL_HEADERS 2>/dev/null) || qt_headers=

is_widgets_header()
{
    [[ $1 == QtWidgets/* ]] || [[ -n $qt_headers && -e $qt_headers/QtWidgets/$1 && ! -e $qt_headers/QtGui/$1 ]]
}

check_room() # FILE LINE ROOM INCLUDED
{
    local target=${4%%/*}
    if [[ $4 == ../* ]]; then
        finding "$1" "$2" "$4: includes begin with the name of their room"
    elif [[ -z ${arrows[$3]+known} ]]; then
        finding "$1" "$2" "the room $3 has no arrows in scripts/lib/check_includes.sh"
    elif [[ $4 == */* && -d src/$target && " $3 ${arrows[$3]} " != *" $target "* ]]; then
        finding "$1" "$2" "no arrow runs from $3 to $target"
    fi
}

check_windows() # FILE LINE INCLUDED
{
    [[ $1 =~ $windowless && ! $1 =~ $window_folders ]] || return 0
    if is_widgets_header "$3" || [[ src/$3 =~ $windowless && $3 =~ $window_folders ]] ||
        [[ $3 == forms/* && ! $3 =~ $forms_rules ]]; then
        finding "$1" "$2" "$3 brings windows into the rules"
    fi
}

check_circles()
{
    local file
    # tsort names the files of a circle, each in a line "tsort: FILE".
    while IFS= read -r file; do
        finding "src/$file" 1 "includes itself by way of others"
    done < <(grep -rE --include='*.cpp' --include='*.h' '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' src |
        sed -E 's|^src/([^:]+):[^"]*"([^"]+)".*|\1 \2|' | tsort 2>&1 >/dev/null | sed -nE 's/^tsort: ([^ ]+)$/\1/p')
}

check_includes()
{
    check_circles
    local include='^(src/([^/]+)/[^:]+):([0-9]+):[^<"]*([<"])([^>"]+)' place
    while IFS= read -r place; do
        [[ $place =~ $include ]] || continue
        local file=${BASH_REMATCH[1]} room=${BASH_REMATCH[2]} line=${BASH_REMATCH[3]}
        local bracket=${BASH_REMATCH[4]} included=${BASH_REMATCH[5]}
        [[ $bracket == '<' ]] || check_room "$file" "$line" "$room" "$included"
        check_windows "$file" "$line" "$included"
    done < <(grep -rnE --include='*.cpp' --include='*.h' '^[[:space:]]*#[[:space:]]*include' src)
}
