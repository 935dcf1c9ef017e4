"""Reference of the FIFO case: single-clock FIFOs, the dual-clock FIFO with both clocks driven by one (so that
each line is exact) and the FIFO with a fill-level comparator. Writes vectors/fifo.vec; the bench compares
after each line's clock edge. The requests come in phases that mostly write, then mostly read, so that every
FIFO is full and empty several times."""
import random

from vectors import Dut, chance, lines_of, write_case


class Fifo:
    """scfifo (and the FIFO of fifo_level): words words; at the edge a write unless full and a read unless
    empty, both when they can; aclr and sclr empty it."""

    def __init__(self, words, showahead, almost_full=0, almost_empty=0):
        self.words, self.showahead = words, showahead
        self.almost_full, self.almost_empty = almost_full, almost_empty
        self.memory = [0] * words
        self.count = self.write_at = self.read_at = self.q_reg = 0

    def __call__(self, v):
        if v.get("aclr", 0) or v.get("sclr", 0):
            self.count = self.write_at = self.read_at = self.q_reg = 0
        else:
            write = v["wrreq"] and self.count != self.words
            read = v["rdreq"] and self.count != 0
            if read:
                self.q_reg = self.memory[self.read_at]
                self.read_at = (self.read_at + 1) % self.words
            if write:
                self.memory[self.write_at] = v["data"]
                self.write_at = (self.write_at + 1) % self.words
            self.count += int(write) - int(read)
        return {"q": self.memory[self.read_at] if self.showahead else self.q_reg,
                "empty": int(self.count == 0), "full": int(self.count == self.words), "usedw": self.count,
                "almost_full": int(self.count >= self.almost_full),
                "almost_empty": int(self.count < self.almost_empty)}


def gray(value):
    return value ^ (value >> 1)


def from_gray(code):
    value = 0
    while code:
        value ^= code
        code >>= 1
    return value


class DualClockFifo:
    """dcfifo with wrclk and rdclk the same clock: positions count modulo 2 ** (widthu + 1); each side sees
    the other's position, in Gray code, through its chain of synchronising registers, and every register takes
    its new value from the old values at each edge."""

    def __init__(self, words, widthu, showahead, rdsync, wrsync):
        self.words, self.showahead = words, showahead
        self.size, self.modulus = 1 << widthu, 1 << (widthu + 1)
        self.rdsync, self.wrsync = rdsync, wrsync
        self.memory = [0] * self.size
        self.clear()

    def clear(self):
        self.write_at = self.write_gray = self.read_at = self.read_gray = self.q_reg = 0
        self.read_chain = [0] * self.wrsync  # the read position, seen by the write side
        self.write_chain = [0] * self.rdsync  # the write position, seen by the read side

    def used(self):
        return ((self.write_at - from_gray(self.read_chain[-1])) % self.modulus,
                (from_gray(self.write_chain[-1]) - self.read_at) % self.modulus)

    def __call__(self, v):
        if v["aclr"]:
            self.clear()
        else:
            write_used, read_used = self.used()
            write = v["wrreq"] and write_used != self.words
            read = v["rdreq"] and read_used != 0
            self.read_chain = [self.read_gray] + self.read_chain[:-1]
            self.write_chain = [self.write_gray] + self.write_chain[:-1]
            if read:
                self.q_reg = self.memory[self.read_at % self.size]
                self.read_at = (self.read_at + 1) % self.modulus
                self.read_gray = gray(self.read_at)
            if write:
                self.memory[self.write_at % self.size] = v["data"]
                self.write_at = (self.write_at + 1) % self.modulus
                self.write_gray = gray(self.write_at)
        write_used, read_used = self.used()
        return {"q": self.memory[self.read_at % self.size] if self.showahead else self.q_reg,
                "rdempty": int(read_used == 0), "rdfull": int(read_used == self.words), "rdusedw": read_used,
                "wrempty": int(write_used == 0), "wrfull": int(write_used == self.words),
                "wrusedw": write_used}


def case_fifo():
    rng = random.Random(11)

    def ports(width, clears):
        return [("data", width), ("wrreq", 1), ("rdreq", 1)] + [(name, 1) for name in clears]
    flags = [("empty", 1), ("full", 1)]
    duts = [Dut("fifo64", ports(64, ["aclr", "sclr"]),
                [("q", 64)] + flags + [("usedw", 3), ("almost_full", 1), ("almost_empty", 1)],
                Fifo(5, False, almost_full=4, almost_empty=2)),
            Dut("fifo1", ports(1, []), [("q", 1)] + flags + [("usedw", 3)], Fifo(8, True)),
            Dut("dcfifo_sync", ports(64, ["aclr"]),
                [("q", 64), ("rdempty", 1), ("rdfull", 1), ("rdusedw", 3), ("wrempty", 1), ("wrfull", 1),
                 ("wrusedw", 3)], DualClockFifo(8, 3, True, 2, 3)),
            Dut("level", ports(8, ["aclr"]), [("q", 8)] + flags + [("usedw", 4), ("almost_full", 1)],
                Fifo(8, False, almost_full=6))]

    def make(d, i):
        # Phases of 24 lines: mostly writing, then mostly reading, then both; a clear now and then.
        phase = (i // 24) % 3
        values = {"data": rng.getrandbits(d.inputs[0][1]), "wrreq": chance(rng, (85, 20, 60)[phase]),
                  "rdreq": chance(rng, (20, 85, 60)[phase])}
        values.update((name, chance(rng, 2)) for name, _ in d.inputs[3:])
        return values
    write_case("fifo", duts, lines_of(duts, 240, make))


def write_cases():
    case_fifo()
