#!/usr/bin/env bash
# Tells what the tests do not notice: changes the sources in one place at a time, at random, and
# runs the tests that use what was changed, until one fails.
#
#   scripts/mutants.sh [--count N] [--seed S] [--layer L ...] [--paths FILE ...]
#                      [--skip TESTS,...] [--jobs N]
#
# It works on a copy of the sources in build-mutants/, as they stand, with a build of its own; the
# same seed makes the same mutants of the same sources. What no test notices is printed as a
# difference, with its place. A change that does not compile does not count.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"
ensure_packages python3 "${build_packages[@]}" ccache libgtest-dev libsm-dev

cd "$project"
copy=$project/build-mutants
export CCACHE_BASEDIR=$copy CCACHE_NOHASHDIR=1

# Brings the copy up to date, file by file, so that only what has changed is built again.
mkdir -p "$copy"
git ls-files -z --cached --others --exclude-standard | while IFS= read -r -d '' file; do
    if [[ -f $file ]] && ! cmp -s "$file" "$copy/$file"; then
        mkdir -p "$copy/$(dirname "$file")"
        cp "$file" "$copy/$file"
    fi
done
(cd "$copy" && find src tests demo fuzz -type f -print) | while IFS= read -r file; do
    [[ -f $file ]] || rm "$copy/$file"
done

(
    # shellcheck disable=SC2030 # meant for this block alone
    project=$copy
    configure "$copy/build-test" mutants
)
use_private_folders "$copy/home"
# shellcheck disable=SC2031
exec python3 "$project/scripts/mutants.py" --tree "$copy" "$@"
