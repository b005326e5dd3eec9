#!/usr/bin/env bash
# Measures what docs/performance.md tells, and prints it as Markdown. Installs what is missing.
#
#   bench/run.sh [small|middle|large]...      (all three unless told; about twelve minutes)
#   bench/run.sh --near [small|middle|large]...  without the servers behind a delay, which take most
#
# Statements and time per refresh, plain and ahead; a whole click in the window; reading a whole period;
# what it is asked then; time to lay out and paint a page; first plan from process start; peak memory;
# every page of the rooms to PDF. Leave the machine alone meanwhile.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"

near=()
sizes=()
for option in "$@"; do
    case $option in
        --near) near=(--near) ;;
        small | middle | large) sizes+=("$option") ;;
        *) fail "bench/run.sh takes small, middle, large and --near, not: $option" ;;
    esac
done
((${#sizes[@]} > 0)) || sizes=(small middle large)

folder=$project/build-bench
bin=$folder/bin
work=$folder/work

ensure_packages "${build_packages[@]}" hyperfine libbenchmark-dev libgtest-dev libsm-dev \
    mariadb-client-core mariadb-server-core xauth xvfb
configure "$folder" bench
build "$folder" tempora tempora-demo refresh_bench click_bench timetable_bench \
    answers_bench drawing_bench first_plan
mkdir -p "$work"
use_private_folders "$work/home"
mkdir -p "$XDG_CONFIG_HOME"

# The demo faculty of a size as the data source MonKalo, which a user without settings opens.
open_faculty() {
    local driver
    driver=$(find /usr/lib /usr/local/lib -name libsqlite3odbc.so -print -quit 2>/dev/null)
    [[ -f $work/$1.sqlite ]] || "$bin/tempora-demo" --sqlite "$work/$1.sqlite" --size "$1" >&2
    export ODBCSYSINI=$work ODBCINI=$work/odbc.ini
    printf '[SQLite3]\nDriver=%s\n' "$driver" >"$work/odbcinst.ini"
    printf '[MonKalo]\nDriver=SQLite3\nDatabase=%s\n' "$work/$1.sqlite" >"$ODBCINI"
}

# Mean and deviation of the wall time of `$2`, one list of words, run `$1` times; what follows is
# put in front.
milliseconds() {
    local runs=$1 command=$2
    shift 2
    "$@" hyperfine --shell=none --warmup 2 --runs "$runs" --style none \
        --export-json "$work/times.json" "$command" >/dev/null
    awk '/"mean"/ { gsub(/[^0-9.e-]/, "", $2); printf "%.0f ms", $2 * 1000 }
         /"stddev"/ { gsub(/[^0-9.e-]/, "", $2); printf " ± %.0f", $2 * 1000 }' "$work/times.json"
}

# A private X server while the command runs.
under_x() { xvfb-run --auto-servernum --server-args="-screen 0 1366x768x24" "$@"; }

whole_processes() {
    local size
    printf '\n| faculty | first plan from process start | peak memory | every page to PDF |\n'
    printf -- '|---|---:|---:|---:|\n'
    for size in "${sizes[@]}"; do
        open_faculty "$size"
        printf '| %s | %s | %s | %s |\n' "$size" "$(milliseconds 10 "$bin/first_plan" under_x)" \
            "$(peak_memory)" \
            "$(milliseconds 5 "$bin/tempora --export $work/all.pdf --all-pages --rooms-per-page 19" \
                env QT_QPA_PLATFORM=offscreen)"
    done
}

peak_memory() {
    under_x "$bin/first_plan" 2>&1 >/dev/null | awk '/peak memory/ { printf "%.0f MB", $3 / 1024 }'
}

printf '%s, %s, %s processors\n\n' "$(date +%F)" \
    "$(awk -F': ' '/model name/ { print $2; exit }' /proc/cpuinfo)" "$(nproc)"
(unset ODBCINI ODBCSYSINI && "$bin/refresh_bench" "${near[@]}" "${sizes[@]}")
printf '\n'
(unset ODBCINI ODBCSYSINI && under_x "$bin/click_bench" "${near[@]}" 2>/dev/null)
printf '\n'
(unset ODBCINI ODBCSYSINI && "$bin/timetable_bench" "${near[@]}")
printf '\n'
(unset ODBCINI ODBCSYSINI && "$bin/answers_bench")
printf '\n```\n'
"$bin/drawing_bench" 2>/dev/null
printf '```\n'
whole_processes
