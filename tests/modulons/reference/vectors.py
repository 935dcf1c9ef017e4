"""The vectors files of the modulon benches, and what the reference cases share.

A vectors file has a header line naming its columns (<variation>.<port>, the inputs first, then the expected
outputs), then one line per clock cycle, every value in hexadecimal with as many digits as its port is wide:
"x" alone means the value is not checked, "z" digits mean high impedance. A bench applies a line's inputs and
gives one rising clock edge; it compares the outputs before the edge where they follow the inputs (gates,
arithmetic, pipelines: the logic cases) and after it where they follow the edge (the storage, memory, FIFO and
defaults cases). Pipeline registers are unknown until they are filled or cleared.
"""
import os

HERE = os.path.dirname(os.path.abspath(__file__))
OUT = os.path.join(HERE, "..", "vectors")
Z = "z"  # a high-impedance value


def digits(width):
    return (width + 3) // 4


def hexval(value, width):
    if value is None:
        return "x"
    if value == Z:
        return "z" * digits(width)
    return "%0*x" % (digits(width), value & ((1 << width) - 1))


def signed(value, width):
    return value - (1 << width) if value >> (width - 1) & 1 else value


class Dut:
    """One variation of a case: its ports, how its outputs follow from its inputs (a function, or a model that
    keeps its state between lines), and its pipeline depth."""

    def __init__(self, name, inputs, outputs, function, pipeline=0):
        self.name, self.inputs, self.outputs = name, inputs, outputs
        self.function, self.pipeline = function, pipeline
        self.stages = [None] * pipeline  # None: unknown

    def step(self, values):
        """The expected outputs of one line."""
        now = self.function(values)
        if self.pipeline == 0:
            return now
        if values.get("aclr", 0):
            self.stages = [dict.fromkeys(now, 0)] * self.pipeline
        out = self.stages[-1] or dict.fromkeys(now, None)
        if not values.get("aclr", 0) and values.get("clken", 1):
            self.stages = [now] + self.stages[:-1]
        return out


def write_case(case, duts, lines):
    """lines: one dict per line, mapping each dut name to its input values."""
    header = [d.name + "." + p for d in duts for p, _ in d.inputs]
    header += [d.name + "." + p for d in duts for p, _ in d.outputs]
    rows = []
    for line in lines:
        ins, outs = [], []
        for d in duts:
            values = {p: line[d.name][p] for p, _ in d.inputs}  # only the ports the variation has
            ins += [hexval(values[p], w) for p, w in d.inputs]
            expected = d.step(values)
            outs += [hexval(expected.get(p), w) for p, w in d.outputs]
        rows.append(" ".join(ins + outs))
    with open(os.path.join(OUT, case + ".vec"), "w") as f:
        f.write(" ".join(header) + "\n" + "\n".join(rows) + "\n")


def lines_of(duts, count, make):
    return [{d.name: make(d, i) for d in duts} for i in range(count)]


def corners(width, rng, count):
    """Zero, one, all ones, the sign bit alone and its neighbours, then random values."""
    m = (1 << width) - 1
    top = 1 << (width - 1)
    fixed = [0, 1 & m, m, top, top - 1 if width > 1 else 0, top + 1 & m]
    return fixed + [rng.getrandbits(width) for _ in range(count)]


def pick(rng, width):
    return rng.choice(corners(width, rng, 4))


def random_inputs(rng, d, i, controls=None):
    values = {p: pick(rng, w) for p, w in d.inputs}
    values.update((controls or {}).get(d.name, lambda i: {})(i))
    return values


def chance(rng, percent):
    """True about percent times in a hundred."""
    return int(rng.randrange(100) < percent)
