"""The HDL soak: random descriptions through plovix, four HDL tools and two simulators.

Usage: run.py N SEED (scripts/hdl-soak.sh sets the paths). For each description plovix writes the variation
in VHDL and in Verilog HDL (with --hdl-text valid when the build has it); GHDL, Icarus Verilog, Verilator
and Yosys read it with sub-module models made from its own component declarations; GHDL and Icarus simulate
both versions with the same input vectors, and the outputs must agree. With PLOVIX_SOAK_COMPARE set to
another plovix, the default text of every description is compared between the two builds instead.
"""

import concurrent.futures
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import generate  # noqa: E402
import models  # noqa: E402

TOOLS = ["ghdl", "iverilog", "verilator", "yosys"]
TOOL_LANGUAGE = {"ghdl": "vhdl", "iverilog": "verilog", "verilator": "verilog", "yosys": "verilog",
                 "plovix-vhdl": "none", "plovix-verilog": "none"}
VECTORS = 12
TIME_LIMIT = 120
PLUGIN = '#!/bin/sh\ncp "$(dirname "$0")/prepared.cnx" "${1%.*}.cnx"\n'


def run(args, cwd):
    """Runs a program without a shell; (exit status, output and errors together)."""
    try:
        done = subprocess.run(args, cwd=cwd, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              stdin=subprocess.DEVNULL, timeout=TIME_LIMIT)
        return done.returncode, done.stdout.decode("utf-8", "replace")
    except subprocess.TimeoutExpired:
        return 124, "timed out after %d s" % TIME_LIMIT


class Soak:
    def __init__(self, plovix, models_dir, root):
        self.plovix = plovix
        self.models_dir = models_dir
        self.root = root
        self.installed = [t for t in TOOLS if shutil.which(t)]
        self.valid = os.environ.get("PLOVIX_SOAK_TEXT", "valid") == "valid" and "--hdl-text" in run(
            [plovix, "--help"], root)[1]
        self.lpm = os.path.join(root, "lpm")
        if "ghdl" in self.installed:
            os.makedirs(self.lpm)
            status, out = run(["ghdl", "-a", "--std=08", "--work=lpm", "--workdir=" + self.lpm,
                               os.path.join(models_dir, "vhdl", "lpm_components.vhd")], root)
            if status != 0:
                sys.exit("hdl-soak: the bundled lpm_components package does not analyse:\n" + out)

    # --- plovix -------------------------------------------------------------------------------------------

    def generate_files(self, plovix, desc, work, language, valid):
        """Runs plovix in batch on the description; (exit status, design path, warning lines)."""
        lib = os.path.join(work, "lib")
        if not os.path.isdir(lib):
            os.makedirs(lib)
            with open(os.path.join(lib, "prepared.cnx"), "w") as f:
                f.write(desc.text())
            with open(os.path.join(lib, "soak-plugin"), "w") as f:
                f.write(PLUGIN)
            os.chmod(os.path.join(lib, "soak-plugin"), 0o755)
            with open(os.path.join(lib, "soak_wizard.lst"), "w") as f:
                f.write("[soak]\n%s=soak-plugin\n" % desc.main_module)
        project = os.path.join(work, language)
        os.makedirs(project)
        design = os.path.join(project, desc.entity + {"vhdl": ".vhd", "verilog": ".v"}[language])
        args = [plovix, "--batch", "--lib-path", lib, "--user-lib-path", "", "--project", project,
                "--modulon", desc.main_module, "--language", language]
        if valid:
            args += ["--hdl-text", "valid"]
        status, out = run(args + [design], project)
        warnings = [line[len("warning: "):] for line in out.splitlines() if line.startswith("warning: ")]
        return status, design, warnings, out

    # --- tools --------------------------------------------------------------------------------------------

    def check_vhdl(self, result, desc, design, vectors):
        folder = os.path.dirname(design)
        text = open(design, encoding="latin-1").read()
        components = models.parse_components(text)
        if components is None:
            result["tools"]["ghdl"] = "FAIL: the soak cannot read a component declaration"
            return None
        uses_lpm = "lpm.lpm_components" in text.lower()
        stubs = "" if uses_lpm else models.VHDL_TYPES_PACKAGE
        stubs += "".join(models.vhdl_model(c, uses_lpm) for c in components)
        write(folder, "stubs.vhd", stubs)
        write(folder, "tb.vhd", models.vhdl_bench(desc.entity, desc.inputs, desc.outputs, vectors, uses_lpm))
        ghdl = ["ghdl", "-a", "--std=08", "--workdir=.", "-P" + self.lpm]
        status, out = run(ghdl + ["stubs.vhd"], folder)
        if status != 0:
            result["tools"]["ghdl"] = "FAIL (sub-module models): " + first_error(out)
            return None
        status, out = run(ghdl + [os.path.basename(design)], folder)
        if status == 0:
            status, out = run(["ghdl", "-e", "--std=08", "--workdir=.", "-P" + self.lpm, desc.entity], folder)
        result["tools"]["ghdl"] = "ok" if status == 0 else "FAIL: " + first_error(out)
        if status != 0:
            return None
        status, out = run(ghdl + ["tb.vhd"], folder)
        if status == 0:
            status, out = run(["ghdl", "--elab-run", "--std=08", "--workdir=.", "-P" + self.lpm, "soak_tb"],
                              folder)
        if status != 0:
            result["sim"] = "VHDL bench failed: " + first_error(out)
            return None
        return sim_lines(out)

    def check_verilog(self, result, desc, design, components, vectors):
        folder = os.path.dirname(design)
        name = os.path.basename(design)
        text = open(design, encoding="latin-1").read()
        params = models.verilog_parameters(text)
        instances = models.verilog_instances(text)
        stubs = ""
        for c in components:
            wanted = set()
            for inst, module in instances.items():
                if module.lower() == c.name.lower():
                    wanted |= params.get(inst, set())
            stubs += models.verilog_model(c, wanted)
        write(folder, "stubs.v", stubs)
        write(folder, "tb.v", models.verilog_bench(desc.entity, desc.inputs, desc.outputs, vectors))
        sv = any(w1 for _, w1, _, _ in desc.inputs) or any(p.rows for c in components for p in c.ports)
        lines = None
        if "iverilog" in self.installed:
            args = ["iverilog"] + (["-g2012"] if sv else []) + ["-o", "sim.vvp", "-s", "soak_tb", name,
                                                                  "stubs.v", "tb.v"]
            status, out = run(args, folder)
            result["tools"]["iverilog"] = "ok" if status == 0 else "FAIL: " + first_error(out)
            if status == 0:
                status, out = run(["vvp", "-n", "sim.vvp"], folder)
                lines = sim_lines(out) if status == 0 else None
                if status != 0:
                    result["sim"] = "Verilog bench failed: " + first_error(out)
        if "verilator" in self.installed:
            # As in plovix --lint: its warnings are fatal, except for pins an instance leaves open on purpose.
            status, out = run(["verilator", "--lint-only", "-Wno-PINMISSING", "--top-module", desc.entity,
                               name, "stubs.v"], folder)
            rejected = status != 0
            result["tools"]["verilator"] = "FAIL: " + first_error(out) if rejected else "ok"
            result["tool_warnings"] += out.count("%Warning")
        if "yosys" in self.installed:
            script = "read_verilog %s%s stubs.v; hierarchy -check -top %s; proc; flatten; check -assert" % (
                "-sv " if sv else "", name, desc.entity)
            status, out = run(["yosys", "-q", "-p", script], folder)
            result["tools"]["yosys"] = "ok" if status == 0 else "FAIL: " + first_error(out)
        return lines

    # --- one description ----------------------------------------------------------------------------------

    def soak_one(self, seed, index):
        desc = generate.generate(random.Random("%s:%d" % (seed, index)), index)
        return self.check(desc, seed, index, "d%d" % index)

    def check(self, desc, seed, index, folder):
        desc.entity = "v%d" % index
        work = os.path.join(self.root, folder)
        os.makedirs(work)
        result = {"index": index, "constructs": sorted(desc.constructs), "tools": {}, "sim": None,
                  "valid": self.valid,
                  "warnings": [], "tool_warnings": 0, "cnx": desc.text()}
        vectors = models.vectors(random.Random("%s:%d:vectors" % (seed, index)), desc.inputs, VECTORS)
        designs = {}
        for language in ("vhdl", "verilog"):
            status, design, warnings, out = self.generate_files(self.plovix, desc, work, language, self.valid)
            result["warnings"] += [(language, w) for w in warnings]
            if status != 0:
                result["tools"]["plovix-" + language] = "FAIL: exit status %d: %s" % (status, first_error(out))
            designs[language] = design
        if any(k.startswith("plovix-") for k in result["tools"]):
            return finish(result, work)
        # A description with two-dimensional ports is offered as THDL instead (batch answers OK).
        if not all(os.path.exists(path) for path in designs.values()):
            thdl = all(os.path.exists(os.path.splitext(path)[0] + ".tdf") for path in designs.values())
            result["sim"] = "written as THDL" if thdl else "no design file written"
            return finish(result, work)
        vhdl_lines = verilog_lines = None
        components = models.parse_components(open(designs["vhdl"], encoding="latin-1").read()) or []
        if "ghdl" in self.installed:
            vhdl_lines = self.check_vhdl(result, desc, designs["vhdl"], vectors)
        verilog_lines = self.check_verilog(result, desc, designs["verilog"], components, vectors)
        if vhdl_lines is not None and verilog_lines is not None:
            if vhdl_lines != verilog_lines:
                result["sim"] = "DISAGREE: first at vector %d: VHDL %s, Verilog %s" % first_difference(
                    vhdl_lines, verilog_lines)
            elif any(c in "xz" for line in vhdl_lines for c in line):
                result["sim"] = "UNDEFINED: both give x or z: %s" % vhdl_lines[0]
            else:
                result["sim"] = "agree"
        return finish(result, work)

    def compare_one(self, other, seed, index):
        """Default text of both builds, byte for byte."""
        desc = generate.generate(random.Random("%s:%d" % (seed, index)), index)
        desc.entity = "v%d" % index
        differences = []
        for language in ("vhdl", "verilog"):
            outputs = []
            for k, plovix in enumerate((self.plovix, other)):
                work = os.path.join(self.root, "c%d-%d" % (index, k))
                status, design, _, _ = self.generate_files(plovix, desc, work, language, False)
                folder = os.path.dirname(design)
                outputs.append((status, {f: open(os.path.join(folder, f), "rb").read()
                                         for f in sorted(os.listdir(folder)) if not f.endswith(".cnx")}))
            if outputs[0] != outputs[1]:
                names = sorted(set(outputs[0][1]) | set(outputs[1][1]))
                differences += [n for n in names if outputs[0][1].get(n) != outputs[1][1].get(n)] or [
                    "exit status %d against %d" % (outputs[0][0], outputs[1][0])]
        for k in range(2):
            shutil.rmtree(os.path.join(self.root, "c%d-%d" % (index, k)), ignore_errors=True)
        return index, differences


def write(folder, name, text):
    with open(os.path.join(folder, name), "w") as f:
        f.write(text)


def first_error(out):
    lines = [line.strip() for line in out.splitlines() if line.strip() and "Exiting due to" not in line]
    for pattern in (r"error|ERROR|can't|cannot", r"%Warning|[Ww]arning"):
        for line in lines:
            if re.search(pattern, line):
                return line[:200]
    return (lines[0] if lines else "(no output)")[:200]


def sim_lines(out):
    return [line.strip() for line in out.splitlines() if re.fullmatch(r"[01xzXZ ]+", line.strip() or "-")]


def first_difference(a, b):
    for i in range(max(len(a), len(b))):
        x = a[i] if i < len(a) else "(none)"
        y = b[i] if i < len(b) else "(none)"
        if x != y:
            return i, x, y
    return 0, "", ""


def finish(result, work):
    failed = [t for t, v in result["tools"].items() if v != "ok"] or (
        [] if result["sim"] in ("agree", "written as THDL", None) else ["sim"])
    if result["sim"] is None and not failed:
        failed = ["sim"]
        result["sim"] = "not simulated"
    result["failed"] = failed
    # A failure is explained when plovix warned about the description in the language of the tool that
    # failed (a simulation: in either): with valid text, by a warning that says valid text does not cover
    # the construct or cannot express it; with the default text, by any.
    def explains(language):
        return any((language is None or language == lang) and (
            not result.get("valid") or re.search(r"\[(not covered yet|no valid text)\]", warning_kind(text)))
            for lang, text in result["warnings"])
    result["explained"] = bool(failed) and all(explains(TOOL_LANGUAGE.get(f)) for f in failed)
    if not failed and not os.environ.get("PLOVIX_SOAK_KEEP"):
        shutil.rmtree(work, ignore_errors=True)
    return result


def failure_kinds(result):
    """What went wrong, with file names, line numbers and names left out: (what failed, message) pairs."""
    kinds = set()
    for what, v in list(result["tools"].items()) + [("sim", result["sim"] or "")]:
        if v and v not in ("ok", "agree", "written as THDL"):
            v = v.replace("n't", "nt")
            v = re.sub(r"v\d+\.(vhd|v):\d+(:\d+)?:?", "", v)
            v = re.sub(r"vector \d+.*", "", v)
            v = re.sub(r"``[^`']*''|`[^`']*'|'[^']*'|\"[^\"]*\"|\\\S+", "NAME", v)
            v = re.sub(r"\b\w*\d\w*\b", "#", v)
            kinds.add((what, v.strip()))
    return kinds


def consistent(lines):
    """Every instance a CONNECT line names has its MODULE line, every variation port its USED_PORT line, and
    every bit of every variation output is driven."""
    instances, ports, outputs = set(), set(), {}
    for t in (line.split() for line in lines):
        if t[0] == "MODULE:":
            instances.add(t[2] if len(t) > 2 else t[1])
        elif t[0] == "USED_PORT:":
            ports.add(t[1])
            if t[6] == "OUTPUT" and not t[1].startswith("@"):
                outputs[t[1]] = set(range(int(t[5]), int(t[5]) + int(t[4]))) if t[4] != "0" else {0}
    driven = {}
    for t in (line.split() for line in lines):
        if t[0] != "CONNECT:":
            continue
        if t[1] in outputs:
            # A bit that drives a bus drives all of it.
            whole = t[4] == "0" or (t[7:11] == ["0", "0", "0", "0"] and not re.fullmatch(r"!?(VCC|GND|-?\d*)", t[6]))
            bits = outputs[t[1]] if whole else set(range(int(t[5]), int(t[5]) + int(t[4])))
            driven.setdefault(t[1], set()).update(bits)
        for ref in (t[1], t[6]):
            ref = ref.lstrip("!")
            if re.fullmatch(r"VCC|GND|-?\d*", ref):
                continue
            inst, at, port = ref.partition("@")
            if at and inst and inst not in instances:
                return False
            if not at and ref not in ports:
                return False
            if at and not inst and "@" + port not in ports:
                return False
    return all(bits <= driven.get(name, set()) for name, bits in outputs.items())


def reduce(soak, result, seed, kinds):
    """A smallest description (line by line) that still fails each of the given ways."""
    found = []
    start = generate.generate(random.Random("%s:%d" % (seed, result["index"])), result["index"])
    for kind in sorted(kinds):
        lines = start.lines[1:]
        step = 0
        changed = True
        while changed:
            changed = False
            for i in range(len(lines)):
                if i >= len(lines) or (lines[i].startswith("MODULE:") and sum(
                        l.startswith("MODULE:") for l in lines) == 1):
                    continue
                trial = lines[:i] + lines[i + 1:]
                if not consistent(trial):
                    continue
                step += 1
                folder = "r%d-%d" % (result["index"], step)
                r = soak.check(generate.Description.from_lines(trial), seed, result["index"], folder)
                shutil.rmtree(os.path.join(soak.root, folder), ignore_errors=True)
                if kind in failure_kinds(r):
                    lines = trial
                    changed = True
        found.append((kind, lines))
    return found


def warning_kind(text):
    """The construct a plovix warning names ("FILE: CONSTRUCT at PLACE (line N ...); WHAT VALID TEXT DOES"),
    with what valid text does about it; the text itself, names and numbers left out, when it has another form."""
    match = re.match(r"[^:]*: (.*?) at (?:port|instance|the name) .*?\); (.*)", text)
    if match:
        remedy = match.group(2)
        remedy = ("valid text" if "writes valid" in remedy else "not covered yet" if "not cover" in remedy
                  else "no valid text" if "no valid" in remedy else remedy[:40])
        return "%s [%s]" % (match.group(1), remedy)
    kind = re.sub(r'"[^"]*"|\'[^\']*\'|`[^`]*`', "…", text)
    kind = re.sub(r"\b\w*\d\w*\b", "#", kind)
    return kind.split(";")[0][:110]


def report(results, soak):
    n = len(results)
    print("\nhdl-soak summary: %d descriptions, %s text" % (n, "valid" if soak.valid else "default"))
    for tool in TOOLS:
        if tool in soak.installed:
            ok = sum(1 for r in results if r["tools"].get(tool) == "ok")
            print("  accepted by %-9s %d/%d" % (tool + ":", ok, n))
        else:
            print("  %s: not installed" % tool)
    agreed = sum(1 for r in results if r["sim"] == "agree")
    print("  agreed (VHDL and Verilog simulations): %d/%d" % (agreed, n))
    thdl = sum(1 for r in results if r["sim"] == "written as THDL")
    print("  written as THDL (two-dimensional ports; no HDL to check): %d/%d" % (thdl, n))
    print("  passed everything: %d/%d" % (sum(1 for r in results if not r["failed"]) - thdl, n - thdl))
    unexplained = [r["index"] for r in results if r["failed"] and not r["explained"]]
    print("  failed without a plovix warning that explains it: %d%s" % (
        len(unexplained), " (d%s)" % ", d".join(map(str, unexplained[:20])) if unexplained else ""))
    broken = [r["index"] for r in results if any(t.startswith("plovix-") for t in r["tools"])
              or (all(v == "ok" for v in r["tools"].values()) and (r["sim"] or "").startswith(("DISAGREE",
                                                                                                 "UNDEFINED")))]
    print("  plovix failed, or the tools accepted both versions and they disagree: %d%s" % (
        len(broken), " (d%s)" % ", d".join(map(str, broken[:20])) if broken else ""))
    kinds = {}
    for r in results:
        for language, text in r["warnings"]:
            kinds.setdefault((language, warning_kind(text)), set()).add(r["index"])
    print("  plovix warnings by kind (descriptions):" + ("" if kinds else " none"))
    for (language, kind), which in sorted(kinds.items(), key=lambda item: -len(item[1])):
        print("    %5d  %s: %s" % (len(which), language, kind))
    constructs = {}
    for r in results:
        for c in r["constructs"]:
            used = constructs.setdefault(c, [0, 0])
            used[0] += 1
            used[1] += bool(r["failed"])
    print("  constructs: used in / failed in (descriptions)")
    for c, (used, failed) in sorted(constructs.items(), key=lambda item: (-item[1][1] / item[1][0], item[0])):
        print("    %-28s %5d %5d" % (c, used, failed))
    # What fails the run: PLOVIX_SOAK_GATE=explained (the default) any failure that no plovix warning
    # explains; =agreement only a plovix failure or two accepted versions that disagree.
    gate = os.environ.get("PLOVIX_SOAK_GATE", "explained")
    return len(broken) if gate == "agreement" else len(unexplained) + len(broken)


def main():
    if len(sys.argv) != 3 or not sys.argv[1].isdigit():
        sys.exit("usage: hdl-soak.sh N SEED")
    count, seed = int(sys.argv[1]), sys.argv[2]
    plovix = os.environ["PLOVIX"]
    models_dir = os.environ["PLOVIX_MODELS_DIR"]
    jobs = int(os.environ.get("PLOVIX_SOAK_JOBS", "1"))
    root = tempfile.mkdtemp(prefix="plovix-soak-")
    try:
        soak = Soak(plovix, models_dir, root)
        other = os.environ.get("PLOVIX_SOAK_COMPARE")
        with concurrent.futures.ThreadPoolExecutor(max_workers=jobs) as pool:
            if other:
                differing = 0
                for index, differences in pool.map(lambda i: soak.compare_one(other, seed, i), range(count)):
                    print("d%d: %s" % (index, "differs: " + ", ".join(differences) if differences else "same"))
                    differing += bool(differences)
                print("\nhdl-soak compare: %d/%d descriptions give the same default text in both builds" % (
                    count - differing, count))
                return 1 if differing else 0
            results = []
            for r in pool.map(lambda i: soak.soak_one(seed, i), range(count)):
                results.append(r)
                status = " ".join("%s:%s" % (t, "ok" if v == "ok" else "FAIL") for t, v in r["tools"].items())
                print("d%d %s sim:%s warnings:%d%s [%s]" % (
                    r["index"], status, (r["sim"] or "-").split(":")[0], len(r["warnings"]),
                    " (explained)" if r["explained"] else "", " ".join(r["constructs"])))
                for what, v in list(r["tools"].items()) + [("sim", r["sim"] or "")]:
                    if v and v != "ok" and v != "agree":
                        print("    %s: %s" % (what, v))
                if r["failed"] and os.environ.get("PLOVIX_SOAK_SHOW"):
                    print("    " + r["cnx"].replace("\n", "\n    "))
            failures = report(results, soak)
            if os.environ.get("PLOVIX_SOAK_REDUCE"):
                seen = set()
                print("\nhdl-soak: the smallest description of each kind of failure")
                for r in results:
                    if not r["failed"] or failure_kinds(r) <= seen:
                        continue
                    for kind, lines in reduce(soak, r, seed, failure_kinds(r) - seen):
                        seen.add(kind)
                        print("\n%s: %s  (from d%d)" % (kind[0], kind[1], r["index"]))
                        print("    " + "\n    ".join(lines))
        return 1 if failures else 0
    finally:
        if not os.environ.get("PLOVIX_SOAK_KEEP"):
            shutil.rmtree(root, ignore_errors=True)
        else:
            print("hdl-soak: work kept in " + root)


if __name__ == "__main__":
    sys.exit(main())
