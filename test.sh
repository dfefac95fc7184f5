#!/usr/bin/env bash
# Builds Dravikon and runs all its tests. With --full it also tries the documents' commands, checks
# the format of the sources, runs the tests with sanitizers, the fuzz target and the linters. Installs
# what is missing for that.
set -euo pipefail
cd "$(dirname "$0")"

if [ $# -gt 1 ] || [ "${1:---full}" != --full ]; then
    echo "Usage: ./test.sh [--full]" >&2
    exit 2
fi

# build_and_test PRESET
build_and_test() {
    echo "== $1"
    cmake --preset "$1" --log-level=WARNING
    cmake --build --preset "$1"
    ctest --preset "$1" -j "$(nproc)"
}

cmake/install-missing.sh g++ cmake ninja-build pkg-config \
    qtbase5-dev qtscript5-dev rapidjson-dev libvterm-dev
build_and_test dev
[ $# = 1 ] || exit 0

echo "== documents"
docs/check.sh build/dev

cmake/install-missing.sh git clang clang-format clang-tidy cppcheck
cmake/install-missing.sh "libclang-rt-$(clang -dumpversion | cut -d. -f1)-dev"

# The sources follow the format and the checks of this version of LLVM, that of Debian 12.
has_llvm_14() {
    [[ $("$1" --version) == *" version 14."* ]] || { echo "skipped: not version 14"; false; }
}

echo "== format"
if has_llvm_14 clang-format; then
    git ls-files -z -- '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror
fi

build_and_test asan
build_and_test fuzz

echo "== clang-tidy"
if has_llvm_14 clang-tidy; then
    git ls-files -z -- '*.cpp' ':!bench' \
        | xargs -0 -n 6 -P "$(nproc)" clang-tidy -p build/dev --quiet 2>/dev/null
fi

echo "== cppcheck"
# duplInheritedMember: a session's start() hides that of its process, and also sizes its screen.
# normalCheckLevelMaxBranches: newer versions tell how deep they look.
cppcheck --project=build/dev/compile_commands.json --quiet --error-exitcode=1 --inline-suppr \
    --enable=warning,performance,portability --library=qt --suppress='*:build/*' \
    --suppress=duplInheritedMember --suppress=normalCheckLevelMaxBranches -j "$(nproc)"
