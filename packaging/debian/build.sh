#!/usr/bin/env bash
# Builds the Debian package out of what is committed. Installs what the build needs.
#
#   packaging/debian/build.sh [--twice]
#
# --twice builds it a second time, in another folder, another time zone and language and with other rights
# for new files, and compares the bytes.
# The package lies in build-deb/ afterwards; everything else that is written lies there, too.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"

twice=false
for option in "$@"; do
    case $option in
        --twice) twice=true ;;
        *) fail "Unknown option: $option" ;;
    esac
done

out=$project/build-deb

# Copies the committed files into the folder `$1`; without a repository all but what was built.
copy_sources() {
    mkdir -p "$1"
    if git -C "$project" rev-parse --git-dir >/dev/null 2>&1; then
        git -C "$project" archive HEAD | tar -x -C "$1"
    else
        tar -c -C "$project" --exclude='./build*' --exclude=./run --exclude=./.ccache . | tar -x -C "$1"
    fi
    rm -rf "$1/debian"
    cp -r "$1/packaging/debian" "$1/debian"
    rm -f "$1/debian"/*.sh
}

# Builds the package in the folder `$1`/tempora; its files come to lie in `$1`.
build_package() {
    rm -rf "$1"
    copy_sources "$1/tempora"
    say "Building the package in ${1#"$project"/} (some minutes) ..."
    (cd "$1/tempora" && dpkg-buildpackage --build=binary --unsigned-changes --unsigned-buildinfo) \
        >"$1/build.log" 2>&1 || {
        tail -n 30 "$1/build.log" >&2
        fail "The package could not be built; the whole story is in $1/build.log"
    }
}

mapfile -t needed < <(sed -n '/^Build-Depends:/,/^[^ ]/s/^ \([a-z0-9.+-]*\).*/\1/p' \
    "$project/packaging/debian/control" | sed 's/^debhelper-compat$/debhelper/')
ensure_packages "${needed[@]}" dpkg-dev fakeroot g++ git lintian
build_package "$out/first"
package=$(find "$out/first" -maxdepth 1 -name 'tempora_*.deb')
say "Checking it with lintian ..."
lintian --fail-on error,warning "$out/first"/tempora_*.changes
if $twice; then
    (umask 027 && TZ=Etc/GMT-9 LC_ALL=C LANG=fr_FR.UTF-8 build_package "$out/again")
    for file in "$out/first"/*.deb; do
        cmp "$file" "$out/again/${file##*/}" || fail "${file##*/} is not the same bytes twice."
    done
    say "Built twice: the same bytes."
fi
cp "$out/first"/*.deb "$out/"
printf '%s\n' "$out/${package##*/}"
