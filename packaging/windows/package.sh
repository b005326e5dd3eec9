#!/usr/bin/env bash
# Makes what a Windows user is given: the zip and the installer. Builds the programs first; installs what
# is missing.
#
#   packaging/windows/package.sh
#
# Both lie in build-windows/ afterwards.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$project/packaging/windows/common.sh"
# shellcheck source=packaging/windows/wine.sh
source "$project/packaging/windows/wine.sh"

here=$project/packaging/windows
build=$windows/tempora
work=$windows/package
version=$(sed -n 's/^project(tempora VERSION \([0-9.]*\).*/\1/p' "$project/CMakeLists.txt")
name=tempora-$version-windows
files=$work/$name # what is unpacked and installed

# A text as Windows' editors expect it.
windows_text() { sed 's/$/\r/' "$1" | sed '1s/^/\xef\xbb\xbf/' >"$2"; }

# A faculty to look at; tempora-setup makes others, around the day.
make_demo() {
    mkdir -p "$files/demonstration"
    make_prefix
    (cd "$files" && "$wine" tempora-demo.exe --sqlite demonstration/faculte.sqlite >/dev/null)
    end_wine
}

copy_licences() {
    local place=$files/licences
    mkdir -p "$place"
    windows_text "$project/LICENSE" "$place/Tempora.txt"
    windows_text "$here/Changer-Qt.txt" "$place/Changer-Qt.txt"
    cp "$qt"/licences/*.txt "$place/"
    mv "$place/copyright.txt" "$place/Qt-copyright.txt"
    cp "$qt/built-from" "$place/Qt-version.txt"
    cp /usr/share/doc/libsqlite3-dev/copyright "$place/SQLite-copyright.txt"
    windows_text "$sqlite/driver-licence.txt" "$place/SQLite-ODBC.txt"
    cp /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright "$place/gcc-copyright.txt"
    cp /usr/share/doc/mingw-w64-x86-64-dev/copyright "$place/mingw-w64-copyright.txt"
}

# SQLite's driver has an installer of its own: drivers are for all users, and an administrator's business.
make_driver_installer() {
    makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$(sed 's/.*, driver //; s/-.*//' "$sqlite/built-from")" \
        -DDRIVER="$sqlite/bin/sqlite3odbc.dll" -DLICENCE="$files/licences/SQLite-ODBC.txt" \
        -DICON="$build/tempora.ico" -DOUT="$files/pilote-sqlite.exe" "$here/pilote-sqlite.nsi"
}

gather_files() {
    say "Gathering the files ..."
    rm -rf "$work"
    cmake --install "$build" --prefix "$files" --strip >/dev/null
    windows_text "$here/Lisez-moi.txt" "$files/Lisez-moi.txt"
    copy_licences
    make_driver_installer
    make_demo
}

make_zip() {
    rm -f "$windows/$name.zip"
    (cd "$work" && find "$name" -type f | LC_ALL=C sort | zip -q -X "$windows/$name.zip" -@)
}

make_installer() {
    local file
    (cd "$files" && printf '%s\n' Styles/*.mpl Qt6*.dll lib*.dll) | while read -r file; do
        # shellcheck disable=SC2016 # makensis expands it
        printf 'Delete "$INSTDIR\\%s"\n' "${file//\//\\}"
    done >"$work/ours.nsh"
    makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DFILES="$files" \
        -DICON="$build/tempora.ico" -DOUT="$windows/tempora-$version-installateur.exe" \
        "$here/tempora.nsi"
}

ensure_packages "${wine_packages[@]}" libsqlite3-dev nsis zip
"$here/build.sh"
gather_files
make_zip
make_installer
printf '%s\n' "$windows/$name.zip" "$windows/tempora-$version-installateur.exe"
