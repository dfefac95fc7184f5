#!/usr/bin/env bash
# Checks that a board's package depends on its libraries and that its executables start under QEMU
# with the libraries of a sysroot.
# Usage: packaging/check-board-package.sh PACKAGE.deb SYSROOT
set -euo pipefail
package=$1
sysroot=$2

depends=$(dpkg-deb --field "$package" Depends)
echo "Depends: $depends"
# Debian 13 renamed libqt5core5a for its 64-bit times.
[[ $depends == *libc6* && $depends == *libqt5core5* && $depends == *libqt5script5* ]]

case $(dpkg-deb --field "$package" Architecture) in
armhf) emulator=qemu-arm-static ;;
arm64) emulator=qemu-aarch64-static ;;
esac
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
dpkg-deb --extract "$package" "$work"
status=0
version=$("$emulator" -L "$sysroot" "$work/usr/bin/dravikon" --version) || status=$?
echo "$version, status $status"
[[ $version == *" $(dpkg-deb --field "$package" Version)" && $status == 255 ]]
for program in dravikon-menu-check dravikon-preview; do
    "$emulator" -L "$sysroot" "$work/usr/bin/$program" --version
done
