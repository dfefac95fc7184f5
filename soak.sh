#!/usr/bin/env bash
# Plays random sessions, also on damaged states of the simulated device, and runs the fuzz target,
# all with ASan and UBSan. Ends sessions at the moment when they start a tool, hundreds of times for
# each way to end, and checks damaged definitions.
# Usage: ./soak.sh [SESSIONS [KEYS [RUNS [SEED [DAMAGES]]]]]
set -euo pipefail
cd "$(dirname "$0")"
sessions=${1:-200} keys=${2:-1000} runs=${3:-10000000} seed=${4:-$RANDOM}
damages=${5:-10000}

cmake/install-missing.sh g++ clang cmake ninja-build pkg-config \
    qtbase5-dev qtscript5-dev rapidjson-dev libvterm-dev
cmake/install-missing.sh "libclang-rt-$(clang -dumpversion | cut -d. -f1)-dev"
export LSAN_OPTIONS="suppressions=$PWD/cmake/leaks.supp:print_suppressions=0"

for preset in asan fuzz dev; do
    cmake --preset "$preset" --log-level=WARNING
    cmake --build --preset "$preset"
done
DRAVIKON_TEST_SESSIONS=$sessions DRAVIKON_TEST_KEYS=$keys DRAVIKON_TEST_SEED=$seed \
    build/asan/tests/random-sessions
DRAVIKON_TEST_STATES=$((50 * sessions)) DRAVIKON_TEST_SEED=$seed build/asan/tests/odd-states
DRAVIKON_TEST_ENDINGS=$((2 * sessions)) build/dev/tests/ending-test toolIsStarting
DRAVIKON_TEST_DAMAGES=$damages DRAVIKON_TEST_SEED=$seed build/dev/tests/damaged-files -silent
findings=build/fuzz/tests/fuzz/codec-findings
build/fuzz/tests/fuzz/codec-fuzz -seed="$seed" -runs="$runs" -print_final_stats=1 \
    -artifact_prefix="$findings/" "$findings" tests/corpus/codec 2>&1 |
    grep -E '^(stat:|==|SUMMARY|Done)'
