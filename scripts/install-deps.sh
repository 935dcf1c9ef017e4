#!/usr/bin/env bash
# Installs the Debian packages that building and testing plovix need. Safe to run again.
set -euo pipefail
packages=(
  build-essential cmake ninja-build clang clang-format libclang-rt-14-dev
  libgtest-dev libgmock-dev libbenchmark-dev libcli11-dev
  qt6-base-dev xvfb xauth librsvg2-bin fonts-liberation
  ghdl iverilog verilator yosys
  libedit-dev python3 tmux
  dpkg-dev file pkgconf lintian
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
  SUDO=""
  [ "$(id -u)" -eq 0 ] || SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
