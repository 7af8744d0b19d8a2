# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/base.sh"

# build_preset NAME [CMAKE-OPTION...]: configures and builds into build/NAME.
build_preset()
{
    local preset=$1
    say "Configuring build/$preset"
    cmake -S "$root" --preset "$@" || die "the build could not be configured; see the lines above."
    say "Building build/$preset"
    cmake --build "$root/build/$preset" || die "the build failed; see the lines above."
}
