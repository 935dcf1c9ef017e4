#!/usr/bin/env python3
"""Reference model of the bundled library modules: writes the vectors files the modulon benches read.

Run by hand after changing a case (python3 make_vectors.py); the files in ../vectors are committed. vectors.py
holds the file format and what the cases share; logic.py, storage.py, memory.py, fifo.py and defaults.py the
cases, each writing its vectors file.
"""
import sys

sys.dont_write_bytecode = True
import defaults  # noqa: E402
import fifo  # noqa: E402
import logic  # noqa: E402
import memory  # noqa: E402
import storage  # noqa: E402

if __name__ == "__main__":
    for module in (logic, storage, memory, fifo, defaults):
        module.write_cases()
