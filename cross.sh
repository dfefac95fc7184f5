#!/usr/bin/env bash
# Builds Dravikon for a board on this machine and passes all tests with the board's executables,
# after installing what is missing for that.
set -euo pipefail

help() {
    cat <<'END'
Usage: ./cross.sh [armhf|arm64] [--package] [--help]

On Debian 12, lays a sysroot with the board's libraries in build/sysroot/ARCH,
cross-compiles the release in build/ARCH and passes the unit tests and the
sessions on a terminal with the board's executables under QEMU. Without a word
the board is armhf. The sysroot is laid once: remove it to have it laid anew.

  --package  leave the board's Debian package in build/ARCH/package as well

DRAVIKON_TEST_SLOWDOWN in the environment multiplies the time limits of the
tests (10).
END
}

arch=armhf
package=no
for option in "$@"; do
    case $option in
    armhf | arm64) arch=$option ;;
    --package) package=yes ;;
    --help) help && exit 0 ;;
    *) help >&2 && exit 2 ;;
    esac
done
case $arch in
armhf) triplet=arm-linux-gnueabihf ;;
arm64) triplet=aarch64-linux-gnu ;;
esac

cd "$(dirname "$0")"
cmake/install-missing.sh "g++-$triplet" cmake ninja-build pkg-config qtbase5-dev-tools \
    mmdebstrap uidmap dpkg-dev file qemu-user-static
sysroot=$PWD/build/sysroot/$arch

if [[ ! -d $sysroot ]]; then
    echo "== sysroot"
    packaging/lay-sysroot.sh "$arch" "$sysroot"
fi

echo "== build"
cmake --preset "$arch" --log-level=WARNING
cmake --build --preset "$arch"

echo "== tests"
# An emulated program that goes wrong must not reach other processes of this machine: where the
# system lets them, the tests see only their own.
isolated=(unshare --user --map-root-user --pid --fork --kill-child --mount-proc)
"${isolated[@]}" true 2>/dev/null || isolated=()
DRAVIKON_TEST_SLOWDOWN=${DRAVIKON_TEST_SLOWDOWN:-10} \
    "${isolated[@]}" ctest --preset "$arch"

if [[ $package == yes ]]; then
    echo "== package"
    rm -rf "build/$arch/package"
    # The libraries' packages are those of the sysroot.
    DPKG_ADMINDIR=$sysroot/var/lib/dpkg cpack -G DEB --config "build/$arch/CPackConfig.cmake" \
        -B "build/$arch/package"
    packaging/check-board-package.sh "build/$arch/package"/dravikon_*_"$arch".deb "$sysroot"
fi
