#!/bin/sh
# Checks a Verilog variation against the bundled library models with Icarus Verilog.
# The manager hands the path with backslashes; they are turned back into slashes.
variation=$(printf '%s' "$1" | tr '\\' '/')
models=$(dirname "$0")/verilog
case "$variation" in
  *.v)
    if iverilog -o /dev/null -y "$models" "$variation"; then
      echo "check_variation: $variation compiles with the library models"
    else
      echo "check_variation: $variation does not compile" >&2
      exit 1
    fi
    ;;
  *) echo "check_variation: only Verilog variations are checked; $variation left as it is" ;;
esac
