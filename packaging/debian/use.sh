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

# Waits until a command succeeds, for half a minute at most.
await() {
    local tries
    for ((tries = 0; tries < 60; ++tries)); do
        if "$@" >/dev/null 2>&1; then return; fi
        sleep 0.5
    done
    fail "waited in vain: $*"
}

apt-get -q update
apt-get -q -y install /root/previous.deb
[[ $(version) == 0.9.0-1 ]] || fail "the previous version is $(version)"
mkdir -p /etc/tempora/app_data
printf '$host="db.example.org";\n' >/etc/tempora/app_data/SaKalo.php

apt-get -q -y install /root/tempora.deb
[[ $(version) != 0.9.0-1 ]] || fail "not upgraded"
[[ -s /etc/tempora/app_data/SaKalo.php ]] || fail "the upgrade lost the server's file"
say "upgraded to $(version); the server's file is still there"

useradd --create-home --shell /bin/bash tester
user 'tempora --version' | grep -q '^Tempora ' || fail "--version"
user 'tempora-demo --sqlite ~/demo.sqlite'
driver=$(find /usr/lib -name libsqlite3odbc.so)
[[ -n $driver ]] || fail "the SQLite driver did not come with the package"
user "printf '[MonKalo]\nDriver=$driver\nDatabase=/home/tester/demo.sqlite\n' >~/.odbc.ini"
user 'tempora --export ~/plan.json --seed 1 && tempora --export ~/plan.pdf --all-pages'
rooms=$(grep -c '"room"' /home/tester/plan.json) || true
((rooms >= 10)) || fail "the plan has $rooms rooms"
head -c 5 /home/tester/plan.pdf | grep -q '^%PDF-' || fail "no PDF"
say "a user without rights writes the plan of a demo faculty"

# The window, on a screen of its own.
user 'Xvfb :5 -screen 0 1366x768x24 >/dev/null 2>&1 & echo $! >~/xvfb.pid'
await test -e /tmp/.X11-unix/X5
user 'DISPLAY=:5 tempora >~/tempora.log 2>&1 & echo $! >~/tempora.pid'
await user 'DISPLAY=:5 xdotool search --name "Planning des Classes"'
user 'DISPLAY=:5 xdotool search --name "Planning des Classes" key --window %1 F2'
user 'kill -TERM $(cat ~/tempora.pid)'
await user '! kill -0 $(cat ~/tempora.pid)'
[[ ! -s /home/tester/tempora.log ]] || fail "the window said: $(cat /home/tester/tempora.log)"
[[ -s /home/tester/.config/Tempora.ini ]] || fail "no settings were kept"
say "the window opened, and kept its settings when it was closed"

for file in /usr/bin/tempora /usr/share/applications/tempora.desktop \
    /usr/share/icons/hicolor/48x48/apps/tempora.png /usr/share/man/man1/tempora.1.gz \
    /usr/lib/tempora/Styles/Pastel.mpl /usr/lib/tempora/docs/guide.md \
    /usr/share/doc/tempora/copyright; do
    # A Debian for containers leaves out what nobody reads there.
    [[ -e $file ]] || dpkg -L tempora | grep -qxF "$file" || fail "$file is missing"
done

apt-get -q -y purge tempora
[[ ! -e /usr/lib/tempora && ! -e /usr/bin/tempora ]] || fail "something of the program stayed"
[[ -s /etc/tempora/app_data/SaKalo.php ]] || fail "the removal took the server's file along"
[[ -s /home/tester/.config/Tempora.ini ]] || fail "the removal took the user's settings along"
rm -r /etc/tempora
user 'kill $(cat ~/xvfb.pid)'
left=$(find /usr /etc /var/lib -xdev -name '*tempora*' -not -path '/usr/share/doc/*' -not -path '*/dpkg/*')
[[ -z $left ]] || fail "left behind: $left"
say "removed; settings and the server's file stayed"
