#!/usr/bin/env bash
# Opens the plan of the demo faculty. Installs what is missing, builds the program, makes the demo
# database and registers it as data source, each only where it has not been done yet.
#
#   ./run.sh [--new-demo] [options of the program]
#
# --new-demo makes the demo database anew, around today. Everything else goes to the program; see
# ./run.sh --help. Without a display the plan is written to run/plan.png and run/plan.json.
#
# Settings, data sources, the demo and all else that is written lies in run/ and build/; nothing
# outside the project's folder is changed, packages aside.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"

run=$project/run
bin=$project/build/bin
demo=$run/demo.sqlite

new_demo=false
writes_or_tells=false # options with which the program opens no window
options=()
for option in "$@"; do
    case $option in
        --new-demo) new_demo=true ;;
        --help | -h | --help-all)
            say "run.sh itself takes one option: --new-demo makes the demo database anew, around today."
            writes_or_tells=true
            options+=("$option")
            ;;
        --export | --export=* | --free | --free=* | --week-of | --week-of=* | --find | --find=* | \
            --clashes | --clashes=* | --use | --use=* | --version | -v)
            writes_or_tells=true
            options+=("$option")
            ;;
        *) options+=("$option") ;;
    esac
done

# A platform of Qt that shows nothing counts as none.
has_display() {
    case ${QT_QPA_PLATFORM:-} in
        offscreen* | minimal*) return 1 ;;
        "") [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]] ;;
    esac
}

# Makes the demo faculty around today, in one step: an interrupted run leaves no half database.
make_demo() {
    say "Making the demo faculty ..."
    rm -f "$demo.new"
    "$bin/tempora-demo" --sqlite "$demo.new" >&2
    mv -f "$demo.new" "$demo"
}

# Says how to renew the demo when the period it opens with is over, or has not begun.
check_demo_period() {
    local current
    current=$(sqlite3 -readonly "$demo" "select count(*) from tranche where ident = 1
        and date('now', 'localtime') between DateDebut and DateFin" 2>/dev/null) || return 0
    if [[ $current == 0 ]]; then
        say "The demo faculty's period does not contain today. To make it anew: ./run.sh --new-demo"
    fi
}

# The full path of a driver, for `Driver=`.
driver_path() { find /usr/lib /usr/local/lib -name "$1" -print -quit 2>/dev/null; }

# Writes the data source and the drivers where only the program's ODBC looks.
register_data_source() {
    local folder=$run/odbc
    export ODBCSYSINI=$folder ODBCINI=$folder/odbc.ini
    [[ -f $ODBCINI && -f $folder/odbcinst.ini ]] && grep -qxF "Database=$demo" "$ODBCINI" && return
    local sqlite mariadb
    sqlite=$(driver_path libsqlite3odbc.so)
    mariadb=$(driver_path libmaodbc.so)
    [[ -n $sqlite ]] || fail "The SQLite ODBC driver (libsqlite3odbc.so) was not found."
    mkdir -p "$folder"
    cat >"$folder/odbcinst.ini" <<END
[SQLite3]
Description=SQLite 3
Driver=$sqlite

[MySQL ODBC 3.51 Driver]
Description=MariaDB and MySQL
Driver=$mariadb
END
    cat >"$ODBCINI" <<END
[MonKalo]
Description=The demo faculty
Driver=SQLite3
Database=$demo
END
}

# The demo opens in calm colours. Settings that are there stay as they are.
write_demo_settings() {
    local settings=$run/config/Tempora.ini
    [[ -f $settings ]] && return
    mkdir -p "$run/config"
    printf '[Settings]\nPalette=%s\n' "$bin/Styles/Pastel.mpl" >"$settings"
    chmod 600 "$settings"
}

# Writes the plan to files: what a machine without a display can show.
write_plan() {
    local format
    say "There is no display, so the plan is written to files:"
    for format in png json; do
        "$bin/tempora" --export "$run/plan.$format" "${options[@]}"
        printf '%s\n' "$run/plan.$format"
    done
}

packages=("${build_packages[@]}")
if [[ -n ${WAYLAND_DISPLAY:-} ]]; then
    packages+=(qt6-wayland)
fi
ensure_packages "${packages[@]}"
use_private_folders "$run"
configure "$project/build" release
build "$project/build" tempora tempora-demo
if $new_demo || [[ ! -f $demo ]]; then
    make_demo
fi
check_demo_period
register_data_source
write_demo_settings

if has_display; then
    exec "$bin/tempora" "${options[@]}"
fi
export QT_QPA_PLATFORM=offscreen
if $writes_or_tells; then
    exec "$bin/tempora" "${options[@]}"
fi
write_plan
