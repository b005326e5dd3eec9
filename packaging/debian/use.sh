#!/usr/bin/env bash
# What test.sh runs in the Debian that it made: the life of the package, from its installation to
# its removal. /root holds previous.deb and tempora.deb.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8

say() { printf 'use: %s\n' "$*"; }
fail() {
    say "FAILED: $*"
    exit 1
}
version() { dpkg-query -W -f '${Version}' tempora; }
user() { runuser -l tester -c "$1"; }

# Waits until a command succeeds, for two minutes at most.
await() {
    local tries
    for ((tries = 0; tries < 240; ++tries)); do
        if "$@" >/dev/null 2>&1; then return; fi
        sleep 0.5
    done
    fail "waited in vain: $*"
}

nothing_runs() { ! pgrep -u tester -x tempora; }

apt-get -q update
# As on any Debian; the one made here leaves out what is only recommended, the databases' drivers.
apt-get -q -y -o APT::Install-Recommends=true install /root/previous.deb
[[ $(version) == 0.9.0-1 ]] || fail "the previous version is $(version)"
mkdir -p /etc/tempora/app_data
printf '$host="db.example.org";\n' >/etc/tempora/app_data/SaKalo.php

apt-get -q -y install /root/tempora.deb
[[ $(version) != 0.9.0-1 ]] || fail "not upgraded"
[[ -s /etc/tempora/app_data/SaKalo.php ]] || fail "the upgrade lost the server's file"
say "upgraded to $(version); the server's file is still there"

# A number that nobody has on the machine that this Debian runs on: it sees the same processes.
useradd --create-home --shell /bin/bash --uid 64321 tester
trap 'pkill -u tester || true' EXIT
user 'tempora --version' | grep -q '^Tempora ' || fail "--version"
[[ -n $(find /usr/lib -name libsqlite3odbc.so) ]] || fail "the SQLite driver did not come along"

# The window, on a screen of its own. The first start has no data source: Enter leads from the message
# to the program that chooses the database, and through its two pages to the plan.
shown() { user "$on_screen xdotool search --onlyvisible --name '$1'"; }
press() {
    user "$on_screen xdotool search --onlyvisible --name '$1' windowactivate --sync" &&
        user "$on_screen xdotool key Return"
}
# By Enter, for as long as there are pages.
led_to_the_plan() { shown 'Planning des Classes' || { press 'choisir la base' && false; }; }
user 'Xvfb -displayfd 3 -screen 0 1366x768x24 3>~/screen >/dev/null 2>&1 &'
await test -s /home/tester/screen
on_screen=DISPLAY=:$(cat /home/tester/screen)
user "$on_screen openbox >/dev/null 2>&1 &"
await user "$on_screen xdotool get_desktop"
user "$on_screen tempora >/dev/null 2>&1 &"
await shown '^Tempora$'
press '^Tempora$'
await shown 'choisir la base'
await led_to_the_plan
grep -q '^\[MonKalo\]' /home/tester/.odbc.ini || fail "no data source was written"
grep -q '^Toutes_Salles=True' /home/tester/.config/Tempora.ini || fail "no settings were written"
user 'pkill -u tester -TERM -x tempora'
await nothing_runs
say "the first start made a demo faculty and opened its plan"

user "$on_screen tempora >~/tempora.log 2>&1 &"
await shown 'Planning des Classes'
user 'pkill -u tester -TERM -x tempora'
await nothing_runs
[[ ! -s /home/tester/tempora.log ]] || fail "the window said: $(cat /home/tester/tempora.log)"
say "the window opened again, and ended without a word"

user 'tempora --export ~/plan.json --seed 1 && tempora --export ~/plan.pdf --all-pages'
rooms=$(grep -c '"room"' /home/tester/plan.json) || true
((rooms >= 10)) || fail "the plan has $rooms rooms"
head -c 5 /home/tester/plan.pdf | grep -q '^%PDF-' || fail "no PDF"
user 'tempora-demo --sqlite ~/demo.sqlite && test -s ~/demo.sqlite' || fail "tempora-demo"
say "a user without rights wrote the plan of the demo faculty"

for file in /usr/bin/tempora /usr/share/applications/tempora.desktop \
    /usr/share/icons/hicolor/48x48/apps/tempora.png /usr/share/man/man1/tempora.1.gz \
    /usr/lib/tempora/Styles/Pastel.mpl /usr/lib/tempora/docs/guide.md \
    /usr/share/doc/tempora/copyright; do
    # A Debian for containers leaves out what nobody reads there.
    [[ -e $file ]] || dpkg -L tempora | grep -qxF "$file" || fail "$file is missing"
done

apt-get -q -y remove tempora
[[ ! -e /usr/bin/tempora ]] || fail "the program stayed"
[[ -s /etc/tempora/app_data/SaKalo.php ]] || fail "the removal took the server's file along"
apt-get -q -y install /root/tempora.deb
[[ -s /etc/tempora/app_data/SaKalo.php ]] || fail "installing it again lost the server's file"
apt-get -q -y purge tempora
[[ ! -e /usr/lib/tempora && ! -e /usr/bin/tempora ]] || fail "something of the program stayed"
[[ -s /etc/tempora/app_data/SaKalo.php ]] || fail "the removal took the server's file along"
[[ -s /home/tester/.config/Tempora.ini ]] || fail "the removal took the user's settings along"
rm -r /etc/tempora
left=$(find /usr /etc /var/lib -xdev -name '*tempora*' -not -path '/usr/share/doc/*' -not -path '*/dpkg/*')
[[ -z $left ]] || fail "left behind: $left"
say "removed; settings and the server's file stayed"
