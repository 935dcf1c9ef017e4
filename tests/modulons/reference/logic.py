"""Reference of the logic cases: gates, bus driver, shifter, multiplier, divider, absolute value, multiplexer
and decoder, combinational or pipelined. Writes vectors/inv.vec, gates.vec, bustri.vec, clshift.vec, mult.vec,
divide.vec, abs.vec, mux.vec and decode.vec."""
import random

from vectors import Dut, Z, lines_of, pick, random_inputs, signed, write_case


# --- the library modules' functions ------------------------------------------------------------------------


def gate(kind, width, size):
    def f(v):
        words = [(v["data"] >> (k * width)) & ((1 << width) - 1) for k in range(size)]
        r = words[0]
        for w in words[1:]:
            r = r & w if kind == "and" else r | w if kind == "or" else r ^ w
        return {"result": r}
    return f


def bustri(width):
    def f(v):
        if v["enabledt"]:
            bus = v["data"]
        elif v["drive"]:
            bus = v["bus"]
        else:
            bus = Z
        # A floating bus read through the enabled driver is unknown in Verilog and Z in VHDL: not checked.
        result = (None if bus == Z else bus) if v["enabletr"] else Z
        return {"tridata": bus, "result": result}
    return f


def clshift(width, kind, direction=None):
    m = (1 << width) - 1

    def f(v):
        data, d = v["data"], v["distance"]
        right = v["direction"] if direction is None else direction
        sign = data >> (width - 1) & 1
        fill = m if kind == "ARITHMETIC" and sign else 0
        if kind == "ROTATE":
            t = d % width
            r = ((data >> t) | (data << (width - t))) & m if right else ((data << t) | (data >> (width - t))) & m
            return {"result": r, "overflow": 0, "underflow": 0}
        if right:
            if kind == "ARITHMETIC":
                r = (signed(data, width) >> d) & m
            else:
                r = data >> d
            return {"result": r, "overflow": 0, "underflow": int(r == fill and data != fill)}
        r = (data << d) & m
        back = (signed(r, width) >> d) & m if kind == "ARITHMETIC" else r >> d
        return {"result": r, "overflow": int(back != data), "underflow": 0}
    return f


def mult(wa, wb, wp, is_signed):
    wide = max(wp, wa + wb)

    def f(v):
        a, b = v["dataa"], v["datab"]
        if is_signed:
            a, b = signed(a, wa), signed(b, wb)
        p = (a * b) & ((1 << wide) - 1)
        return {"result": p >> (wide - wp)}
    return f


def divide(wn, wd, nsigned, dsigned, positive):
    def f(v):
        n = signed(v["numer"], wn) if nsigned else v["numer"]
        d = signed(v["denom"], wd) if dsigned else v["denom"]
        if d == 0:
            return {"quotient": (1 << wn) - 1, "remain": n & ((1 << wd) - 1)}
        q = abs(n) // abs(d)
        if (n < 0) != (d < 0):
            q = -q
        r = n - q * d
        if positive and r < 0:
            q, r = (q - 1, r + d) if d > 0 else (q + 1, r - d)
        return {"quotient": q & ((1 << wn) - 1), "remain": r & ((1 << wd) - 1)}
    return f


def absolute(width):
    def f(v):
        s = signed(v["data"], width)
        return {"result": abs(s) & ((1 << width) - 1), "overflow": int(s == -(1 << (width - 1)))}
    return f


def mux(width, size):
    def f(v):
        sel = v["sel"]
        return {"result": (v["data"] >> (sel * width)) & ((1 << width) - 1) if sel < size else 0}
    return f


def decode(decodes):
    def f(v):
        eq = 1 << v["data"] if v.get("enable", 1) and v["data"] < decodes else 0
        return {"eq": eq}
    return f


# --- the cases -----------------------------------------------------------------------------------------------


def pipeline_controls(i):
    """Cleared at the start and once in the middle; the clock enable low now and then."""
    return {"aclr": int(i in (0, 13)), "clken": int(i % 7 != 5)}


def case_inv():
    rng = random.Random(1)
    duts = [Dut("inv1", [("data", 1)], [("result", 1)], lambda v: {"result": v["data"] ^ 1}),
            Dut("inv64", [("data", 64)], [("result", 64)], lambda v: {"result": v["data"] ^ (1 << 64) - 1})]
    write_case("inv", duts, lines_of(duts, 16, lambda d, i: random_inputs(rng, d, i)))


def case_gates():
    rng = random.Random(2)
    duts = [Dut("and64x3", [("data", 192)], [("result", 64)], gate("and", 64, 3)),
            Dut("or1x5", [("data", 5)], [("result", 1)], gate("or", 1, 5)),
            Dut("xor8x4", [("data", 32)], [("result", 8)], gate("xor", 8, 4))]

    def make(d, i):
        width = d.inputs[0][1]
        if i < 2:
            return {"data": 0 if i == 0 else (1 << width) - 1}
        # Every other line words with many ones, so that AND results are not all zero.
        value = rng.getrandbits(width)
        if i % 2:
            value |= rng.getrandbits(width) | rng.getrandbits(width)
        return {"data": value}
    write_case("gates", duts, lines_of(duts, 20, make))


def case_bustri():
    rng = random.Random(3)
    ports = lambda w: [("data", w), ("enabledt", 1), ("enabletr", 1), ("drive", 1), ("bus", w)]
    duts = [Dut("bustri1", ports(1), [("tridata", 1), ("result", 1)], bustri(1)),
            Dut("bustri64", ports(64), [("tridata", 64), ("result", 64)], bustri(64))]

    def make(d, i):
        width = d.inputs[0][1]
        # Every combination of the two enables and the bench's own driver, never two drivers at once.
        dt, tr, drive = [(0, 0, 0), (1, 0, 0), (1, 1, 0), (0, 1, 1), (0, 0, 1), (0, 1, 0)][i % 6]
        return {"data": rng.getrandbits(width), "enabledt": dt, "enabletr": tr, "drive": drive,
                "bus": rng.getrandbits(width)}
    write_case("bustri", duts, lines_of(duts, 24, make))


def case_clshift():
    rng = random.Random(4)
    flags = [("result", 0), ("overflow", 1), ("underflow", 1)]
    duts = [Dut("lsh8", [("data", 8), ("distance", 4), ("direction", 1)], [("result", 8)] + flags[1:],
                clshift(8, "LOGICAL")),
            Dut("ash64", [("data", 64), ("distance", 7), ("direction", 1)], [("result", 64)] + flags[1:],
                clshift(64, "ARITHMETIC")),
            Dut("rot8", [("data", 8), ("distance", 4), ("direction", 1)], [("result", 8)], clshift(8, "ROTATE")),
            Dut("rsh1", [("data", 1), ("distance", 2)], [("result", 1), ("underflow", 1)],
                clshift(1, "LOGICAL", direction=1))]

    def make(d, i):
        values = {"data": pick(rng, d.inputs[0][1])}
        dist_width = d.inputs[1][1]
        # Every distance up to beyond the width, both directions.
        values["distance"] = (i // 2) % (1 << dist_width) if i < 40 else rng.getrandbits(dist_width)
        values["direction"] = i % 2
        return values
    write_case("clshift", duts, lines_of(duts, 60, make))


def case_mult():
    rng = random.Random(5)
    duts = [Dut("mult_u8", [("dataa", 8), ("datab", 8)], [("result", 12)], mult(8, 8, 12, False)),
            Dut("mult_s8x6_p3", [("dataa", 8), ("datab", 6), ("clken", 1), ("aclr", 1)], [("result", 14)],
                mult(8, 6, 14, True), pipeline=3),
            Dut("mult_s64", [("dataa", 64), ("datab", 64)], [("result", 128)], mult(64, 64, 128, True)),
            Dut("mult_u1_p3", [("dataa", 1), ("datab", 1)], [("result", 2)], mult(1, 1, 2, False), pipeline=3)]
    controls = {"mult_s8x6_p3": pipeline_controls}
    write_case("mult", duts, lines_of(duts, 30, lambda d, i: random_inputs(rng, d, i, controls)))


def case_divide():
    rng = random.Random(6)
    duts = [Dut("div_u8x4", [("numer", 8), ("denom", 4)], [("quotient", 8), ("remain", 4)],
                divide(8, 4, False, False, True)),
            Dut("div_s16x8_p3", [("numer", 16), ("denom", 8), ("clken", 1), ("aclr", 1)],
                [("quotient", 16), ("remain", 8)], divide(16, 8, True, True, False), pipeline=3),
            Dut("div_s64", [("numer", 64), ("denom", 64)], [("quotient", 64), ("remain", 64)],
                divide(64, 64, True, True, True)),
            Dut("div_u1_p3", [("numer", 1), ("denom", 1)], [("quotient", 1), ("remain", 1)],
                divide(1, 1, False, False, True), pipeline=3)]
    controls = {"div_s16x8_p3": pipeline_controls}

    def make(d, i):
        values = random_inputs(rng, d, i, controls)
        if d.name == "div_s64" and i % 3 == 0:
            values["denom"] = rng.getrandbits(rng.randint(1, 20))  # small divisors give other quotients
        return values
    write_case("divide", duts, lines_of(duts, 36, make))


def case_abs():
    rng = random.Random(7)
    duts = [Dut("abs%d" % w, [("data", w)], [("result", w), ("overflow", 1)], absolute(w)) for w in (1, 8, 64)]
    write_case("abs", duts, lines_of(duts, 16, lambda d, i: random_inputs(rng, d, i)))


def case_mux():
    rng = random.Random(8)
    duts = [Dut("mux8x5_p3", [("data", 40), ("sel", 3)], [("result", 8)], mux(8, 5), pipeline=3),
            Dut("mux64x2", [("data", 128), ("sel", 1)], [("result", 64)], mux(64, 2)),
            Dut("mux1x3", [("data", 3), ("sel", 2)], [("result", 1)], mux(1, 3))]

    def make(d, i):
        width = d.inputs[0][1]
        return {"data": rng.getrandbits(width), "sel": i % (1 << d.inputs[1][1])}
    write_case("mux", duts, lines_of(duts, 24, make))


def case_decode():
    duts = [Dut("dec3x6", [("data", 3), ("enable", 1)], [("eq", 6)], decode(6)),
            Dut("dec1x2", [("data", 1)], [("eq", 2)], decode(2))]
    write_case("decode", duts, lines_of(duts, 16, lambda d, i: {"data": i % (1 << d.inputs[0][1]),
                                                                "enable": int(i < 8 or i % 3 != 0)}))


def write_cases():
    for make_case in (case_inv, case_gates, case_bustri, case_clshift, case_mult, case_divide, case_abs,
                      case_mux, case_decode):
        make_case()
