#!/usr/bin/env bash
# Installs those of the given Debian packages that are missing; with sudo when not root.
# Usage: cmake/install-missing.sh PACKAGE...
set -euo pipefail

missing=()
for package in "$@"; do
    status=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
    [[ $status == installed ]] || missing+=("$package")
done
((${#missing[@]})) || exit 0

as_root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "Missing packages: ${missing[*]}. Install them as root." >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "Installing with apt-get: ${missing[*]}"
"${as_root[@]}" apt-get update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}"
