#!/usr/bin/env bash
# Builds and runs every test. Installs what is missing first.
#
#   ./test.sh [--sanitize] [--clang] [options of ctest]
#   ./test.sh --release [options of ctest]
#   ./test.sh --tidy | --format | --includes
#
# --sanitize  with the address and undefined-behaviour sanitizers
# --clang     with clang instead of gcc
# --release   optimized, as run.sh and the packages build the program
# --tidy      no test: clang-tidy over every source file
# --format    no test: what clang-format would change
# --includes  no test: whether each file of the program includes what it needs
#
# Each kind of build has a folder of its own (build-test, build-test-clang, ...), set up as the preset
# of that name in CMakePresets.json says. Anything else is handed to ctest: ./test.sh -R layering runs
# the cases whose name holds "layering".
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"

sanitize=false
clang=false
release=false
task="test"
ctest_options=()
for option in "$@"; do
    case $option in
        --sanitize) sanitize=true ;;
        --clang) clang=true ;;
        --release) release=true ;;
        --tidy) task=tidy ;;
        --format) task=format ;;
        --includes) task=includes ;;
        *) ctest_options+=("$option") ;;
    esac
done

cd "$project"

# Every source file of ours with one of the given endings, each name ended by a null character.
sources() {
    local folder ending
    for folder in src demo tests bench fuzz; do
        for ending in "$@"; do
            [[ ! -d $folder ]] || find "$folder" -name "*.$ending" -print0
        done
    done
}

check_format() {
    ensure_packages clang-format
    sources cpp h | xargs -0 clang-format --dry-run --Werror
    say "Every file is formatted."
}

check_tidy() {
    local folder=$project/build-test-clang # the one that compiles every file alone
    ensure_packages "${packages[@]}" clang clang-tidy
    configure "$folder" test-clang
    # Windows' own files need its headers.
    sources cpp | grep -zv 'Windows\.cpp$' |
        xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet --warnings-as-errors='*' -p "$folder"
    say "clang-tidy has nothing to say."
}

# The builds compile several files as one, where a missing #include is not noticed.
check_includes() {
    local folder=$project/build-includes objects
    ensure_packages "${build_packages[@]}"
    configure "$folder" includes
    say "Reading every source file of the program alone ..."
    mapfile -t objects < <(ninja -C "$folder" -t targets all |
        sed -n 's/^\(src\/.*\.cpp\.o\): .*/\1/p')
    build "$folder" -k 0 "${objects[@]}"
    say "Every file includes what it needs."
}

# A print server for the tests that print, in $folder/cups. Installed, it would run as a service.
unpack_print_server() {
    local parts=(cups-client cups-daemon) place=$folder/cups file
    if [[ -x $place/usr/sbin/cupsd ]] ||
        { command -v cupsd && command -v lpadmin; } >/dev/null; then
        return
    fi
    say "Fetching a print server for the tests ..."
    mkdir -p "$place"
    if ! (cd "$place" && apt-get -q download "${parts[@]}") >"$place/apt.log" 2>&1; then
        say "There is none to be had (see $place/apt.log): the tests that print on one are skipped."
        return
    fi
    for file in "$place"/*.deb; do
        dpkg -x "$file" "$place"
        rm "$file"
    done
}

# ctest counts the cases that were skipped and keeps their reasons to itself.
tell_why_skipped() {
    [[ ! -f $log ]] || awk '/: Skipped$/ { getline reason }
        /^\[  SKIPPED \] .* ms\)$/ { print "Skipped: " $4 ": " reason }' "$log" >&2
}

run_tests() {
    local failed=0 log=$folder/Testing/Temporary/LastTest.log
    ensure_packages "${packages[@]}"
    configure "$folder" "$preset"
    build "$folder"
    unpack_print_server
    rm -f "$log"
    ctest --test-dir "$folder" --output-on-failure -j "$(nproc)" "${ctest_options[@]}" || failed=$?
    tell_why_skipped
    return "$failed"
}

# mariadb-server would bring a system service that starts at once; the tests start servers of their
# own and need only the programs, which lie in the two core packages.
packages=("${build_packages[@]}" appstream at-spi2-core bash-completion ccache dbus-daemon
    desktop-file-utils libbenchmark-dev libgtest-dev libpaper1 libsm-dev lld man-db
    mariadb-client-core mariadb-server-core openbox poppler-utils python3-icalendar tzdata
    xdotool xvfb)
preset="test"
if $clang; then
    packages+=(clang)
    preset+=-clang
fi
if $sanitize; then
    if $clang; then
        packages+=(libclang-rt-dev)
    fi
    preset+=-sanitize
fi
if $release; then
    [[ $preset == test ]] || fail "--release goes with neither --clang nor --sanitize."
    preset+=-release
fi
folder=$project/build-$preset

case $task in
    test) run_tests ;;
    tidy) check_tidy ;;
    format) check_format ;;
    includes) check_includes ;;
esac
