"""Reference of the storage case: D and T flip-flop registers and latches. Writes vectors/storage.vec; the
bench compares after each line's clock edge."""
import random

from vectors import Dut, chance, lines_of, write_case


class FlipFlop:
    """lpm_ff: aclr, then aset, then aload act at once; else, at the clock edge while enable is high, sclr,
    then sset, then (a T flip-flop's) sload, else a D flip-flop takes data and a T flip-flop toggles the bits
    whose data bit is 1."""

    def __init__(self, width, toggle, aset_value, sset_value):
        ones = (1 << width) - 1
        self.toggle = toggle
        self.aset_value = ones if aset_value < 0 else aset_value
        self.sset_value = ones if sset_value < 0 else sset_value
        self.value = 0

    def __call__(self, v):
        get = v.get
        if get("aclr", 0):
            self.value = 0
        elif get("aset", 0):
            self.value = self.aset_value
        elif get("aload", 0):
            self.value = v["data"]
        elif get("enable", 1):
            if get("sclr", 0):
                self.value = 0
            elif get("sset", 0):
                self.value = self.sset_value
            elif self.toggle and not get("sload", 0):
                self.value ^= v["data"]
            else:
                self.value = v["data"]
        return {"q": self.value}


class Latch:
    """lpm_latch: q follows data while gate is high; aclr, then aset override."""

    def __init__(self, width, aset_value):
        self.aset_value = (1 << width) - 1 if aset_value < 0 else aset_value
        self.value = 0

    def __call__(self, v):
        if v.get("aclr", 0):
            self.value = 0
        elif v.get("aset", 0):
            self.value = self.aset_value
        elif v["gate"]:
            self.value = v["data"]
        return {"q": self.value}


def case_storage():
    rng = random.Random(9)

    def ports(width, names):
        return [("data", width)] + [(name, 1) for name in names]
    duts = [Dut("dff64", ports(64, ["enable", "aclr", "aset", "aload", "sclr", "sset"]), [("q", 64)],
                FlipFlop(64, False, -1, 1234567)),
            Dut("tff1", ports(1, ["enable", "aclr", "sset", "sload"]), [("q", 1)], FlipFlop(1, True, -1, 0)),
            Dut("latch64", ports(64, ["gate", "aclr", "aset"]), [("q", 64)], Latch(64, 2147483647)),
            Dut("latch1", ports(1, ["gate"]), [("q", 1)], Latch(1, -1))]

    def make(d, i):
        # Controls are rare, so that the registers also run free; enable is mostly high, gate high 40 times in
        # a hundred.
        values = {p: chance(rng, {"enable": 80, "gate": 40}.get(p, 12)) for p, _ in d.inputs[1:]}
        values["data"] = rng.getrandbits(d.inputs[0][1])
        return values
    write_case("storage", duts, lines_of(duts, 120, make))


def write_cases():
    case_storage()
