# shellcheck shell=bash
# Windows programs under Wine, in a prefix of the project's own. Sourced after common.sh.
: "${windows:?}"

# Debian's 64-bit Wine alone; its script would ask for the 32-bit one, too.
wine=/usr/lib/wine/wine64
# shellcheck disable=SC2034 # the sourcing scripts use it
wine_packages=(fonts-liberation fonts-wine libodbc2 libsqliteodbc odbc-mariadb wine64 xvfb)

export WINEPREFIX=$windows/wine WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" # nothing is fetched or put into menus
export WINESERVER=/usr/lib/wine/wineserver64

# Makes the prefix, once: Windows 10, with Debian's fonts in the place of those that Windows has.
make_prefix() {
    [[ ! -f $WINEPREFIX/made ]] || return 0
    say "Preparing Wine ..."
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    "$wine" wineboot.exe -i >/dev/null 2>&1 || fail "Wine could not make its folder: $WINEPREFIX"
    "$wine" winecfg.exe -v win10 >/dev/null 2>&1
    local link
    while IFS= read -r link; do # the user's own folders are nobody's business here
        rm "$link"
        mkdir "$link"
    done < <(find "$WINEPREFIX/drive_c/users" -type l)
    cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    local font
    for font in Arial "Segoe UI" Tahoma "MS Shell Dlg" "MS Shell Dlg 2"; do
        "$wine" reg.exe add 'HKCU\Software\Wine\Fonts\Replacements' /v "$font" \
            /d 'Liberation Sans' /f >/dev/null 2>&1
    done
    # As Windows has it; without it Wine leaves letters out where a text is drawn smaller.
    "$wine" reg.exe add 'HKCU\Control Panel\Desktop' /v FontSmoothingType /t REG_DWORD /d 2 /f \
        >/dev/null 2>&1
    end_wine
    touch "$WINEPREFIX/made"
}

# Lets programs find the drivers by the registry, as they do on Windows, under the names that
# use_odbc_folder gives them.
register_drivers() {
    local driver drivers='HKLM\Software\ODBC\ODBCINST.INI\ODBC Drivers'
    ! "$wine" reg.exe query "$drivers" /v SQLite3 >/dev/null 2>&1 || return 0
    for driver in SQLite3 "MySQL ODBC 3.51 Driver"; do
        "$wine" reg.exe add "$drivers" /v "$driver" /d Installed /f >/dev/null 2>&1
    done
}

# Ends every program of the prefix.
end_wine() { "$WINESERVER" -k >/dev/null 2>&1 || true; "$WINESERVER" -w || true; }

# Names the folder `$1` as that of the machine's ODBC, which Wine hands calls on to: drivers under the
# names that programs use, and no data source. To be called before a program starts.
use_odbc_folder() {
    mkdir -p "$1"
    cat >"$1/odbcinst.ini" <<END
[SQLite3]
Driver=libsqlite3odbc.so

[MySQL ODBC 3.51 Driver]
Driver=libmaodbc.so
END
    : >"$1/odbc.ini"
    export ODBCSYSINI=$1 ODBCINI=$1/odbc.ini
}
