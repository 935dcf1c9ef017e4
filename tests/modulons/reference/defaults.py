"""Reference of the defaults case: library modules instantiated with their optional inputs left unconnected,
so that every one of those inputs takes its default. Writes vectors/defaults.vec; the bench compares after
each line's clock edge."""
import random

from vectors import Dut, lines_of, write_case


def case_defaults():
    rng = random.Random(19)
    state = {"count": 0, "shifted": 0}

    def after_edge(v):
        # At the clock edge: the counter counts (clk_en, cnt_en and cin 1), the shift register shifts a 1 in
        # from the right (enable and shiftin 1), the comparator's one pipeline stage takes a == b (clken 1).
        state["count"] = (state["count"] + 1) % 16
        state["shifted"] = (state["shifted"] << 1 | 1) % 16
        a, b = v["a"], v["b"]
        return {"count": state["count"], "cout": int(state["count"] == 15), "sum": a + b, "difference": a - b,
                "shifted": state["shifted"], "eq": 1 << (a % 4), "aeb": int(a == b)}

    outputs = [("count", 4), ("cout", 1), ("sum", 8), ("difference", 8), ("shifted", 4), ("eq", 4),
               ("aeb", 1)]
    dut = Dut("defaults", [("a", 8), ("b", 8)], outputs, after_edge)

    def make(d, i):
        a = rng.getrandbits(8)
        return {"a": a, "b": a if i % 5 == 2 else rng.getrandbits(8)}
    write_case("defaults", [dut], lines_of([dut], 40, make))


def write_cases():
    case_defaults()
