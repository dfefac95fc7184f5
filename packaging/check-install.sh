#!/usr/bin/env bash
# Installs a package into an empty Debian root, runs its programs there, removes it and checks that
# no file is left. Run it as root, with a package for this machine's architecture.
# Usage: packaging/check-install.sh PACKAGE.deb
set -euo pipefail
package=$(realpath "$1")
"$(dirname "$0")/../cmake/install-missing.sh" mmdebstrap mount dpkg-dev

source=$("$(dirname "$0")/debian-source.sh")
read -r _ _ release _ <<< "$source"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=$work/root
# The root holds the essential packages and the dependencies of this package, nothing else.
depends=$(dpkg-deb --field "$package" Depends | sed 's/ *([^)]*)//g; s/ *| *[^,]*//g; s/ //g')
echo "== root with $depends"
mmdebstrap --quiet --variant=essential --include="$depends" "$release" "$root" "$source"

list() {
    (cd "$root" && find . -path ./proc -prune -o -path ./sys -prune -o -path ./dev -prune \
        -o -path './var/lib/dpkg/*-old' -o -path ./var/lib/dpkg/status \
        -o -path './var/log/*' -o -print | sort)
}
list > "$work/before"

echo "== install"
cp "$package" "$root/package.deb"
chroot "$root" dpkg --install /package.deb
chroot "$root" dpkg --listfiles dravikon
status=0
version=$(chroot "$root" dravikon --version) || status=$?
echo "$version, status $status"
[[ $version == Tavrolink-Dravikon-Version:* && $status == 255 ]]
chroot "$root" dravikon-menu-check --version
# Without a terminal the console ends after its idle time.
chroot "$root" dravikon-preview --web-root /usr/share/doc/dravikon/examples/web --idle 1000 \
    </dev/null | grep "DBC ver: preview" >/dev/null

echo "== remove"
chroot "$root" dpkg --purge dravikon
rm "$root/package.deb"
list > "$work/after"
diff "$work/before" "$work/after"
echo "nothing left"
