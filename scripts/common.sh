# shellcheck shell=bash
# What run.sh and test.sh share: packages, private folders, the build. Sourced by both, which set
# `project` to the project's folder first. Everything is written below that folder; only packages
# are installed beside it.
: "${project:?}"
export CCACHE_DIR=$project/.ccache

# Progress goes to standard error: standard output belongs to the program.
say() { printf '%s\n' "$*" >&2; }

fail() {
    say "$@"
    exit 1
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# Prints the given packages that are not installed, one a line.
missing_packages() {
    # dpkg-query complains about names it never heard of: those are missing, too.
    local installed package
    installed=$(LC_ALL=C dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null) || true
    for package in "$@"; do
        [[ $'\n'$installed$'\n' == *$'\n'"$package installed"$'\n'* ]] || printf '%s\n' "$package"
    done
}

# Turns apt's status lines into a few lines of progress.
apt_progress() {
    local line kind percent shown=
    while IFS= read -r line; do
        case $line in
            dlstatus:*) kind=fetched ;;
            pmstatus:*) kind=installed ;;
            *) continue ;;
        esac
        percent=${line#*:*:}
        percent=${percent%%[.:]*}
        [[ $percent =~ ^[0-9]+$ ]] || continue
        percent=$((10#$percent / 25 * 25))
        if [[ $shown != "$kind $percent" ]]; then
            shown="$kind $percent"
            say "  $percent % $kind"
        fi
    done
}

# Runs apt-get as root; its words go to the log `$1`, its status lines to standard output. They
# need a channel of their own: apt makes it non-blocking, which packages' own scripts do not expect
# of their output.
apt_get() {
    local log=$1
    shift
    # shellcheck disable=SC2016 # the inner shell expands
    as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C \
        sh -c 'exec 3>&1 >>"$0" 2>&1; exec apt-get -q -y -o APT::Status-Fd=3 "$@"' "$log" \
        -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0 "$@" </dev/null
}

# Installs those of the given packages that are missing. Quick and silent when there are none.
ensure_packages() {
    if ! command -v dpkg-query >/dev/null; then
        say "This is not a Debian system. If something fails, see that you have what these packages" \
            "hold: $*"
        return
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} > 0)) || return 0
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        fail "Packages are missing, and only root can install them. As root:" \
            "apt-get install --no-install-recommends ${missing[*]}"
    fi
    say "Installing what is missing: ${missing[*]}"
    local log=$project/run/apt.log
    mkdir -p "$project/run"
    : >"$log"
    # An unreachable third-party archive need not be the one that is needed.
    apt_get "$log" update >/dev/null || true
    if ! apt_get "$log" --no-install-recommends install "${missing[@]}" | apt_progress; then
        tail -n 20 "$log" >&2
        fail "The packages could not be installed; the whole story is in $log"
    fi
}

# Keeps settings and caches of everything started from here in the folder `$1`.
use_private_folders() {
    export XDG_CONFIG_HOME=$1/config XDG_CACHE_HOME=$1/cache XDG_DATA_HOME=$1/data
    export XDG_STATE_HOME=$1/state
    if [[ -z ${XDG_RUNTIME_DIR:-} ]]; then # a session's own must stay: its sockets are in there
        export XDG_RUNTIME_DIR=$1/runtime
        mkdir -p "$XDG_RUNTIME_DIR"
        chmod 700 "$XDG_RUNTIME_DIR"
    fi
}

# Configures the build folder `$1` as the preset `$2` of CMakePresets.json says, unless it is so
# already.
configure() {
    local folder=$1 preset=$2
    # CMake refuses a folder that was moved or copied with the project.
    if [[ -f $folder/CMakeCache.txt ]] &&
        ! grep -qxF "CMAKE_CACHEFILE_DIR:INTERNAL=$folder" "$folder/CMakeCache.txt"; then
        rm -rf "$folder"
    fi
    local record=$folder/configured-with
    if [[ -f $folder/build.ninja && -f $record && $(<"$record") == "$preset" &&
        $record -nt $project/CMakePresets.json ]]; then
        return
    fi
    say "Preparing the build in ${folder#"$project"/} ..."
    mkdir -p "$folder"
    if ! cmake -S "$project" -B "$folder" --preset "$preset" >"$folder/configure.log" 2>&1; then
        cat "$folder/configure.log" >&2
        fail "CMake could not prepare the build."
    fi
    printf '%s\n' "$preset" >"$record"
}

# Turns what ninja says into a few lines of progress; what a compiler has to say passes unchanged.
# `$1` names the folder, which is mentioned only when something is built there.
build_progress() {
    local line tenths shown=
    while IFS= read -r line; do
        case $line in
            "ninja: Entering directory "* | "ninja: no work to do."* | "[0/"* | "-- "*) ;;
            \[*/*\]\ *)
                [[ -n $shown ]] || say "Building in $1 (some minutes the first time) ..."
                line=${line%%\]*}
                line=${line#\[}
                tenths=$((${line%/*} * 10 / ${line#*/}))
                [[ $shown == "$tenths" ]] || say "  $((tenths * 10)) % built"
                shown=$tenths
                ;;
            *) say "$line" ;;
        esac
    done
}

# Builds in the folder `$1`: the given targets, or everything. Silent when nothing is to be done.
build() {
    local folder=$1
    shift
    NINJA_STATUS='[%f/%t] ' ninja -C "$folder" "$@" 2>&1 | build_progress "${folder#"$project"/}" ||
        fail "The build failed."
}

# What building the program takes, and what it needs to run.
# shellcheck disable=SC2034 # the sourcing script uses it
build_packages=(cmake fonts-liberation g++ libsqlite3-dev libsqliteodbc ninja-build odbc-mariadb
    qt6-base-dev qt6-translations-l10n sqlite3 unixodbc-dev)
