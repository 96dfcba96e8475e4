#!/usr/bin/env bash
# Builds the library in Release, runs the showcase (its pictures go to out/)
# and, when the benchmark is present, its quick report: one table of our
# times against OpenCV and the measured bandwidth bound (bench/README.md
# explains the columns).
set -euo pipefail
cd "$(dirname "$0")/.."
if [ -f bench/CMakeLists.txt ]; then
  scripts/deps.sh bench
  cmake --preset bench >/dev/null
  cmake --build --preset bench
  build=build/bench
else
  scripts/deps.sh test
  cmake --preset release >/dev/null
  cmake --build --preset release --target qvnip_showcase
  build=build/release
fi
mkdir -p out
echo "== showcase: pictures in out/"
"$build/examples/qvnip_showcase" out
if [ -x "$build/bench/qvnip_bench" ]; then
  echo "== benchmark (--quick; single-threaded)"
  "$build/bench/qvnip_bench" --quick
fi
