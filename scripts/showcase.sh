#!/usr/bin/env bash
# Builds the library in Release, runs the showcase (its pictures and
# out/index.html, which shows them with a sentence each, go to out/), then the
# benchmark's quick report: one table of our times against OpenCV and the
# measured bandwidth bound (bench/README.md explains the columns). The build
# folder is the one that scripts/test.sh uses: the library is compiled once.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh bench
cmake --preset bench >/dev/null
cmake --build --preset bench
mkdir -p out
echo "== showcase: pictures in out/, open out/index.html"
build/release/examples/qvnip_showcase out
echo "== benchmark (--quick; single-threaded)"
build/release/bench/qvnip_bench --quick
