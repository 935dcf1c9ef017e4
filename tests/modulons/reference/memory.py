"""Reference of the memory case: ROMs with an Intel HEX and a plain initialisation file, and dual-port RAMs.
Writes vectors/memory.vec with memory.hex and memory.txt, the files the ROM variations name. The bench gives a
line's clock edges in this order: each RAM's write clock (where its column is 1), the ROMs' clock, each RAM's
read clock (where its column is 1); then it compares."""
import os
import random

from vectors import OUT, Dut, chance, lines_of, write_case


def intel_hex_record(kind, address, data):
    fields = [len(data), address >> 8, address & 0xFF, kind] + data
    return ":" + "".join("%02X" % b for b in fields) + "%02X" % (-sum(fields) & 0xFF)


def rom_contents(rng, width, words):
    """Random words, a few addresses left out (they read 0)."""
    return {address: rng.getrandbits(width) for address in range(words) if address % 5 != 3}


def write_intel_hex(name, width, contents):
    """Words of (width + 7) // 8 bytes, most significant first; records of one or two consecutive words, after
    an extended linear address record."""
    size = (width + 7) // 8
    lines = [intel_hex_record(4, 0, [0, 0])]
    addresses = sorted(contents)
    i = 0
    while i < len(addresses):
        run = [addresses[i]]
        if i + 1 < len(addresses) and addresses[i + 1] == addresses[i] + 1 and addresses[i] % 2 == 0:
            run.append(addresses[i + 1])
        data = []
        for address in run:
            data += list(contents[address].to_bytes(size, "big"))
        lines.append(intel_hex_record(0, run[0], data))
        i += len(run)
    lines.append(intel_hex_record(1, 0, []))
    with open(os.path.join(OUT, name), "w") as out:
        out.write("\n".join(lines) + "\n")


def write_plain(name, width, contents):
    """One word a line, a comment, and an address jump over the words left out."""
    digits = (width + 3) // 4
    lines = ["// %s: %d-bit words" % (name, width)]
    expected = 0
    for address in sorted(contents):
        if address != expected:
            lines.append("@%x" % address)
        comment = "  // word %d" % address if address % 7 == 0 else ""
        lines.append(format(contents[address], "0%dx" % digits) + comment)
        expected = address + 1
    with open(os.path.join(OUT, name), "w") as out:
        out.write("\n".join(lines) + "\n")


class Memory:
    """A ROM (contents given) or a dual-port RAM (contents written): the read address registered at the read
    clock or not, q registered at the read clock or not; an address at or above words reads 0."""

    def __init__(self, words, address_registered, output_registered, contents=None):
        self.words, self.contents = words, contents if contents is not None else {}
        self.address_registered, self.output_registered = address_registered, output_registered
        self.address_reg = self.q_reg = 0

    def read(self, at):
        return self.contents.get(at, 0) if at < self.words else 0

    def __call__(self, v):
        if v.get("wrclock", 0) and v["wren"] and v.get("wrclken", 1) and v["wraddress"] < self.words:
            self.contents[v["wraddress"]] = v["data"]
        address = v.get("address", v.get("rdaddress"))
        if v.get("rdclock", 1) and v.get("rden", 1) and v.get("rdclken", 1):
            self.q_reg = self.read(self.address_reg if self.address_registered else address)
            self.address_reg = address
        at = self.address_reg if self.address_registered else address
        return {"q": self.q_reg if self.output_registered else self.read(at)}


def case_memory():
    rng = random.Random(10)
    hex_contents = rom_contents(rng, 64, 12)
    write_intel_hex("memory.hex", 64, hex_contents)
    text_contents = rom_contents(rng, 1, 32)
    write_plain("memory.txt", 1, text_contents)

    def ram_ports(width, widthad, enables):
        return ([("data", width), ("wraddress", widthad), ("wren", 1)] + [(name, 1) for name in enables] +
                [("rdaddress", widthad), ("wrclock", 1), ("rdclock", 1)])
    duts = [Dut("rom_hex", [("address", 4)], [("q", 64)], Memory(12, True, False, hex_contents)),
            Dut("rom_txt", [("address", 5)], [("q", 1)], Memory(32, False, True, text_contents)),
            Dut("ramdp64", ram_ports(64, 4, ["wrclken", "rdclken"]), [("q", 64)], Memory(16, True, False)),
            Dut("ramdp1", ram_ports(1, 3, ["rden"]), [("q", 1)], Memory(6, False, True))]

    def make(d, i):
        # Writes 60 times in a hundred, each clock 70, each enable 75.
        odds = {"wren": 60, "wrclock": 70, "rdclock": 70, "wrclken": 75, "rdclken": 75, "rden": 75}
        return {p: chance(rng, odds[p]) if p in odds else rng.getrandbits(w) for p, w in d.inputs}
    write_case("memory", duts, lines_of(duts, 120, make))


def write_cases():
    case_memory()
