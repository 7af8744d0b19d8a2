# shellcheck shell=bash
# The desktop is behind one door: prompts, standard folders, the environment and the clock are in src/platform only.

source "$(dirname "${BASH_SOURCE[0]}")/base.sh"
source "$(dirname "${BASH_SOURCE[0]}")/findings.sh"

check_calls()
{
    local calls='\b(QMessageBox|QFileDialog|QInputDialog|QColorDialog|QFontDialog|QDesktopServices|QStandardPaths'
    calls+='|(secure_)?getenv|qEnvironmentVariable[A-Za-z]*|qgetenv'
    calls+='|Q(Date|Time|DateTime)::current[A-Za-z]*|system_clock)\b'
    local file line code call
    local -A allowed=()
    while read -r file call _; do
        allowed["$file $call"]=1
    done < <(grep -vE '^(#|$)' "$root/scripts/lib/allowed_calls.txt")

    while IFS=: read -r file line code; do
        [[ $code =~ $calls ]] || continue
        call=${BASH_REMATCH[1]}
        [[ -n ${allowed["$file $call"]:-} ]] || finding "$file" "$line" "$call belongs into src/platform"
    done < <(grep -rnE --include='*.cpp' --include='*.h' "$calls" src | grep -v '^src/platform/' | sed 's://.*::')
}
