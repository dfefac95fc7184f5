#!/usr/bin/env bash
# Cross-compiles Dravikon for a board and runs all tests with the board's executables. Installs the
# packages that this needs first.
set -euo pipefail

help() {
    cat <<'END'
Usage: ./cross.sh [armhf|arm64] [--package] [--help]

On Debian 12 or 13, makes a sysroot with the board's libraries, of the same
release as this machine, in build/sysroot/ARCH, cross-compiles the release in
build/ARCH and runs all tests with the board's executables under QEMU. The
default architecture is armhf. An existing sysroot is used again; remove it to
make a new one.

  --package  also make the board's Debian package, in build/ARCH/package

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
    mmdebstrap mount uidmap dpkg-dev file qemu-user-static
sysroot=$PWD/build/sysroot/$arch

if [[ ! -d $sysroot ]]; then
    echo "== sysroot"
    packaging/make-sysroot.sh "$arch" "$sysroot"
fi

echo "== build"
cmake --preset "$arch" --log-level=WARNING
cmake --build --preset "$arch"

echo "== tests"
# A faulty emulated program must not signal other processes of this machine: where the system
# permits it, the tests run in a PID namespace of their own.
isolated=(unshare --user --map-root-user --pid --fork --kill-child --mount-proc)
"${isolated[@]}" true 2>/dev/null || isolated=()
export DRAVIKON_TEST_SLOWDOWN=${DRAVIKON_TEST_SLOWDOWN:-10}
export QTEST_FUNCTION_TIMEOUT=$((300000 * DRAVIKON_TEST_SLOWDOWN))
"${isolated[@]}" ctest --preset "$arch" --timeout $((300 * DRAVIKON_TEST_SLOWDOWN))

if [[ $package == yes ]]; then
    echo "== package"
    rm -rf "build/$arch/package"
    # The package's dependencies come from the sysroot's packages.
    DPKG_ADMINDIR=$sysroot/var/lib/dpkg cpack -G DEB --config "build/$arch/CPackConfig.cmake" \
        -B "build/$arch/package"
    packaging/check-board-package.sh "build/$arch/package"/dravikon_*_"$arch".deb "$sysroot"
fi
