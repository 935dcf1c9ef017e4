#!/usr/bin/env bash
# Start-up time of the plovix command: `plovix --version` and `plovix --batch --list-modulons`, against a trivial
# C++ program linked the same way (bench_startup_floor) and, optionally, against another build (an older
# commit). --version must stay within 1.5 times the floor.
#   bash bench/startup.sh [BUILD_DIR [BASELINE_BUILD_DIR]]
# Uses hyperfine when it is installed (Debian package hyperfine), else times 200 runs in a loop.
set -euo pipefail
build=$(cd "${1:-build}" && pwd)
baseline=${2:+$(cd "$2" && pwd)}
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM PLOVIX_LIB_PATH PLOVIX_USER_LIB_PATH

declare -A mean_ms
measure() { # name command...
  local name=$1
  shift
  if command -v hyperfine >/dev/null; then
    hyperfine -N --warmup 20 --runs 300 --export-json "$tmp/$name.json" "$(printf '%q ' "$@")" >/dev/null 2>"$tmp/$name.log"
    mean_ms[$name]=$(python3 -c 'import json,sys; print("%.2f" % (json.load(open(sys.argv[1]))["results"][0]["mean"]*1000))' "$tmp/$name.json")
  else
    local start end i
    for i in $(seq 20); do "$@" >/dev/null 2>&1; done
    start=$(date +%s%N)
    for i in $(seq 200); do "$@" >/dev/null 2>&1; done
    end=$(date +%s%N)
    mean_ms[$name]=$(awk -v ns=$((end - start)) 'BEGIN { printf "%.2f", ns / 200 / 1e6 }')
  fi
  printf '%-28s %8s ms   %s\n' "$name" "${mean_ms[$name]}" "$*"
}

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
measure floor "$build/bench/bench_startup_floor"
measure version "$build/cli/plovix" --version
measure list "$build/cli/plovix" --batch --list-modulons
if [ -n "$baseline" ]; then
  measure baseline-version "$baseline/cli/plovix" --version
  measure baseline-list "$baseline/cli/plovix" --batch --list-modulons
fi
ratio=$(awk -v a="${mean_ms[version]}" -v b="${mean_ms[floor]}" 'BEGIN { printf "%.2f", a / b }')
echo "plovix --version / floor: $ratio (limit 1.5)"
awk -v r="$ratio" 'BEGIN { exit !(r <= 1.5) }'
