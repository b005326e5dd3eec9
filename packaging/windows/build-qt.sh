#!/usr/bin/env bash
# Builds Qt for Windows out of Debian's source package qt6-base, once. Installs what is missing first.
#
#   packaging/windows/build-qt.sh [--jobs N] [--again]
#
# --jobs   compilers side by side, as many as there are processors unless told
# --again  builds it anew although it is there
#
# On two cores it takes about half an hour and 3 GB on disk, of which 80 MB stay: in build-windows/qt.
# The system's own list of archives is left alone. The libraries are shared ones, so that users can put
# others in their place, as Qt's licence asks; gcc's own lie beside them.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$project/packaging/windows/common.sh"

jobs=$(nproc)
again=false
while (($# > 0)); do
    case $1 in
        --jobs) jobs=${2:?} && shift ;;
        --again) again=true ;;
        *) fail "packaging/windows/build-qt.sh takes --jobs and --again, not: $1" ;;
    esac
    shift
done

work=$windows/qt-work # sources and objects; goes away once Qt is built
log=$windows/qt.log

# Without what Tempora does not use, and without what lies in libraries that Windows does not have.
# Direct2D's first version stays on: without it Qt builds, and no program links. Debian's sources come
# without the headers of graphics tablets.
configure_qt() {
    local off=() feature
    for feature in pkg_config sql network dbus xml concurrent vulkan icu glib tabletevent zstd \
        direct2d1_1 system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2 \
        system_doubleconversion system_libb2; do
        off+=("-DFEATURE_$feature=OFF")
    done
    cmake -S "$work/source" -B "$work/build" -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$project/packaging/windows/mingw.cmake" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt" -DBUILD_SHARED_LIBS=ON \
        -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -print-multiarch)/cmake" \
        -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
        -DINPUT_opengl=no -DFEATURE_direct2d=ON "${off[@]}"
}

ensure_packages "${windows_packages[@]}" dpkg-dev g++
version=$(source_version qt6-base-dev)
built_from="$version, shared"
if ! $again && [[ -f $qt/built-from && $(<"$qt/built-from") == "$built_from" ]]; then
    say "Qt $version for Windows is there."
    exit
fi
rm -rf "$qt"
begin_work "$work" "$built_from"
fetch_source qt6-base "$version" "$work/source" >"$log"
say "Building Qt $version for Windows: about half an hour on two cores. Its words go to" \
    "${log#"$project"/}."
configure_qt >>"$log" 2>&1 || fail "Qt could not be configured; see $log"
NINJA_STATUS='[%f/%t] ' ninja -C "$work/build" -j "$jobs" 2>&1 | tee -a "$log" |
    grep --line-buffered '^\[[0-9]' | build_progress "${qt#"$project"/}" ||
    fail "Qt could not be built; see $log"
cmake --install "$work/build" --strip >>"$log"
for library in libgcc_s_seh-1 libstdc++-6 libwinpthread-1; do
    cp "$(x86_64-w64-mingw32-g++-posix -print-file-name="$library.dll")" "$qt/bin/"
done
# Whoever hands out a program that Qt is linked into owes its licences and the way to its sources.
mkdir -p "$qt/licences"
cp "$work/source"/LICENSES/LGPL-3.0-only.txt "$work/source"/LICENSES/GPL-3.0-only.txt \
    "$qt/licences/"
cp "$work/source/debian/copyright" "$qt/licences/copyright.txt"
printf '%s\n' "$built_from" >"$qt/built-from"
rm -rf "$work"
say "Qt $version for Windows lies in ${qt#"$project"/}."
