#!/usr/bin/env bash
# Builds Dravikon, checks its sources and passes all its tests, after installing what is missing
# for that.
set -euo pipefail
cd "$(dirname "$0")"

cmake/install-missing.sh \
    git g++ cmake ninja-build pkg-config clang clang-format clang-tidy cppcheck libclang-rt-14-dev \
    qtbase5-dev qtscript5-dev rapidjson-dev libvterm-dev

echo "== format"
git ls-files -z -- '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror

for preset in dev asan fuzz; do
    echo "== $preset"
    cmake --preset "$preset" --log-level=WARNING
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done

echo "== clang-tidy"
git ls-files -z -- '*.cpp' ':!bench' \
    | xargs -0 -n 6 -P 2 clang-tidy -p build/dev --quiet 2>/dev/null

echo "== cppcheck"
cppcheck --project=build/dev/compile_commands.json --quiet --error-exitcode=1 --inline-suppr \
    --enable=warning,performance,portability --library=qt --suppress='*:build/*' -j 2
