#!/usr/bin/env bash
# Builds SQLite for Windows out of Debian's source package sqlite3, once: the demo faculty is written
# with it. Installs what is missing first. It takes a minute or two, and stays in build-windows/sqlite.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$project/packaging/windows/common.sh"

work=$windows/sqlite-work
log=$windows/sqlite.log

# The library and its header.
build_sqlite() {
    (cd "$work/source" && ./configure && make sqlite3.c)
    mkdir -p "$sqlite/include" "$sqlite/lib"
    x86_64-w64-mingw32-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_OMIT_LOAD_EXTENSION -c \
        "$work/source/sqlite3.c" -o "$work/sqlite3.o"
    x86_64-w64-mingw32-ar rcs "$sqlite/lib/libsqlite3.a" "$work/sqlite3.o"
    cp "$work/source/sqlite3.h" "$sqlite/include/"
}

ensure_packages "${windows_packages[@]}" dpkg-dev gcc libsqlite3-dev make tcl
version=$(source_version libsqlite3-dev)
if [[ -f $sqlite/built-from && $(<"$sqlite/built-from") == "$version" ]]; then
    say "SQLite $version for Windows is there."
    exit
fi
rm -rf "$sqlite"
mkdir -p "$work"
fetch_source sqlite3 "$version" "$work/source" >"$log"
say "Building SQLite $version for Windows ..."
build_sqlite >>"$log" 2>&1 || fail "SQLite could not be built; see $log"
printf '%s\n' "$version" >"$sqlite/built-from"
rm -rf "$work"
