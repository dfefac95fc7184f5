#!/usr/bin/env bash
# Prints a sources.list line for this machine's Debian release, component main, with the mirror that
# apt uses.
set -euo pipefail

release=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$(apt-get indextargets --format '$(RELEASE) $(COMPONENT) $(SITE)' 'Created-By: Packages' \
    | awk -v release="$release" '$1 == release && $2 == "main" { print $3; exit }')
[[ $mirror ]] || { echo "apt has no source for $release main" >&2; exit 1; }
echo "deb $mirror $release main"
