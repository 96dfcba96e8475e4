#!/usr/bin/env bash
# Installs what the tests need, builds the library and every test in Release,
# and runs them. With --sanitize, the same in a build with AddressSanitizer and
# UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh test
preset=release
[ "${1:-}" = "--sanitize" ] && preset=sanitize
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
ctest --preset "$preset"
