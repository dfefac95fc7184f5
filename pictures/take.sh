#!/usr/bin/env bash
# Takes all pictures of the documents again, into docs/pictures.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake/install-missing.sh g++ cmake ninja-build pkg-config \
    qtbase5-dev qtscript5-dev rapidjson-dev libvterm-dev
cmake --preset dev --log-level=WARNING
cmake --build --preset dev --target dravikon-pictures
mkdir -p docs/pictures
build/dev/pictures/dravikon-pictures docs/pictures
