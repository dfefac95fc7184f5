#!/usr/bin/env bash
# Builds the package of the last commit twice, in different folders, and checks that both are the
# same file. Without an argument the package is for this machine; for a board it needs the sysroot
# that ./cross.sh makes.
# Usage: packaging/check-reproducible.sh [armhf|arm64]
set -euo pipefail
cd "$(dirname "$0")/.."
cmake/install-missing.sh g++ cmake ninja-build git dpkg-dev file qtbase5-dev qtscript5-dev rapidjson-dev

preset=${1:-release}
if [[ $preset != release ]]; then
    sysroot=$PWD/build/sysroot/$preset
    export DPKG_ADMINDIR=$sysroot/var/lib/dpkg
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
for folder in one another/and-deeper; do
    mkdir -p "$work/$folder"
    git archive HEAD | tar -x -C "$work/$folder"
    (
        cd "$work/$folder"
        cmake --preset "$preset" --log-level=WARNING -D DRAVIKON_DEMO=OFF -D DRAVIKON_TESTS=OFF \
            ${sysroot:+-D DRAVIKON_SYSROOT="$sysroot"}
        cmake --build --preset "$preset"
        cpack -G DEB --config "build/$preset/CPackConfig.cmake" -B package
    )
done
cd "$work"
sha256sum one/package/*.deb another/and-deeper/package/*.deb
cmp one/package/*.deb another/and-deeper/package/*.deb
echo "identical"
