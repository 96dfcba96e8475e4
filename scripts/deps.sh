#!/usr/bin/env bash
# Installs the Debian packages that building and testing need, when missing.
# Usage: scripts/deps.sh [test|bench|browser]
#   test     compiler, CMake, Python 3, binutils, pkg-config and GoogleTest
#   bench    the same with Google Benchmark, OpenCV and FFTW
#   browser  only a headless Chromium, for the showcase page check
set -euo pipefail
pkgs=(cmake g++ make python3 binutils pkg-config libgtest-dev)
case "${1:-test}" in
  bench) pkgs+=(libbenchmark-dev libopencv-core-dev libopencv-imgproc-dev libfftw3-dev) ;;
  browser) pkgs=(chromium-headless-shell) ;;
esac
missing=()
for p in "${pkgs[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "installing: ${missing[*]}"
  SUDO=""; [ "$(id -u)" -eq 0 ] || SUDO=sudo
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq "${missing[@]}"
fi
