#!/usr/bin/env bash
# Installs what the tests need, builds the library and every test in Release,
# and runs them. With --sanitize, the same in a build with AddressSanitizer and
# UndefinedBehaviorSanitizer. The Release build folder is the one that
# scripts/showcase.sh uses: the library is compiled once for both.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh test
preset=release
[ "${1:-}" = "--sanitize" ] && preset=sanitize
cmake --preset "$preset" -DQVN_BUILD_TESTS=ON >/dev/null
cmake --build --preset "$preset"
ctest --preset "$preset"
