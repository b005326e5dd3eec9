# shellcheck shell=bash
# What the scripts of this folder and test-windows.sh share: where things lie, and Debian's source
# packages. Sourced after scripts/common.sh, with `project` set.
: "${project:?}"

# Everything that is built for Windows lies below this folder, which git ignores.
windows=$project/build-windows
# shellcheck disable=SC2034 # the sourcing scripts use these
qt=$windows/qt # Qt for Windows, as build-qt.sh leaves it
# shellcheck disable=SC2034
sqlite=$windows/sqlite # SQLite for Windows, as build-sqlite.sh leaves it

# Compilers and the host's side of Qt; the latter must be of the version that is built.
# shellcheck disable=SC2034
windows_packages=(cmake g++-mingw-w64-x86-64-posix mingw-w64-tools ninja-build qt6-base-dev
    qt6-base-dev-tools)

# Debian's words for the version of the source that the installed package `$1` came from.
source_version() {
    # shellcheck disable=SC2016 # dpkg-query's own variable
    dpkg-query -W -f '${source:Version}\n' "$1"
}

# apt-get on a list of its own, which names source packages: the system's stays as it is. Needs no
# rights.
apt_get_source() {
    local place=$windows/apt
    mkdir -p "$place/lists/partial" "$place/cache/archives/partial"
    printf 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] %s\n' \
        "http://deb.debian.org/debian bookworm main" \
        "http://deb.debian.org/debian bookworm-updates main" \
        "http://deb.debian.org/debian-security bookworm-security main" >"$place/sources.list"
    # The packages are no secret, and the folder may be closed to the account that apt fetches with.
    apt-get -q -o APT::Sandbox::User=root -o Dir::Etc::SourceList="$place/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o Dir::State::Lists="$place/lists" -o Dir::Cache="$place/cache" "$@"
}

# An empty folder `$1` to build `$2` in; what an interrupted run has left there of the same is kept, and of
# anything else removed.
begin_work() {
    [[ -f $1/builds && $(<"$1/builds") == "$2" ]] || rm -rf "$1"
    mkdir -p "$1"
    printf '%s\n' "$2" >"$1/builds"
}

# The sources of the package `$1` in Debian's version `$2`, with Debian's patches, in the folder
# `$3`, unless they are there. apt checks what it fetches.
fetch_source() {
    local package=$1 version=$2 folder=$3
    [[ ! -d $folder ]] || return 0
    say "Fetching the sources of $package $version ..."
    mkdir -p "$folder.fetched"
    apt_get_source update
    (cd "$folder.fetched" && apt_get_source source --download-only "$package=$version")
    dpkg-source --no-check -x "$folder.fetched"/*.dsc "$folder.new"
    mv "$folder.new" "$folder"
    rm -rf "$folder.fetched"
}
