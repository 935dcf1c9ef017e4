"""Random CNX descriptions for the HDL soak: every construct the VHDL and Verilog writers handle.

A description is built from a few sub-modules whose ports are fixed per module name, variation ports, and
CONNECT lines that drive every bit of every sub-module input and variation output exactly once, so that the
description has one meaning. Each description records the constructs it uses, for the soak's tallies.
"""

import random

# Port and instance names besides the plain ones: mixed case, reserved words of one language or the other,
# underscores where one language allows them and the other does not.
ODD_NAMES = ["Data_In", "reg", "wire", "signal", "block", "label", "out_", "a__b", "In1", "type", "Integer"]
PLAIN_NAMES = ["a", "b", "c", "d", "e", "clk", "din", "sel", "en", "x", "y", "z", "q", "p", "r", "s", "t", "w"]
MODULE_NAMES = ["sk_alu", "sk_mix", "Sk_Reg", "sk_sel", "sk_pipe"]


class Description:
    def __init__(self):
        self.lines = []
        self.constructs = set()
        self.main_module = ""
        self.inputs = []  # (name, width1, width2): the variation's inputs as the bench drives them
        self.outputs = []  # (name, width1, width2)

    @staticmethod
    def from_lines(lines):
        """A description of the given body lines (the main module and the ports read back from them)."""
        d = Description()
        d.lines = list(lines)
        modules = [line.split()[1] for line in lines if line.startswith("MODULE:")]
        d.main_module = modules[0] if modules else "none"
        for line in lines:
            t = line.split()
            if t[0] == "USED_PORT:" and not t[1].startswith("@"):
                port = (t[1].lstrip("!"), int(t[2]), int(t[4]), int(t[5]))
                (d.inputs if t[6] == "INPUT" else d.outputs).append(port)
        return d

    def text(self):
        return "GENERATION: STANDARD\nVERSION: WM1.0\n" + "".join(line + "\n" for line in self.lines)


class _Names:
    """Hands out names that differ from each other also without regard to case."""

    def __init__(self, rng, odd_rate):
        self.rng = rng
        self.odd_rate = odd_rate
        self.taken = set()

    def take(self, pool=None):
        for _ in range(100):
            odd = pool is None and self.rng.random() < self.odd_rate
            name = self.rng.choice(pool or (ODD_NAMES if odd else PLAIN_NAMES))
            if pool is None and not odd and self.rng.random() < 0.3:
                name += str(self.rng.randint(0, 9))
            if name.lower() not in self.taken:
                self.taken.add(name.lower())
                return name, odd
        raise RuntimeError("out of names")


def _bounds(w1, l1, w2, l2):
    return "%d %d %d %d" % (w1, l1, w2, l2)


def _module_ports(rng, names, two_d):
    """A module's ports: (name, direction, width1, width2); widths 0 mean a single bit."""
    ports = []
    for direction, count in (("IN", rng.randint(1, 3)), ("OUT", rng.randint(1, 2))):
        for _ in range(count):
            name, _ = names.take()
            width = rng.choice([0, 1, 2, 3, 4, 8])
            rows = 0
            if two_d and direction == "IN" and width >= 2 and rng.random() < 0.5:
                rows = rng.choice([2, 3])
                two_d = False
            ports.append((name, direction, rows, width))
    return ports


def _slices(rng, width, low):
    """Cuts the index range [low, low + width) into slices (width, low), most significant first."""
    cuts = sorted(rng.sample(range(1, width), rng.randint(0, min(2, width - 1)))) if width > 1 else []
    edges = [0] + cuts + [width]
    return [(edges[i + 1] - edges[i], low + edges[i]) for i in reversed(range(len(edges) - 1))]


def generate(rng, index):
    """One random description; `index` only names it."""
    d = Description()
    names = _Names(rng, odd_rate=0.08)
    module_names = rng.sample(MODULE_NAMES, rng.randint(1, 3))
    two_d = rng.random() < 0.15
    layouts = {m: _module_ports(rng, names, two_d) for m in module_names}
    use_main_ports = rng.random() < 0.1
    d.main_module = module_names[0]

    # Instances: a module may be placed twice; the main module's first instance may go without a name.
    instances = []
    for m in module_names:
        for _ in range(2 if rng.random() < 0.15 else 1):
            instances.append(m)
    if len(instances) > len(set(instances)):
        d.constructs.add("instances_of_one_module")
    if len(module_names) > 1:
        d.constructs.add("several_modules")
    inst_names = []
    module_lines = []
    for i, m in enumerate(instances):
        if i == 0 and (use_main_ports or rng.random() < 0.2):
            inst_names.append(m)
            module_lines.append("MODULE: %s" % m)
        else:
            name, odd = names.take()
            if odd:
                d.constructs.add("odd_name")
            inst_names.append(name)
            module_lines.append("MODULE: %s %s" % (m, name))

    # Library lines.
    has_2d = any(p[2] for m in module_names for p in layouts[m])
    choice = rng.random()
    if has_2d or choice < 0.1:
        d.lines.append("LIBRARY: lpm lpm.lpm_components.all")
        d.constructs.add("library_lpm")
    elif choice < 0.2:
        d.lines.append("LIBRARY: NO_DEFAULT_LIB")
        d.lines.append("LIBRARY: ieee \"ieee.std_logic_1164.all; ieee.numeric_std.all\"")
        d.constructs.add("library_no_default")
    elif choice < 0.3:
        d.lines.append("LIBRARY: ieee ieee.numeric_std.all")
        d.constructs.add("library_ieee")

    # Parameters of the variation passed on to the sub-modules, and constants for them.
    for _ in range(rng.choice([0, 0, 1, 2])):
        name, _ = names.take(["depth", "mode", "speed", "Style"])
        target = rng.choice([""] + inst_names)
        if rng.random() < 0.5:
            d.lines.append(("PARAMETER: %s NUMERIC %d %s" % (name, rng.randint(0, 99), target)).rstrip())
        else:
            d.lines.append(('PARAMETER: %s STRING "v\\%d" %s' % (name, rng.randint(0, 9), target)).rstrip())
        d.constructs.add("parameter")
    for _ in range(rng.choice([0, 0, 1, 2])):
        name, _ = names.take(["WIDTH", "LPM_TYPE", "Init", "LABEL", "HINT"])
        target = rng.choice([""] + inst_names)
        if rng.random() < 0.5:
            d.lines.append(("CONSTANT: %s NUMERIC %d %s" % (name, rng.randint(1, 64), target)).rstrip())
        else:
            d.lines.append(('CONSTANT: %s STRING "c:\\x%d" %s' % (name, rng.randint(0, 9), target)).rstrip())
        d.constructs.add("constant")

    # Variation inputs.
    ports = []
    for _ in range(rng.randint(1, 4)):
        name, odd = names.take()
        if odd:
            d.constructs.add("odd_name")
        width = rng.choice([0, 1, 2, 4, 8])
        low = rng.choice([0, 0, 0, 2]) if width else 0
        rows = 0
        if width >= 2 and has_2d and rng.random() < 0.3:
            rows, low = 2, 0
            d.constructs.add("port_2d")
        default = "NODEFVAL"
        if rng.random() < 0.15:
            default = rng.choice(["GND", "VCC", "0", "1"])
            d.constructs.add("input_default_" + ("number" if default in "01" else "constant"))
        if low:
            d.constructs.add("port_low_index")
        d.lines.append("USED_PORT: %s %s INPUT %s" % (name, _bounds(rows, 0, width, low), default))
        ports.append((name, rows, width, low))
        d.inputs.append((name, rows, width, low))

    # Sources of bits: variation inputs, then each instance's outputs as it is placed (no loops).
    def pick_source(width, sources, allow_const=True):
        """A driving reference of `width` bits (0: a single bit) and the construct it shows."""
        r = rng.random()
        if allow_const and r < 0.18:
            if width == 0 or rng.random() < 0.3:
                const = rng.choice(["VCC", "GND", "!VCC", "!GND"])
                if width:
                    d.constructs.add("constant_bus_" + const.lstrip("!").lower())
                else:
                    d.constructs.add("constant_bit")
                return "%s 0 0 0 0" % const
            d.constructs.add("constant_number" if width else "constant_number_bit")
            return "%d 0 0 0 0" % rng.choice([0, 1, 5, 165, -1, 300, rng.randint(0, 255)])
        flat = [s for s in sources if s[2] == 0 and s[1]]
        if width and rng.random() < 0.2:
            # One bit drives the whole bus.
            bit = [s for s in sources if s[2] == 0 and s[1] == 0]
            if bit:
                ref, _, _, _ = rng.choice(bit)
                d.constructs.add("bit_drives_bus")
                return "%s 0 0 0 0" % ref
        if width == 0:
            candidates = [s for s in sources if s[2] == 0]
            if not candidates:
                return "GND 0 0 0 0"
            ref, w, _, low = rng.choice(candidates)
            if w == 0:
                return _maybe_invert(ref) + " 0 0 0 0"
            d.constructs.add("slice_bit")
            return "%s 0 0 1 %d" % (_maybe_invert(ref), low + rng.randrange(w))
        fits = [s for s in flat if s[1] >= width]
        if not fits:
            return "%d 0 0 0 0" % rng.randint(0, 255)
        ref, w, _, low = rng.choice(fits)
        start = low + rng.randint(0, w - width)
        if w != width:
            d.constructs.add("slice_source")
        return "%s 0 0 %d %d" % (_maybe_invert(ref), width, start)

    def _maybe_invert(ref):
        if rng.random() < 0.12:
            d.constructs.add("inverted_" + ("submodule_output" if "@" in ref else "input"))
            return "!" + ref
        return ref

    sources = [(name, width, rows, low) for name, rows, width, low in ports]
    for inst, m in zip(inst_names, instances):
        prefix = "@" if use_main_ports and inst == d.main_module else inst + "@"
        for pname, direction, rows, width in layouts[m]:
            if direction != "IN":
                continue
            if prefix == "@":
                d.lines.append("USED_PORT: @%s %s INPUT NODEFVAL" % (pname, _bounds(rows, 0, width, 0)))
                d.constructs.add("main_module_ports")
            if rows:
                whole = [p for p in ports if p[1] == rows and p[2] == width]
                if whole and rng.random() < 0.5:
                    name = whole[0][0]
                    d.lines.append("CONNECT: %s%s %s %s %s" % (prefix, pname, _bounds(rows, 0, width, 0), name,
                                                            _bounds(rows, 0, width, 0)))
                    continue
                d.constructs.add("rows_2d")
                for row in range(rows):
                    src = pick_source(width, sources, allow_const=False)
                    d.lines.append("CONNECT: %s%s %s %s" % (prefix, pname, _bounds(1, row, width, 0), src))
                continue
            if width == 0:
                d.lines.append("CONNECT: %s%s 0 0 0 0 %s" % (prefix, pname, pick_source(0, sources)))
                continue
            feeds = _slices(rng, width, 0) if rng.random() < 0.4 else [(width, 0)]
            if len(feeds) > 1:
                d.constructs.add("slices_feed_submodule")
            for w, low in feeds:
                src = pick_source(0 if w == 1 and rng.random() < 0.5 else w, sources)
                own = "0 0 1 %d" % low if w == 1 else _bounds(0, 0, w, low)
                d.lines.append("CONNECT: %s%s %s %s" % (prefix, pname, own, src))
        for pname, direction, rows, width in layouts[m]:
            if direction == "OUT":
                ref = ("@" if prefix == "@" else inst + "@") + pname
                if prefix == "@":
                    d.lines.append("USED_PORT: @%s %s OUTPUT NODEFVAL" % (pname, _bounds(0, 0, width, 0)))
                sources.append((ref, width, 0, 0))

    # Variation outputs, each bit driven once; the last sources (sub-module outputs) are preferred.
    sub_outputs = [s for s in sources if "@" in s[0]]
    for _ in range(rng.randint(1, 3)):
        name, odd = names.take()
        if odd:
            d.constructs.add("odd_name")
        width = rng.choice([0, 1, 2, 4, 8])
        low = rng.choice([0, 0, 0, 3]) if width else 0
        if low:
            d.constructs.add("port_low_index")
        d.lines.append("USED_PORT: %s %s OUTPUT NODEFVAL" % (name, _bounds(0, 0, width, low)))
        d.outputs.append((name, 0, width, low))
        pool = sub_outputs if sub_outputs and rng.random() < 0.85 else sources
        if width == 0:
            d.lines.append("CONNECT: %s 0 0 0 0 %s" % (name, pick_source(0, pool)))
            continue
        feeds = _slices(rng, width, low) if rng.random() < 0.4 else [(width, low)]
        if len(feeds) > 1:
            d.constructs.add("slices_feed_output")
        for w, l in feeds:
            d.lines.append("CONNECT: %s 0 0 %d %d %s" % (name, w, l, pick_source(w, pool)))
    # The MODULE lines come first, in order (the first names the main module, which "@" references need);
    # the other lines in any order.
    rng.shuffle(d.lines)
    d.lines = ["// soak description %d" % index] + module_lines + d.lines
    # The variation's ports stand in the order of their USED_PORT lines.
    order = {line.split()[1]: i for i, line in enumerate(d.lines) if line.startswith("USED_PORT:")}
    d.inputs.sort(key=lambda port: order[port[0]])
    d.outputs.sort(key=lambda port: order[port[0]])
    return d
