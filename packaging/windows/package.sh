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

rm -f "$windows"/tempora-*-windows.zip "$windows"/tempora-*-installateur.exe # of other versions, too

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
    cp /usr/share/doc/qt6-translations-l10n/copyright "$place/Qt-textes-copyright.txt"
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
    # By a tool that marks names as UTF-8: without the mark Windows takes them for its old characters.
    (cd "$work" && find "$name" -type f | LC_ALL=C sort >files &&
        LC_ALL=C.UTF-8 cmake -E tar cf "$windows/$name.zip" --format=zip --files-from=files)
}

make_installer() {
    # What the uninstaller takes away: every file, then every folder that is empty by then.
    # shellcheck disable=SC2016 # makensis expands it
    (cd "$files" && find . -type f -printf 'Delete "$INSTDIR\\%P"\n' &&
        find . -depth -mindepth 1 -type d -printf 'RMDir "$INSTDIR\\%P"\n') | tr / '\\' >"$work/ours.nsh"
    makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DFILES="$files" \
        -DICON="$build/tempora.ico" -DOUT="$windows/tempora-$version-installateur.exe" \
        "$here/tempora.nsi"
}

ensure_packages "${wine_packages[@]}" cmake libsqlite3-dev nsis
"$here/build.sh"
gather_files
make_zip
make_installer
printf '%s\n' "$windows/$name.zip" "$windows/tempora-$version-installateur.exe"
