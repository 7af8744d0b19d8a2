# shellcheck shell=bash
# Starts the tool on a display in memory and takes a picture of its main window. Every wait has a limit.

source "$(dirname "${BASH_SOURCE[0]}")/base.sh"

stage=      # folder for this run: a home for the tool, logs, pictures
tool=       # process that was started
tool_ended= # it has come to a good end
window=     # the main window

give_up()
{
    printf 'error: %s\n' "$*" >&2
    tail -n 20 "$stage"/*.log >&2
    exit 1
}

# await SECONDS WHAT COMMAND...: repeats the command until it succeeds.
await()
{
    local limit=$1 what=$2
    local -i end=SECONDS+limit
    shift 2
    until "$@"; do
        ((SECONDS < end)) || give_up "gave up after $limit seconds of waiting for $what.$(visible_titles)"
        sleep 0.2
    done
}

has_window_manager() { timeout 10 xdotool get_num_desktops >/dev/null 2>&1; }

start_display()
{
    local number
    mkfifo "$stage/display"
    exec 3<>"$stage/display"
    Xvfb -displayfd 3 -screen 0 1440x900x24 -nolisten tcp -noreset >"$stage/xvfb.log" 2>&1 &
    read -r -t 20 number <&3 || give_up "the X server Xvfb did not start within 20 seconds."
    exec 3>&-
    export DISPLAY=:$number
    openbox --sm-disable >"$stage/openbox.log" 2>&1 &
    await 20 "the window manager openbox" has_window_manager
}

# The tool finds an empty home, so it starts as on its first day.
start_tool()
{
    mkdir -m 700 "$stage"/{data,config,cache,runtime}
    env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb HOME="$stage" XDG_DATA_HOME="$stage/data" \
        XDG_CONFIG_HOME="$stage/config" XDG_CACHE_HOME="$stage/cache" XDG_RUNTIME_DIR="$stage/runtime" \
        setsid "$@" >"$stage/tool.log" 2>&1 &
    tool=$!
}

windows() { timeout 10 xdotool search --onlyvisible "$@" 2>/dev/null; }

tool_windows() { windows --class --classname morvel; }

visible_titles()
{
    local window
    for window in $(tool_windows); do
        printf '\nOpen window: %s' "$(timeout 10 xdotool getwindowname "$window")"
    done
}

# A start without a layout asks whether to load the first design: yes.
answer_question()
{
    [[ -z $(windows --name '^MORVEL Configuration Tool$') ]] || timeout 10 xdotool key alt+y
}

# The main window, once it is there and the splash has gone.
main_window_is_alone()
{
    local -a all
    if [[ -z $tool_ended ]] && ! kill -0 "$tool" 2>/dev/null; then
        wait "$tool" || give_up "the tool ended with status $? before its main window was there."
        tool_ended=yes
    fi
    answer_question
    mapfile -t all < <(tool_windows)
    window=$(windows --name '^MORVEL Configuration Tool - ')
    [[ ${#all[@]} -eq 1 && $window == "${all[0]}" ]]
}

# A picture that equals the one before it: nothing is being painted any more.
picture_is_settled()
{
    [[ ! -e $stage/new.ppm ]] || mv "$stage/new.ppm" "$stage/old.ppm"
    timeout 20 import -silent -window "$window" "$stage/new.ppm" && cmp -s "$stage/old.ppm" "$stage/new.ppm"
}

has_ended() { [[ ! -e /proc/$1/exe ]]; } # PROCESS

clean_up()
{
    local window
    local -a left
    set +e
    exec 2>/dev/null
    mapfile -t left < <(for window in $(tool_windows); do timeout 10 xdotool getwindowpid "$window"; done)
    kill -KILL ${tool:+-- "-$tool"} "${left[@]}"
    mapfile -t left < <(jobs -p)
    kill "${left[@]}"
    wait
    rm -rf "$stage"
}

# take_screenshot PICTURE PROGRAM [ARGUMENT...]
take_screenshot()
{
    local picture=$1 process
    shift
    stage=$(mktemp -d)
    trap clean_up EXIT
    unset DISPLAY # nothing here may touch a real one
    say "Starting the tool on a display in memory"
    start_display
    start_tool "$@"
    await 60 "the main window" main_window_is_alone
    timeout 10 xdotool mousemove 0 0
    await 20 "a picture that no longer changes" picture_is_settled
    timeout 20 convert "$stage/new.ppm" "$picture"
    process=$(timeout 10 xdotool getwindowpid "$window")
    kill -TERM "$process"
    await 20 "the end of the tool" has_ended "$process"
    say "The picture of the main window is $picture"
}
