#!/usr/bin/env bash
# Soak test of the generated HDL: N random descriptions (from SEED) through plovix, GHDL, Icarus Verilog,
# Verilator and Yosys, the VHDL and Verilog versions simulated against each other (scripts/soak/run.py).
#   PLOVIX=path             the plovix to test (default: build/cli/plovix)
#   PLOVIX_SOAK_JOBS=N      descriptions at a time (default 1)
#   PLOVIX_SOAK_TEXT=default  soak the default text even where --hdl-text valid exists
#   PLOVIX_SOAK_COMPARE=path  compare the default text of every description with another plovix instead
#   PLOVIX_SOAK_REDUCE=1    add the smallest description (line by line) of each kind of failure
#   PLOVIX_SOAK_SHOW=1      print the description of every failure; PLOVIX_SOAK_KEEP=1 keeps the work files
# The exit status is 1 when a description fails with valid text (the default text has known limits).
set -euo pipefail
if [ $# -ne 2 ]; then
  echo "usage: $0 N SEED" >&2
  exit 2
fi
here="$(cd "$(dirname "$0")" && pwd)"
export PLOVIX="${PLOVIX:-$here/../build/cli/plovix}"
export PLOVIX_MODELS_DIR="${PLOVIX_MODELS_DIR:-$here/../modulons/hdl}"
exec python3 "$here/soak/run.py" "$1" "$2"
