"""Sub-module models and test benches for the HDL soak, the same function in VHDL and in Verilog.

The sub-modules of a variation are modelled from the component declarations of its own VHDL design file. A
model gathers its input bits into one vector x (inputs in declaration order, each from its lowest index up;
a two-dimensional port row by row) and drives output bit i (outputs gathered the same way) with
x[i mod n] xor (x[(i + 1) mod n] and x[(3i + 2) mod n]), so that a bit taken from the wrong place shows.
"""

import re

_COMPONENT = re.compile(r"\bCOMPONENT\s+(\\[^\\]+\\|\w+)\s*(.*?)\bEND\s+COMPONENT\s*;", re.S | re.I)
_GENERICS = re.compile(r"\bGENERIC\s*\((.*?)\)\s*;\s*(?=PORT\b)", re.S | re.I)
_PORTS = re.compile(r"\bPORT\s*\((.*)\)\s*;", re.S | re.I)
_PORT = re.compile(r"^\s*(\\[^\\]+\\|\w+)\s*:\s*(IN|OUT|INOUT|BUFFER)\s+([\w.]+)\s*(?:\((.*)\))?\s*(?::=.*)?$",
                   re.S | re.I)
_RANGE = re.compile(r"(-?\d+)\s+(DOWNTO|TO)\s+(-?\d+)", re.I)


class Port:
    def __init__(self, name, direction, rows, bits):
        self.name = name
        self.direction = direction.upper()
        self.rows = rows  # (high, low) or None
        self.bits = bits  # (high, low) or None

    def cells(self):
        """Index tuples of every bit, lowest first (rows outer)."""
        rows = range(self.rows[1], self.rows[0] + 1) if self.rows else [None]
        bits = range(self.bits[1], self.bits[0] + 1) if self.bits else [None]
        return [(r, b) for r in rows for b in bits]


class Component:
    def __init__(self, name, generics, ports):
        self.name = name
        self.generics = generics  # [(name, type)]
        self.ports = ports


def _split_items(text):
    items, depth, start = [], 0, 0
    for i, ch in enumerate(text):
        if ch == "(":
            depth += 1
        elif ch == ")":
            depth -= 1
        elif ch == ";" and depth == 0:
            items.append(text[start:i])
            start = i + 1
    items.append(text[start:])
    return [item.strip() for item in items if item.strip()]


def parse_components(vhdl_text):
    """The component declarations of a VHDL design text; None when one cannot be read."""
    components = []
    for match in _COMPONENT.finditer(vhdl_text):
        body = match.group(2)
        generics = []
        g = _GENERICS.search(body)
        if g:
            for item in _split_items(g.group(1)):
                name, _, kind = item.partition(":")
                generics.append((name.strip(), kind.split(":=")[0].strip()))
            body = body[g.end():]
        p = _PORTS.search(body)
        if not p:
            return None
        ports = []
        for item in _split_items(p.group(1)):
            m = _PORT.match(item)
            if not m:
                return None
            ranges = _RANGE.findall(m.group(4) or "")
            kind = m.group(3).upper().split(".")[-1]
            if kind == "STD_LOGIC" or not ranges:
                ports.append(Port(m.group(1), m.group(2), None, None))
            elif len(ranges) == 1:
                hi, _, lo = ranges[0]
                ports.append(Port(m.group(1), m.group(2), None, (int(hi), int(lo))))
            else:
                (rh, _, rl), (bh, _, bl) = ranges[:2]
                ports.append(Port(m.group(1), m.group(2), (int(rh), int(rl)), (int(bh), int(bl))))
        components.append(Component(match.group(1), generics, ports))
    # A module declared again (in a block, for an instance with generics of its own): one model with every
    # generic any declaration names.
    merged = {}
    for c in components:
        first = merged.setdefault(c.name.lower(), c)
        known = {name.lower() for name, _ in first.generics}
        first.generics.extend(g for g in c.generics if g[0].lower() not in known)
    return list(merged.values())


def _function_terms(n_in, n_out):
    """For each output bit, the three input indices of its term (None when there is no input)."""
    if n_in == 0:
        return [None] * n_out
    return [(i % n_in, (i + 1) % n_in, (3 * i + 2) % n_in) for i in range(n_out)]


def _gather(ports, direction):
    cells = []
    for port in ports:
        if port.direction == direction:
            cells += [(port, cell) for cell in port.cells()]
    return cells


def _vhdl_ref(port, cell):
    r, b = cell
    if r is not None:
        return "%s(%d, %d)" % (port.name, r, b)
    return port.name if b is None else "%s(%d)" % (port.name, b)


def _vhdl_type(port, two_d_type):
    if port.rows:
        return "%s (%d DOWNTO %d, %d DOWNTO %d)" % ((two_d_type,) + port.rows + port.bits)
    if port.bits:
        return "STD_LOGIC_VECTOR (%d DOWNTO %d)" % port.bits
    return "STD_LOGIC"


def vhdl_model(component, uses_lpm_2d):
    """An entity and architecture of the component's ports and generics."""
    inputs, outputs = _gather(component.ports, "IN"), _gather(component.ports, "OUT")
    generics = []
    for name, kind in component.generics:
        if kind.upper() == "STRING":
            generics.append("%s : STRING := \"\"" % name)
        else:
            generics.append("%s : INTEGER := 0" % name)
    ports = ["%s : %s %s" % (p.name, p.direction, _vhdl_type(p, "STD_LOGIC_2D")) for p in component.ports]
    lines = ["LIBRARY ieee;", "USE ieee.std_logic_1164.all;"]
    lines += ["LIBRARY lpm;", "USE lpm.lpm_components.all;"] if uses_lpm_2d else ["USE work.soak_types.all;"]
    lines.append("ENTITY %s IS" % component.name)
    if generics:
        lines.append("\tGENERIC (%s);" % "; ".join(generics))
    lines.append("\tPORT (%s);" % ";\n\t\t".join(ports))
    lines.append("END %s;" % component.name)
    lines.append("ARCHITECTURE soak OF %s IS" % component.name)
    lines.append("\tSIGNAL soak_x : STD_LOGIC_VECTOR (%d DOWNTO 0);" % max(len(inputs) - 1, 0))
    lines.append("BEGIN")
    for k, (port, cell) in enumerate(inputs):
        lines.append("\tsoak_x(%d) <= %s;" % (k, _vhdl_ref(port, cell)))
    for (port, cell), term in zip(outputs, _function_terms(len(inputs), len(outputs))):
        value = "'0'" if term is None else "soak_x(%d) XOR (soak_x(%d) AND soak_x(%d))" % term
        lines.append("\t%s <= %s;" % (_vhdl_ref(port, cell), value))
    lines.append("END soak;")
    return "\n".join(lines) + "\n"


VHDL_TYPES_PACKAGE = """LIBRARY ieee;
USE ieee.std_logic_1164.all;
PACKAGE soak_types IS
\ttype STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;
END soak_types;
"""


def _verilog_name(name):
    return name[1:-1] + " " if name.startswith("\\") else name


def _verilog_ref(port, cell):
    name = _verilog_name(port.name)
    r, b = cell
    if r is not None:
        return "%s[%d][%d]" % (name, r, b)
    return name if b is None else "%s[%d]" % (name, b)


def verilog_model(component, parameters):
    """A module named as the description names it, with its ports and the parameters set on it."""
    inputs, outputs = _gather(component.ports, "IN"), _gather(component.ports, "OUT")
    lines = ["module %s (%s);" % (_verilog_name(component.name),
                                  ", ".join(_verilog_name(p.name) for p in component.ports))]
    for name in sorted(parameters):
        lines.append("\tparameter %s = 0;" % name)
    for p in component.ports:
        ranges = "".join("[%d:%d]" % r for r in (p.rows, p.bits) if r)
        lines.append("\t%s %s %s;" % ({"IN": "input", "OUT": "output"}.get(p.direction, "inout"), ranges,
                                      _verilog_name(p.name)))
    lines.append("\twire [%d:0] soak_x;" % max(len(inputs) - 1, 0))
    for k, (port, cell) in enumerate(inputs):
        lines.append("\tassign soak_x[%d] = %s;" % (k, _verilog_ref(port, cell)))
    for (port, cell), term in zip(outputs, _function_terms(len(inputs), len(outputs))):
        value = "1'b0" if term is None else "soak_x[%d] ^ (soak_x[%d] & soak_x[%d])" % term
        lines.append("\tassign %s = %s;" % (_verilog_ref(port, cell), value))
    lines.append("endmodule")
    return "\n".join(lines) + "\n"


def verilog_parameters(verilog_text):
    """Instance label -> the names its defparam lines set."""
    found = {}
    for inst, name in re.findall(r"^\s*(\w+)_component\.(\w+)\s*=", verilog_text, re.M):
        found.setdefault(inst.lower(), set()).add(name)
    return found


def verilog_instances(verilog_text):
    """Instance name (lower case) -> module name, from the design's instance lines."""
    return {inst.lower(): module for module, inst in
            re.findall(r"^\t(\S+)\t(\S+)_component \(", verilog_text, re.M)}


# Test benches: the variation's inputs get the same vectors in both languages, and every output is printed
# as one line of characters 0, 1, x and z per vector, most significant bit (and row) first.

def _bit_string(rng, width1, width2):
    return "".join(rng.choice("01") for _ in range(max(width1, 1) * max(width2, 1)))


def vectors(rng, inputs, count):
    return [[_bit_string(rng, w1, w2) for _, w1, w2, _ in inputs] for _ in range(count)]


def vhdl_bench(entity, inputs, outputs, input_vectors, uses_lpm_2d):
    lines = ["LIBRARY ieee;", "USE ieee.std_logic_1164.all;", "USE std.textio.all;"]
    if uses_lpm_2d:
        lines += ["LIBRARY lpm;", "USE lpm.lpm_components.all;"]
    lines += ["ENTITY soak_tb IS END soak_tb;", "ARCHITECTURE t OF soak_tb IS",
              "\tFUNCTION ch(b : STD_LOGIC) RETURN CHARACTER IS BEGIN",
              "\t\tCASE b IS WHEN '0' | 'L' => RETURN '0'; WHEN '1' | 'H' => RETURN '1';"
              " WHEN 'Z' => RETURN 'z'; WHEN OTHERS => RETURN 'x'; END CASE; END ch;"]

    def vtype(w1, w2, low):
        if w1:
            return "STD_LOGIC_2D (%d DOWNTO 0, %d DOWNTO %d)" % (w1 - 1, low + w2 - 1, low)
        if w2:
            return "STD_LOGIC_VECTOR (%d DOWNTO %d)" % (low + w2 - 1, low)
        return "STD_LOGIC"

    # Positional association and numbered signals: the bench does not depend on how a name is written.
    for k, (_, w1, w2, low) in enumerate(inputs + outputs):
        lines.append("\tSIGNAL s%d : %s;" % (k, vtype(w1, w2, low)))
    lines.append("BEGIN")
    lines.append("\tdut : ENTITY work.%s PORT MAP (%s);" % (
        entity, ", ".join("s%d" % k for k in range(len(inputs + outputs)))))
    lines += ["\tPROCESS", "\t\tVARIABLE l : LINE;", "\tBEGIN"]
    for vector in input_vectors:
        for k, ((_, w1, w2, _), bits) in enumerate(zip(inputs, vector)):
            if w1:
                rows = [bits[i:i + w2] for i in range(0, len(bits), w2)]
                value = "(%s)" % ", ".join("(%s)" % ", ".join("'%s'" % b for b in row) for row in rows)
            elif w2:
                value = '"%s"' % bits
            else:
                value = "'%s'" % bits
            lines.append("\t\ts%d <= %s;" % (k, value))
        lines.append("\t\tWAIT FOR 1 ns;")
        for k, (_, w1, w2, _) in enumerate(outputs, len(inputs)):
            if w2:
                lines.append("\t\tFOR i IN s%d'RANGE LOOP write(l, ch(s%d(i))); END LOOP;" % (k, k))
            else:
                lines.append("\t\twrite(l, ch(s%d));" % k)
            lines.append("\t\twrite(l, ' ');")
        lines.append("\t\twriteline(output, l);")
    lines += ["\t\tWAIT;", "\tEND PROCESS;", "END t;"]
    return "\n".join(lines) + "\n"


def verilog_bench(module, inputs, outputs, input_vectors):
    lines = ["module soak_tb;"]

    def ranges(w1, w2, low):
        return ("[%d:0]" % (w1 - 1) if w1 else "") + ("[%d:%d]" % (low + w2 - 1, low) if w2 else "")

    for k, (_, w1, w2, low) in enumerate(inputs + outputs):
        lines.append("\t%s %s s%d;" % ("reg" if k < len(inputs) else "wire", ranges(w1, w2, low), k))
    lines.append("\t%s dut (%s);" % (module, ", ".join("s%d" % k for k in range(len(inputs + outputs)))))
    lines.append("\tinitial begin")
    for vector in input_vectors:
        for k, bits in enumerate(vector):
            lines.append("\t\ts%d = %d'b%s;" % (k, len(bits), bits))
        lines.append("\t\t#1;")
        fmt = "".join("%b " for _ in outputs)
        lines.append('\t\t$display("%s"%s);' % (fmt, "".join(", s%d" % k for k in range(len(inputs), len(inputs + outputs)))))
    lines += ["\tend", "endmodule"]
    return "\n".join(lines) + "\n"
