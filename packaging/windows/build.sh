#!/usr/bin/env bash
# Builds tempora.exe, tempora-setup.exe and tempora-demo.exe, and with --tests their tests. Installs
# what is missing first; Qt and SQLite for Windows are built where they are not there yet.
#
#   packaging/windows/build.sh [--tests] [--jobs N]
#
# The programs lie in build-windows/tempora/bin, with the libraries that Windows does not have.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$project/packaging/windows/common.sh"

targets=(tempora tempora-setup tempora-demo)
jobs=$(nproc)
while (($# > 0)); do
    case $1 in
        --tests) targets=(all) ;;
        --jobs) jobs=${2:?} && shift ;;
        *) fail "packaging/windows/build.sh takes --tests and --jobs, not: $1" ;;
    esac
    shift
done

ensure_packages "${windows_packages[@]}" ccache icoutils libgtest-dev librsvg2-bin \
    qt6-translations-l10n
"$project/packaging/windows/build-qt.sh" --jobs "$jobs"
"$project/packaging/windows/build-sqlite.sh"
cd "$project"
configure "$windows/tempora" windows
build "$windows/tempora" -j "$jobs" "${targets[@]}"
say "The programs lie in ${windows#"$project"/}/tempora/bin."
