#!/usr/bin/env bash
# Builds SQLite for Windows, with which the demo faculty is written, and its ODBC driver, which Windows
# does not have, out of Debian's source packages sqlite3 and sqliteodbc, once. Installs what is missing
# first. It takes a minute or two, and stays in build-windows/sqlite.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$project/packaging/windows/common.sh"

work=$windows/sqlite-work
log=$windows/sqlite.log

# The library and its header. The driver asks which table a column is of, as on Debian.
build_sqlite() {
    (cd "$work/sqlite3" && ./configure && make sqlite3.c)
    mkdir -p "$sqlite/include" "$sqlite/lib"
    x86_64-w64-mingw32-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_OMIT_LOAD_EXTENSION \
        -DSQLITE_ENABLE_COLUMN_METADATA -c "$work/sqlite3/sqlite3.c" -o "$work/sqlite3.o"
    x86_64-w64-mingw32-ar rcs "$sqlite/lib/libsqlite3.a" "$work/sqlite3.o"
    cp "$work/sqlite3/sqlite3.h" "$sqlite/include/"
}

# The driver with this SQLite in it, and the library that links a program with it. By the driver's own
# makefile, with what this SQLite has; not with extensions that a connection string could load.
build_driver() {
    local has=() name
    for name in COLUMNTABLENAME COLUMNDATABASENAME COLUMNORIGINNAME PREPAREV2 VFS PROFILE CLOSEV2 \
        STRNICMP TABLECOLUMNMETADATA; do
        has+=("-DHAVE_SQLITE3$name=1")
    done
    make -C "$work/sqliteodbc" -f Makefile.mingw64-cross sqlite3odbc.dll \
        CC=x86_64-w64-mingw32-gcc-posix RC=x86_64-w64-mingw32-windres \
        STRIP=x86_64-w64-mingw32-strip LMSVCRT= ADD_CFLAGS=-DWITHOUT_SHELL=1 \
        SQLITE3_INC="$work/sqlite3" SQLITE3_A10N_O="$work/sqlite3.o" SQLITE3_FLAGS="${has[*]}"
    mkdir -p "$sqlite/bin"
    cp "$work/sqliteodbc/sqlite3odbc.dll" "$sqlite/bin/"
    cp "$work/sqliteodbc/libsqlite3odbc.a" "$sqlite/lib/"
    cp "$work/sqliteodbc/license.terms" "$sqlite/driver-licence.txt"
}

ensure_packages "${windows_packages[@]}" dpkg-dev gcc libsqlite3-dev libsqliteodbc make tcl
version=$(source_version libsqlite3-dev)
driver_version=$(source_version libsqliteodbc)
built_from="$version, driver $driver_version"
if [[ -f $sqlite/built-from && $(<"$sqlite/built-from") == "$built_from" ]]; then
    say "SQLite $version and its driver for Windows are there."
    exit
fi
rm -rf "$sqlite"
begin_work "$work" "$built_from"
{
    fetch_source sqlite3 "$version" "$work/sqlite3"
    fetch_source sqliteodbc "$driver_version" "$work/sqliteodbc"
} >"$log"
say "Building SQLite $version and its ODBC driver $driver_version for Windows ..."
{
    build_sqlite
    build_driver
} >>"$log" 2>&1 || fail "SQLite could not be built; see $log"
printf '%s\n' "$built_from" >"$sqlite/built-from"
rm -rf "$work"
