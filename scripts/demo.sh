#!/usr/bin/env bash
# The main job: builds plovix and creates a demo variation, an 8-bit up counter, in Verilog HDL and in VHDL,
# with the bundled modulons, then lists the files it wrote.
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$jobs" --target plovix plovix-wizard
demo="$PWD/demo"
rm -rf "$demo"
mkdir -p "$demo"
for file in count8.v count8.vhd; do
  echo "== plovix --batch --modulon lpm_counter $file"
  build/cli/plovix --batch --project "$demo" --modulon lpm_counter \
    --plugin-args "LPM_WIDTH=8 LPM_DIRECTION=UP" "$demo/$file"
done
echo "== files written to $demo"
ls -l "$demo"
