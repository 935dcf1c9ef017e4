#!/usr/bin/env bash
# Runs one fuzz campaign: scripts/fuzz.sh TARGET SECONDS [libFuzzer options...]
#
# Builds the clang libFuzzer configuration in build-fuzz when needed (ASan and UBSan, see fuzz/CMakeLists.txt),
# runs fuzz_TARGET for SECONDS on a working copy of its seed corpus (fuzz/corpus/TARGET, with its dictionary
# fuzz/TARGET.dict when there is one) in one process, and prints the executions, executions per second, coverage
# and findings. A finding (a crash, leak, timeout or out-of-memory input) is left in build-fuzz/findings/TARGET
# and makes the exit status 1; add it to fuzz/corpus/TARGET so that the tests replay it from then on.
# Targets: every fuzz/*.cpp but ReplayMain.cpp. Run it under `nice -n 19` on a shared machine.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

if [ $# -lt 2 ]; then
  echo "usage: scripts/fuzz.sh TARGET SECONDS [libFuzzer options...]" >&2
  echo "targets: $(ls fuzz/*.cpp | xargs -n1 basename | sed 's/\.cpp$//' | grep -v ReplayMain | tr '\n' ' ')" >&2
  exit 2
fi
target=$1
seconds=$2
shift 2
if [ ! -f "fuzz/$target.cpp" ] || [ "$target" = ReplayMain ]; then
  echo "fuzz.sh: no fuzz target $target" >&2
  exit 2
fi

build=build-fuzz
if [ ! -f "$build/build.ninja" ]; then
  launcher=()
  if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  fi
  CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPLOVIX_BUILD_FUZZ=ON \
    -DPLOVIX_WITH_QT=OFF -DPLOVIX_BUILD_TESTS=OFF -DPLOVIX_BUILD_BENCH=OFF "${launcher[@]}" >/dev/null
fi
cmake --build "$build" --target "fuzz_$target" -j "${PLOVIX_FUZZ_BUILD_JOBS:-2}" >/dev/null

# The campaign mutates a working copy; the seed corpus in the tree stays as it is.
work=$root/$build/corpus/$target
findings=$root/$build/findings/$target
mkdir -p "$work" "$findings"
cp -n fuzz/corpus/"$target"/* "$work"/ 2>/dev/null || true
# Inputs stay small enough for thousands of runs a second (a catalog input still holds several small files,
# a description every statement).
case $target in
  catalog_loader | cnx_description) max_len=2048 ;;
  *) max_len=4096 ;;
esac
# The plain schedule (-entropic=0): the entropic schedule's bookkeeping of rare features took a third to a half
# of every run of these targets, most of all of the larger ones.
options=(-max_total_time="$seconds" -print_final_stats=1 -timeout=10 -rss_limit_mb=2048
  -max_len="$max_len" -entropic=0 -artifact_prefix="$findings/")
[ -f "fuzz/$target.dict" ] && options+=(-dict="$root/fuzz/$target.dict")
# Findings are crashes, leaks, timeouts and out-of-memory inputs. A slow unit (over 10 s of wall clock) is
# saved too, but is no finding: on a shared machine a run that waits for the CPU looks slow.
found() { find "$findings" -type f ! -name 'slow-unit-*' | wc -l; }
before=$(found)
log=$root/$build/fuzz-$target.log
status=0
# Shorter allocation stacks keep ASan's bookkeeping cheap; reports still name the allocating functions.
TIMEFORMAT='%U %S'
# One process, run in the build folder, so that its CPU time is measured (a shared machine gives it less
# than the wall clock).
cpu=$( cd "$build" && { time ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1:malloc_context_size=8 \
  UBSAN_OPTIONS=print_stacktrace=1 "$root/$build/fuzz/fuzz_$target" "${options[@]}" "$@" "$work" >"$log" 2>&1 \
  || echo "status $?" >&2; } 2>&1 )
if [[ $cpu == *status* ]]; then status=1; fi
cpu_seconds=$(awk '{ print $(NF-1) + $NF }' <<<"${cpu##*$'\n'}")
after=$(found)

# libFuzzer's final statistics and its last status line ("#N ... cov: C ft: F ... exec/s: E").
runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
speed=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -1)
last=$(grep -E '^#[0-9]+' "$log" | tail -1 || true)
edges=$(sed -n 's/.* cov: \([0-9]*\).*/\1/p' <<<"$last")
features=$(sed -n 's/.* ft: \([0-9]*\).*/\1/p' <<<"$last")
echo "target:      $target"
echo "executions:  ${runs:-?}"
echo "exec/s:      ${speed:-?} (wall clock); $(awk -v r="${runs:-0}" -v c="$cpu_seconds" \
  'BEGIN { printf "%d", (c > 0 ? r / c : 0) }') per CPU second ($cpu_seconds s of CPU)"
echo "coverage:    ${edges:-?} edges, ${features:-?} features"
echo "corpus:      $(find "$work" -type f | wc -l) inputs"
echo "findings:    $((after - before)) (in $findings; log $log)"
slow=$(sed -n 's/^stat::slowest_unit_time_sec: *//p' "$log" | tail -1)
echo "slowest run: ${slow:-?} s of wall clock"
if [ $((after - before)) -ne 0 ] || [ "$status" -ne 0 ]; then
  tail -40 "$log" >&2
  exit 1
fi
