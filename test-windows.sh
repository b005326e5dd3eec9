#!/usr/bin/env bash
# Builds the programs and the tests for Windows and runs the tests under Wine. Installs what is
# missing first. The first time it builds Qt for Windows, too: about an hour in all on two cores.
#
#   ./test-windows.sh [NAME ...]
#
# NAME is that of a layer: ./test-windows.sh db shell runs db_tests.exe and shell_tests.exe alone.
# What does not run there, and why, stands in packaging/README.md. Not part of ./test.sh.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$project/packaging/windows/common.sh"
# shellcheck source=packaging/windows/wine.sh
source "$project/packaging/windows/wine.sh"

bin=$windows/tempora/bin
work=$windows/test
server= # the process of the MariaDB server

# Cases that do not concern Windows: SQLite's texts come in UTF-16 there, which is not bound to places;
# characters beyond the first 65536, in statements to SQLite, are cut by the machine's own manager,
# which Windows does not have; a file that is open cannot be replaced there. One of paint's fails under
# Wine: a line of text is drawn three pixels wider than Wine says that it is; to be tried on Windows itself.
# Three of app's need a window that has the focus, which nothing has where there is no display.
readonly left_out='On/BoundPlaces.*/sqlite:On/Handles.sendAStatementAndFetchItsRows/sqlite'\
':On/Reading.sendsEveryCharacterAsItIs/sqlite:OpenedFile.hasChangedWhereAnotherHasItsName'\
':LabelText.shrinksForANameThatIsALittleTooLongInALowRow'\
':ThePlanAsATable.givesTheFocusToTheCellThatTheKeyboardIsOn'\
':ThePlanAsATable.tellsTheCellOfTheKeyboardAnewWhenAnAbsenceIsMarkedThere'\
':ThePlanAsATable.saysNothingOfItsCursorWhileTheKeysGoElsewhere'

# A server for the tests' databases, on a port of its own, as TEMPORA_MARIADB_PORT.
start_server() {
    local data=$work/mariadb options
    rm -rf "$data"
    options=(--no-defaults --datadir="$data" --lower-case-table-names=1
        --character-set-server=utf8mb4 --innodb-flush-log-at-trx-commit=0 --log-warnings=0)
    mariadb-install-db "${options[@]}" --auth-root-authentication-method=normal --skip-test-db \
        >"$work/mariadb.log" 2>&1
    printf '%s\n' "CREATE OR REPLACE USER administrator@'%';" \
        "GRANT ALL ON *.* TO administrator@'%' WITH GRANT OPTION;" >"$data/accounts.sql"
    if ((EUID == 0)); then
        options+=(--user=root) # the server wants to be told that this is meant
    fi
    TEMPORA_MARIADB_PORT=$(python3 -c 'import socket
s = socket.socket()
s.bind(("127.0.0.1", 0))
print(s.getsockname()[1])')
    export TEMPORA_MARIADB_PORT
    PATH=$PATH:/usr/sbin mariadbd "${options[@]}" --socket=server.sock --bind-address=127.0.0.1 \
        --port="$TEMPORA_MARIADB_PORT" --skip-name-resolve --init-file="$data/accounts.sql" \
        >>"$work/mariadb.log" 2>&1 &
    server=$!
    # shellcheck disable=SC2016 # the inner shell expands
    timeout 60 sh -c 'until grep -q "ready for connections" "$1"; do sleep 0.5; done' - \
        "$work/mariadb.log" || fail "The MariaDB server does not start; see $work/mariadb.log"
}

end_all() {
    [[ -z $server ]] || kill "$server" 2>/dev/null || true
    end_wine
}

# Of the tests of databases on the driver that the installer brings: those on SQLite, with the machine's
# manager and its faults out of the way. Its texts come in UTF-16.
readonly on_driver='*sqlite*:-On/BoundPlaces.*/sqlite:OpenedFile.hasChangedWhereAnotherHasItsName'

# Runs one test program; prints its line. Its words are kept. The platform is Windows' own, which has
# the fonts: it needs no display. Wine drops what begins with QT_ from the environment, so that it is
# told as an argument.
run_tests() {
    local name=$1 log=$work/$1.log code=0 cases="-$left_out"
    [[ $name != sqlite_driver ]] || cases=$on_driver
    use_odbc_folder "$work/odbc-$name"
    timeout 1200 "$wine" "$bin/${name}_tests.exe" -platform windows --gtest_color=no \
        --gtest_filter="$cases" >"$log" 2>&1 </dev/null ||
        code=$?
    grep -q '^\[  PASSED  \] [1-9]' "$log" || ((code)) || code=1 # nothing ran
    printf '%-12s %s\n' "$name" "$(sed -n 's/\r//; s/^\[==========\] \(.* ran\.\).*/\1/p
        s/^\[  PASSED  \] \(.*\)/ passed: \1/p; s/^\[  FAILED  \] \([0-9]* tests\?\),.*/ failed: \1/p' \
        "$log" | paste -sd' ')"
    ((code == 0)) || { grep '^\[  FAILED  \] [A-Z]' "$log" | sort -u >&2; return 1; }
}

ensure_packages "${wine_packages[@]}" libgtest-dev mariadb-client-core mariadb-server-core python3
names=("$@")
"$project/packaging/windows/build.sh" --tests
if ((${#names[@]} == 0)); then
    mapfile -t names < <(basename -s _tests.exe "$bin"/*_tests.exe)
fi
mkdir -p "$work"
trap end_all EXIT
make_prefix
register_drivers
start_server
cd "$work" # on the drive that Wine has for all of the machine: paths without a drive lie there
failed=()
for name in "${names[@]}"; do
    run_tests "$name" || failed+=("$name")
done
((${#failed[@]} == 0)) || fail "Tests fail in: ${failed[*]}. Their words lie in ${work#"$project"/}."
say "All tests that run under Wine pass."
