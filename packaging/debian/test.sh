#!/usr/bin/env bash
# Installs the Debian package that build.sh made into a Debian of its own, uses it as somebody
# without rights, upgrades it, and removes it. The root folder is made and taken down by mmdebstrap, which
# mounts in it what it needs and nothing else; on this machine nothing is installed but mmdebstrap itself.
#
#   packaging/debian/test.sh [PACKAGE.deb]
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"

out=$project/build-deb
package=${1:-$(find "$out" -maxdepth 1 -name 'tempora_*.deb' 2>/dev/null | sort -V | tail -n 1 || true)}
[[ -f $package ]] || fail "There is no package. Build it first: packaging/debian/build.sh"
ensure_packages dpkg-dev fakeroot mmdebstrap
mkdir -p "$out"

# The same package under a lower version: what an upgrade starts from.
make_previous() {
    local tree=$out/previous
    rm -rf "$tree"
    dpkg-deb --raw-extract "$package" "$tree"
    sed -i 's/^Version: .*/Version: 0.9.0-1/' "$tree/DEBIAN/control"
    dpkg-deb --root-owner-group --build "$tree" "$out/previous.deb" >/dev/null
    rm -rf "$tree"
}

say "Making a Debian to install ${package##*/} in (some minutes) ..."
make_previous
log=$out/test.log
if ! as_root mmdebstrap --variant=apt --format=null \
    --include=openbox,procps,xdotool,xvfb \
    --customize-hook="cp '$out/previous.deb' '$package' '$project/packaging/debian/use.sh' \"\$1/root/\"" \
    --customize-hook="mv \"\$1/root/${package##*/}\" \"\$1/root/tempora.deb\"" \
    --customize-hook='chroot "$1" /root/use.sh >&2' \
    bookworm /dev/null >"$log" 2>&1; then
    grep '^use: ' "$log" >&2 || true
    tail -n 20 "$log" >&2
    fail "The package did not pass; the whole story is in $log"
fi
grep '^use: ' "$log" >&2
say "Installed, used, upgraded and removed."
