#!/usr/bin/env bash
# Soak test of the generated HDL: N random descriptions (from SEED) through plovix, GHDL, Icarus Verilog,
# Verilator and Yosys, the VHDL and Verilog versions simulated against each other (scripts/soak/run.py).
#   PLOVIX=path             the plovix to test (default: build/cli/plovix)
#   PLOVIX_SOAK_JOBS=N      descriptions at a time (default 1)
#   PLOVIX_SOAK_TEXT=default  soak the default text even where --hdl-text valid exists
#   PLOVIX_SOAK_COMPARE=path  compare the default text of every description with another plovix instead
#   PLOVIX_SOAK_REDUCE=1    add the smallest description (line by line) of each kind of failure
#   PLOVIX_SOAK_SHOW=1      print the description of every failure; PLOVIX_SOAK_KEEP=1 keeps the work files
#   PLOVIX_SOAK_GATE=explained  (default) exit 1 on a failure that no plovix warning explains (with valid text:
#                           a warning that valid text does not cover the construct or cannot express it)
#   PLOVIX_SOAK_GATE=agreement  exit 1 only when plovix fails or two accepted versions disagree
set -euo pipefail
if [ $# -ne 2 ]; then
  echo "usage: $0 N SEED" >&2
  exit 2
fi
here="$(cd "$(dirname "$0")" && pwd)"
export PLOVIX="${PLOVIX:-$here/../build/cli/plovix}"
export PLOVIX_MODELS_DIR="${PLOVIX_MODELS_DIR:-$here/../modulons/hdl}"
exec python3 "$here/soak/run.py" "$1" "$2"
