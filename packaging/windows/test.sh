#!/usr/bin/env bash
# Installs the program with the installer under Wine, looks, and removes it again: what the user has put
# beside the program and the settings must stay. Run packaging/windows/package.sh before.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$project/packaging/windows/common.sh"
# shellcheck source=packaging/windows/wine.sh
source "$project/packaging/windows/wine.sh"

settings='HKCU\Software\VB and VBA Program Settings\Tempora\Settings'
driver_key='HKLM\Software\ODBC\ODBCINST.INI\SQLite3 ODBC Driver'
drivers='HKLM\Software\ODBC\ODBCINST.INI\ODBC Drivers'
entry='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tempora'
screen=

end_all() {
    end_wine
    [[ -z $screen ]] || kill "$screen" 2>/dev/null || true
}

# A screen of its own: the installer makes windows even when it shows none.
open_screen() {
    local number
    mkdir -p "$windows/test"
    rm -f "$windows/test/display"
    mkfifo "$windows/test/display"
    Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3>"$windows/test/display" 2>/dev/null &
    screen=$!
    read -r number <"$windows/test/display"
    export DISPLAY=:$number
}

is_there() { [[ -e $1 ]] || fail "Missing: $1"; }
is_gone() { [[ ! -e $1 ]] || fail "Still there: $1"; }
# Whether the value `$2` of the key `$1` is `$3`.
says() {
    "$wine" reg.exe query "$1" /v "$2" 2>/dev/null | tr -d '\r' | grep -qF "$3" ||
        fail "Not $3 in the registry: $1, $2"
}
has_key() { "$wine" reg.exe query "$1" >/dev/null 2>&1; }

ensure_packages "${wine_packages[@]}" python3 unzip xdotool
installer=$(find "$windows" -maxdepth 1 -name 'tempora-*-installateur.exe')
[[ -n $installer ]] || fail "There is no installer: run packaging/windows/package.sh"
trap end_all EXIT
make_prefix
register_drivers
open_screen
user=$(find "$WINEPREFIX/drive_c/users" -mindepth 1 -maxdepth 1 ! -name Public)
place=$user/AppData/Local/Programs/Tempora
menu="$user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Tempora"
rm -rf "$place" "$windows/test/unzipped"

say "Installing ..."
"$wine" "$installer" /S
for file in Qt6Widgets.dll platforms/qwindows.dll tempora.exe tempora-setup.exe tempora-demo.exe Lisez-moi.txt Styles/Pastel.mpl \
    pilote-sqlite.exe docs/guide.md docs/images/plan.png translations/qtbase_fr.qm licences/LGPL-3.0-only.txt \
    licences/Changer-Qt.txt demonstration/faculte.sqlite desinstaller.exe; do
    is_there "$place/$file"
done
is_there "$menu/Tempora.lnk"
is_there "$user/Desktop/Tempora.lnk"
has_key "$entry" || fail "Windows does not know that it is installed."

say "Installing SQLite's driver, and removing it ..."
driver_place="$WINEPREFIX/drive_c/Program Files/SQLite3 ODBC Driver"
rm -rf "$driver_place"
"$wine" reg.exe delete "$driver_key" /f >/dev/null 2>&1 || true # what a run that failed has left
"$wine" "$place/pilote-sqlite.exe" /S
cmp "$driver_place/sqlite3odbc.dll" "$sqlite/bin/sqlite3odbc.dll"
is_there "$driver_place/licence.txt"
says "$drivers" 'SQLite3 ODBC Driver' Installed
for word in Driver Setup; do
    says "$driver_key" "$word" 'C:\Program Files\SQLite3 ODBC Driver\sqlite3odbc.dll'
done
"$wine" "$driver_place/desinstaller.exe" /S
"$WINESERVER" -w
is_gone "$driver_place"
! has_key "$driver_key" || fail "Windows still knows the driver."
"$wine" "$place/pilote-sqlite.exe" /S
"$wine" reg.exe add "$driver_key" /v Driver /d 'C:\windows\system32\odbc32.dll' /f >/dev/null 2>&1
"$wine" "$driver_place/desinstaller.exe" /S
"$WINESERVER" -w
is_gone "$driver_place"
says "$driver_key" Driver 'C:\windows\system32\odbc32.dll' # somebody else's since: not its own to remove
"$wine" reg.exe delete "$driver_key" /f >/dev/null 2>&1
"$wine" reg.exe delete "$drivers" /v 'SQLite3 ODBC Driver' /f >/dev/null 2>&1
says "$drivers" SQLite3 Installed # another one's
"$wine" reg.exe add "$driver_key" /v Driver /d 'C:\windows\system32\odbc32.dll' /f >/dev/null 2>&1
"$wine" "$place/pilote-sqlite.exe" /S
is_gone "$driver_place"
says "$driver_key" Driver 'C:\windows\system32\odbc32.dll' # somebody else's driver stays
"$wine" reg.exe delete "$driver_key" /f >/dev/null 2>&1

say "Starting what is installed ..."
for program in tempora tempora-setup; do
    "$wine" "$place/$program.exe" --version | tr -d '\r' | grep -qx 'Tempora [0-9.]*' || fail "$program.exe --version"
done
"$wine" "$place/tempora-demo.exe" --sqlite "$windows/test/demo.sqlite" --size small
is_there "$windows/test/demo.sqlite"
rm "$windows/test/demo.sqlite"

say "Installing over itself, and not over a program that is open ..."
touch "$place/docs/a-moi.txt"
"$wine" "$installer" /S
is_there "$place/tempora.exe"
is_there "$place/docs/a-moi.txt"
"$wine" "$place/tempora-setup.exe" >/dev/null 2>&1 &
timeout 60 sh -c 'until xdotool search --name "choisir la base" >/dev/null 2>&1; do sleep 0.5; done' ||
    fail "tempora-setup.exe shows no window"
code=0
"$wine" "$installer" /S || code=$?
((code == 3)) || fail "The installer over an open program ended with $code."
is_there "$place/tempora.exe"
"$wine" taskkill.exe /f /im tempora-setup.exe >/dev/null 2>&1
wait $! || true
rm "$place/docs/a-moi.txt"

say "Comparing with the zip ..."
unzip -q "$windows"/tempora-*-windows.zip -d "$windows/test/unzipped"
is_there "$windows"/test/unzipped/*/Styles/Océan.mpl
# Names beyond ASCII carry the mark of UTF-8, bit 11 of their flags.
python3 - "$windows"/tempora-*-windows.zip <<'END' || fail "A name in the zip is not marked as UTF-8."
import sys, zipfile
names = [i for i in zipfile.ZipFile(sys.argv[1]).infolist() if not i.filename.isascii()]
sys.exit(0 if names and all(i.flag_bits & 0x800 for i in names) else 1)
END
differences=$(diff -r "$place" "$windows"/test/unzipped/* | grep -v ': desinstaller.exe$' || true)
[[ -z $differences ]] || fail "The zip holds something else than the installer: $differences"
rm -rf "$windows/test/unzipped"

say "Removing ..."
mkdir "$place/app_data"
touch "$place/app_data/SaKalo.php" "$place/Styles/Mienne.mpl"
"$wine" reg.exe add "$settings" /v Total_L_P /d 19 /f >/dev/null 2>&1
"$wine" "$place/desinstaller.exe" /S # goes on as a copy of itself
"$WINESERVER" -w
is_there "$place/app_data/SaKalo.php"
is_there "$place/Styles/Mienne.mpl"
[[ $(find "$place" -type f | wc -l) == 2 ]] || fail "More than the user's own is left in $place"
is_gone "$menu"
is_gone "$user/Desktop/Tempora.lnk"
! has_key "$entry" || fail "Windows believes that it is still installed."
has_key "$settings" || fail "The settings are gone."
rm -rf "$place"
say "Installed and removed; what is the user's stayed."
