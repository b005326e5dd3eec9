#!/usr/bin/env bash
# Runs the fuzzers of fuzz/ and says what was run. Installs what is missing first.
#
#   scripts/fuzz.sh [--runs N] [--seconds S] [--only NAME]... [--jobs N] [--keep] [--light]
#
# --runs     of each fuzzer, 10,000,000 unless told; one that finds a fault ends there
# --seconds  an end for each fuzzer all the same
# --only     this fuzzer alone: a folder of fuzz/corpus
# --jobs     fuzzers side by side, one unless told
# --keep     adds what reached new code to fuzz/corpus; look at it before it is committed
# --light    in build-fuzz-light, without the address sanitizer, which takes most of the time: the
#            properties, undefined behaviour and the library's own checks of its indices are watched.
#            For many runs, after some without --light
#
# What is found stays in build-fuzz/found/NAME and is where the next run begins. An input that a
# fault came from lies in build-fuzz/faults; then the exit code is 1. It runs again with
# build-fuzz/bin/fuzz_NAME FILE, and belongs into fuzz/corpus/NAME once the fault is mended.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"

# One fuzzer; prints its line of the table. The script calls itself for it.
run_one() {
    local name=$1 runs=$2 seconds=$3 keep=$4 commit=$5
    local found=$folder/found/$name faults=$folder/faults kept=$project/fuzz/corpus/$name
    local log=$folder/log/$name.txt words=$project/fuzz/dictionaries/$name.dict started=$SECONDS
    local options=(-runs="$runs" -max_total_time="$seconds" -timeout=25 -rss_limit_mb=4096
        -print_final_stats=1 -artifact_prefix="$faults/$name-")
    [[ ! -f $words ]] || options+=(-dict="$words")
    mkdir -p "$found" "$faults" "$folder/log"
    local verdict=none
    "$folder/bin/fuzz_$name" "${options[@]}" "$found" "$kept" >"$log" 2>&1 ||
        verdict=$(sed -n 's|.*Test unit written to .*/||p' "$log" | tail -n 1)
    printf '| %s | %s | %s | %s | %s | %s | %s |\n' "$name" \
        "$(last_number 'stat::number_of_executed_units: *\([0-9]*\)' "$log")" \
        "$((SECONDS - started))" "$(last_number '.* cov: \([0-9]*\) .*' "$log")" \
        "$(last_number '.* corp: \([0-9]*\)/.*' "$log")" "${verdict:-see $log}" \
        "$commit"
    [[ $keep != true || $verdict != none ]] || keep_found "$name" "$found" "$kept"
}

# The last number that the expression finds in the file.
last_number() { sed -n "s|^$1$|\\1|p" "$2" | tail -n 1; }

# Copies inputs that reach code which those of the kept corpus do not.
keep_found() {
    local name=$1 found=$2 kept=$3 file
    local merged=$folder/merged/$name
    rm -rf "$merged"
    mkdir -p "$merged"
    cp "$kept"/* "$merged"
    "$folder/bin/fuzz_$name" -merge=1 -use_counters=0 "$merged" "$found" >>"$folder/log/$name.txt" 2>&1
    for file in "$merged"/*; do
        if [[ ${file##*/} =~ ^[0-9a-f]{40}$ ]]; then
            cp "$file" "$kept/found-$(basename "$file" | cut -c 1-8)"
        fi
    done
}

# Memory that was freed is watched for a while; the default of 256 MB makes the fuzzers slow, as
# does remembering where each piece came from. A fault is looked at by running its input again.
export ASAN_OPTIONS=quarantine_size_mb=8:malloc_context_size=1:${ASAN_OPTIONS:-}
export UBSAN_OPTIONS=print_stacktrace=1:${UBSAN_OPTIONS:-}
if [[ ${1:-} == --one ]]; then
    folder=$2
    shift 2
    run_one "$@"
    exit
fi

runs=10000000
seconds=0
jobs=1
keep=false
preset=fuzz
names=()
while (($# > 0)); do
    case $1 in
        --runs) runs=${2:?} && shift ;;
        --seconds) seconds=${2:?} && shift ;;
        --jobs) jobs=${2:?} && shift ;;
        --only) names+=("${2:?}") && shift ;;
        --keep) keep=true ;;
        --light) preset=fuzz-light ;;
        *) fail "scripts/fuzz.sh takes --runs, --seconds, --only, --jobs, --keep and --light, not: $1" ;;
    esac
    shift
done
folder=$project/build-$preset
cd "$project/fuzz/corpus"
((${#names[@]} > 0)) || names=(*)
for name in "${names[@]}"; do
    [[ -d $name ]] || fail "There is no fuzzer $name, only: $(echo *)"
done
cd "$project"

ensure_packages "${build_packages[@]}" ccache clang libclang-rt-dev lld
configure "$folder" "$preset"
build "$folder" "${names[@]/#/fuzz_}"
commit=$(git describe --always --dirty --exclude '*') # "-dirty" where something is not committed
use_private_folders "$folder/home"
mkdir -p "$folder/faults"
before=$(find "$folder/faults" -type f | sort)
printf '| fuzzer | runs | seconds | edges | inputs | fault | commit |\n'
printf -- '|---|---:|---:|---:|---:|---|---|\n'
printf '%s\n' "${names[@]}" |
    xargs -P "$jobs" -I '{}' "${BASH_SOURCE[0]}" --one "$folder" '{}' "$runs" "$seconds" "$keep" "$commit"
new=$(comm -13 <(printf '%s\n' "$before") <(find "$folder/faults" -type f | sort))
[[ -z $new ]] || fail "Inputs that a fault came from:" "$new"
