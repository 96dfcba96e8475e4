#!/usr/bin/env python3
"""Expands the exported-name table into every list the build needs.

The table (api/shapes.txt and api/<subsystem>[-<part>].txt) is the one source
of truth for the exported surface. From it come:

  include/qvnip_<subsystem>.h   public declarations (committed; rewritten only
                                when they change)
  include/qvnip.h               the umbrella header
  <out>/api_<sub>_<type>.cpp    one-line export wrappers, sharded by subsystem
                                and first type token so the build parallelises;
                                compiled once per build target (in the
                                dispatching build they define the target's
                                entries, see core/entry.h)
  <out>/dispatch_api.h          the dispatching build's table of entries
  <out>/dispatch_table.cpp      one target's table (compiled per target)
  <out>/dispatch_api.cpp        the exported names of the dispatching build:
                                each jumps through the chosen target's table
  <out>/qvnip.map               linker version script: only API names global
  <out>/api_names.txt           every exported name, one per line
  <out>/api_cases.inc           validation-order cases for the generic API test
  <out>/shards.txt              the wrapper files, for the build system

Table rows are '|'-separated:

  pattern | T | C | I | L | shape | checks | impl

pattern  the name with {T} (type token), {C} (layout token), {I} ('I' in the
         in-place form, empty otherwise)
T, C     space-separated tokens, or '-' when the pattern has none; a two-type
         token such as 8u16s binds {S} and {D} in shapes and impl
I        '-' for the ordinary form, 'I' for the in-place form (shape <shape>.I)
L        'L' adds the _L twin of every name (64-bit sizes and steps); '-' not
shape    a name from shapes.txt
checks   the leading validation order, comma separated, or '-': ptr (every
         pointer, and each entry of an array of plane pointers), ptr(a b)
         (the named pointers), roi, step (below 1 fails), rnd or rounding
         (the QvnRounding argument), hint (the QvnAccuracyHint argument),
         step0 (only zero fails); other tokens are family checks that the
         generic test leaves to the family's own tests
impl     the C++ callable that implements the name, looked up with the
         namespaces qvn and qvn::QVN_TARGET in scope;
         {T} {S} {D} expand to C types, {C} to the layout token, {IP} to
         true/false for the in-place form

Placeholders of shapes: {step}, {roi}, {size} and {point} become int,
QvnRoiSize, int and QvnPoint in 32-bit names, and QvnSizeL, QvnRoiSizeL,
QvnSizeL and QvnPointL in _L names.

'@shape name | return | parameters | call' defines a shape next to the rows
that use it (shapes.txt holds the ones several tables share).
'@check token | words' gives the header's words for a family check token of
the checks column (what fails and its status), next to the rows that use it.
Lines starting with '##' are documentation: they precede the next row's
declarations in the header, followed by a sentence that the checks column
spells out (which arguments are checked, in order, with their status codes,
and what happens to steps that are not checked). A row without '##' lines
gets that sentence alone when its checks differ from the row before. '@include <path>' names a header that the
wrappers of this table file need. '#' starts a comment.
"""
import argparse
import os
import re
import sys
import textwrap

CTYPES = {
    "1u": "Qvn8u", "8u": "Qvn8u", "8s": "Qvn8s", "16u": "Qvn16u", "16s": "Qvn16s",
    "32u": "Qvn32u", "32s": "Qvn32s", "64s": "Qvn64s", "32f": "Qvn32f", "64f": "Qvn64f",
    "32sc": "Qvn32sc", "32fc": "Qvn32fc", "64fc": "Qvn64fc",
}
TYPE_RE = re.compile(r"^(\d+(?:u|s|f)c?)(\d+(?:u|s|f)c?)?$")
SIZES32 = {"step": "int", "roi": "QvnRoiSize", "size": "int", "point": "QvnPoint"}
SIZES64 = {"step": "QvnSizeL", "roi": "QvnRoiSizeL", "size": "QvnSizeL", "point": "QvnPointL"}


class TableError(Exception):
    pass


def split_type(tok):
    m = TYPE_RE.match(tok)
    if not m or m.group(1) not in CTYPES or (m.group(2) and m.group(2) not in CTYPES):
        raise TableError(f"unknown type token {tok!r}")
    return m.group(1), m.group(2) or m.group(1)


def subst(text, values):
    def rep(m):
        key = m.group(1)
        if key not in values:
            raise TableError(f"placeholder {{{key}}} has no value in {text!r}")
        return values[key]
    return re.sub(r"\{(\w+)\}", rep, text)


def split_params(text):
    return [p.strip() for p in text.split(",") if p.strip()] if text.strip() not in ("", "void") else []


class Param:
    """One declared parameter: its C type, name and role in the generic test."""

    def __init__(self, raw, values):
        m = re.match(r"^(.*?)(\w+)\s*(\[\d*\])?$", raw)
        if not m:
            raise TableError(f"cannot read parameter {raw!r}")
        rawtype = m.group(1).strip()
        self.decl = subst(raw, values)
        self.name = m.group(2)
        self.ctype = subst(rawtype, values) + ("*" if m.group(3) else "")
        # an array of pointers (planes): the generic test faults each entry too
        self.entries = int(m.group(3)[1:-1] or 0) if m.group(3) and "*" in rawtype else 0
        if "*" in self.ctype:
            self.role = "ptr"
        elif rawtype == "{step}":
            self.role = "step"
        elif rawtype == "{roi}":
            self.role = "roi"
        elif rawtype in ("QvnRounding", "QvnAccuracyHint"):
            self.role = "mode"  # the generic test also gives it invalid values
        else:
            self.role = "value"


def add_shape(shapes, text, where):
    cols = [c.strip() for c in text.split("|")]
    if len(cols) not in (3, 4):
        raise TableError(f"{where}: a shape has 3 or 4 columns")
    name, ret, params = cols[:3]
    if name in shapes:
        raise TableError(f"{where}: shape {name} is defined twice")
    call = cols[3] if len(cols) == 4 and cols[3] else None
    shapes[name] = (ret, params, call)


def read_shapes(path, tables):
    shapes = {}
    with open(path) as f:
        for n, line in enumerate(f, 1):
            line = line.split("#", 1)[0].strip()
            if line:
                add_shape(shapes, line, f"{path}:{n}")
    for t in tables:
        with open(t) as f:
            for n, line in enumerate(f, 1):
                if line.startswith("@shape"):
                    add_shape(shapes, line[len("@shape"):].split("#", 1)[0], f"{t}:{n}")
    return shapes


class Entry:
    def __init__(self, name, sub, ret, params, call, impl, checks, doc, src, first):
        self.name, self.sub, self.ret = name, sub, ret
        self.params, self.call, self.impl = params, call, impl
        self.checks, self.doc, self.src = checks, doc, src
        self.first = first  # the first name of its table row

    def declaration(self):
        args = ", ".join(p.decl for p in self.params) or "void"
        return f"QVN_API {self.ret} {self.name}({args});"


def read_check_words(tables):
    """The '@check token | words' lines of the tables, added to CHECK_WORDS."""
    for t in tables:
        with open(t) as f:
            for n, line in enumerate(f, 1):
                if line.startswith("@check"):
                    cols = [c.strip() for c in line[len("@check"):].split("|", 1)]
                    if len(cols) != 2 or not cols[0] or not cols[1]:
                        raise TableError(f"{t}:{n}: '@check token | words'")
                    if cols[0] in CHECK_WORDS:
                        raise TableError(f"{t}:{n}: the check {cols[0]!r} has words already")
                    CHECK_WORDS[cols[0]] = cols[1]


def expand_table(path, sub, shapes):
    entries, includes, doc = [], [], []
    with open(path) as f:
        for n, line in enumerate(f, 1):
            where = f"{path}:{n}"
            s = line.strip()
            if s.startswith("##"):
                doc.append(s[2:].strip())
                continue
            if s.startswith("@shape") or s.startswith("@check"):
                continue
            if s.startswith("@include"):
                includes.append(s.split(None, 1)[1].strip())
                continue
            s = s.split("#", 1)[0].strip()
            if not s:
                continue
            cols = [c.strip() for c in s.split("|")]
            if len(cols) != 8:
                raise TableError(f"{where}: a row has 8 columns, found {len(cols)}")
            pattern, tcol, ccol, icol, lcol, shape, checks, impl = cols
            types = tcol.split() if tcol != "-" else [None]
            layouts = ccol.split() if ccol != "-" else [None]
            forms = icol.split()
            if lcol not in ("L", "-"):
                raise TableError(f"{where}: the L column is 'L' or '-'")
            widths = [False, True] if lcol == "L" else [False]
            row_doc = doc
            for t in types:
                for c in layouts:
                    for form in forms:
                        inplace = form == "I"
                        shape_name = shape + (".I" if inplace else "")
                        if shape_name not in shapes:
                            raise TableError(f"{where}: no shape {shape_name!r}")
                        ret, ptext, call = shapes[shape_name]
                        values = {"C": c or "", "IP": "true" if inplace else "false"}
                        if t:
                            s_tok, d_tok = split_type(t)
                            values.update(T=CTYPES[s_tok], S=CTYPES[s_tok], D=CTYPES[d_tok])
                        for wide in widths:
                            values.update(SIZES64 if wide else SIZES32)
                            name = pattern.replace("{T}", t or "").replace("{C}", c or "")
                            name = name.replace("{I}", "I" if inplace else "") + ("_L" if wide else "")
                            if "{" in name:
                                raise TableError(f"{where}: unexpanded name {name}")
                            params = [Param(p, values) for p in split_params(ptext)]
                            callargs = ([a.strip() for a in call.split(",")] if call
                                        else [p.name for p in params])
                            shard = split_type(t)[0] if t else "x"
                            entries.append(Entry(name, sub, subst(ret, values), params, callargs,
                                                 subst(impl, values), checks, row_doc,
                                                 (os.path.basename(path), shard), row_doc is doc))
                            row_doc = []
            doc = []
    return entries, includes


# What each token of the checks column tests, for the header text.
CHECK_WORDS = {
    "ptr": "a null pointer (qvnErrNullPointer)",
    "roi": "a width or height below 1 (qvnErrSize)",
    "step": "a step below 1 (qvnErrStep)",
    "step0": "a step of 0 (qvnErrStep; negative steps are used as given)",
    "rnd": "a rounding mode other than 0, 1, 2 (qvnErrRounding)",
    "rounding": "a rounding mode other than 0, 1, 2 (qvnErrRounding)",
    "hint": "an invalid accuracy hint (qvnErrAlgorithm)",
    "const": "a zero constant in a channel the layout uses (qvnErrDivByZero)",
    "order": "a channel-order entry out of range (qvnErrChannelOrder)",
    "bitoffset": "a bit offset outside 0..7 (qvnErrArgRange)",
    "borders": ("a negative topBorderHeight or leftBorderWidth, or a destination narrower than the source "
                "width plus leftBorderWidth or lower than the source height plus topBorderHeight (qvnErrSize)"),
    "axis": "an axis other than 0, 1, 2, compared unsigned (qvnErrAxis)",
    "square": "a width different from the height (qvnErrSize)",
}
# Family checks that the generic test's default arguments never trip (the
# border is 0 there, so a constant kind's value is not read): the generic
# order goes on past them.
PASSIVE_CHECKS = {"bvalue"}
# Family step checks that a step of 0 or -1 fails like "step".
STEP_CHECKS = {"dstrow", "rowsteps"}
UNCHECKED_STEPS = ("Steps are not checked: a negative step walks the rows upward, 0 repeats one row, "
                   "a step shorter than a row overlaps rows (\"steps\" in qvnip_types.h).")


def checks_note(e):
    """The checks column of e's row as a sentence; empty for '-'."""
    if e.checks == "-":
        return ""
    words = []
    for tok in [t.strip() for t in e.checks.split(",")]:
        m = re.match(r"^ptr\(([\w\s]+)\)$", tok)
        if m:
            words.append(f"a null {' or '.join(m.group(1).split())} (qvnErrNullPointer)")
        elif tok in CHECK_WORDS:
            words.append(CHECK_WORDS[tok])
        else:
            raise TableError(f"{e.name}: no words for the check {tok!r}")
    text = "Checks, in order: " + "; ".join(words) + "."
    checked = {t.strip() for t in e.checks.split(",")}
    # a family check that can fail with qvnErrStep tests the steps its own way
    steps_tested = checked & {"step", "step0"} or any("qvnErrStep" in CHECK_WORDS.get(t, "") for t in checked)
    if any(p.role == "step" for p in e.params) and not steps_tested:
        text += " " + UNCHECKED_STEPS
    return text


def comment(lines):
    return "/* " + "\n * ".join(lines) + " */"


def header_text(sub, entries):
    guard = f"QVNIP_{sub.upper()}_H"
    out = [f"/* qvnIP {sub}: exported functions. Generated from api/{sub}*.txt by tools/apigen.py;",
           " * edit the table, not this file. */",
           f"#ifndef {guard}", f"#define {guard}", "", '#include "qvnip_types.h"', "",
           "QVN_BEGIN_DECLS", ""]
    last_note = None
    for e in entries:
        if e.first:
            note = checks_note(e)
            lines = list(e.doc)
            if note and (e.doc or note != last_note):
                lines += textwrap.wrap(note, 76)
            if lines:
                out.append("")
                out.append(comment(lines))
            last_note = note
        out.append(e.declaration())
    out += ["", "QVN_END_DECLS", "", f"#endif /* {guard} */", ""]
    return "\n".join(out)


def wrapper(e):
    args = ", ".join(p.decl for p in e.params) or "void"
    call = f"{e.impl}({', '.join(e.call)})"
    body = f"{call};" if e.ret == "void" else f"return {call};"
    return (f"QVN_ENTRY {e.ret} {e.name}({args}) {{\n"
            f"    using namespace qvn;\n    using namespace qvn::QVN_TARGET;\n    {body}\n}}\n")


def dispatch_files(entries):
    """The dispatching build's table type, one target's table and the
    exported names that jump through the chosen table."""
    names = [e.name for e in entries]
    table_h = ["// The dispatching build's table of entries. Generated by tools/apigen.py; do not edit.",
               "#ifndef QVN_GEN_DISPATCH_API_H", "#define QVN_GEN_DISPATCH_API_H", "",
               '#include "qvnip.h"', "", "namespace qvn {", "namespace dispatch {", "",
               "// One entry of every exported name, as the chosen target implements it.",
               "struct Table {"]
    table_h += [f"    decltype(&::{n}) {n};" for n in names]
    table_h += ["};", "", "}  // namespace dispatch", "}  // namespace qvn", "", "#endif", ""]
    decls = "".join(f"{e.ret} {e.name}({', '.join(p.decl for p in e.params) or 'void'});\n" for e in entries)
    table_cpp = ["// One target's table of entries. Generated by tools/apigen.py; do not edit.",
                 '#include "dispatch_api.h"', '#include "core/dispatch.h"', '#include "kernels/target.h"', "",
                 "QVN_TARGET_BEGIN", "namespace entry {", decls + "}  // namespace entry", "QVN_TARGET_END", "",
                 "namespace qvn {", "namespace dispatch {", "",
                 "extern const Table QVN_DISPATCH_TABLE;",
                 "const Table QVN_DISPATCH_TABLE = {"]
    table_cpp += [f"    &qvn::QVN_TARGET::entry::{n}," for n in names]
    table_cpp += ["};", "", "}  // namespace dispatch", "}  // namespace qvn", ""]
    api = ["// The exported names of the dispatching build. Generated by tools/apigen.py; do not edit.",
           '#include "dispatch_api.h"', '#include "core/dispatch.h"', ""]
    for e in entries:
        args = ", ".join(p.decl for p in e.params) or "void"
        call = f"qvn::dispatch::table()->{e.name}({', '.join(p.name for p in e.params)})"
        body = f"{call};" if e.ret == "void" else f"return {call};"
        api.append(f"QVN_API {e.ret} {e.name}({args}) {{ {body} }}")
    api.append("")
    return {"dispatch_api.h": "\n".join(table_h), "dispatch_table.cpp": "\n".join(table_cpp),
            "dispatch_api.cpp": "\n".join(api)}


GROUP_KIND = {"ptr": "Ptr", "roi": "Roi", "step": "Step", "step0": "Step0"}


def case_text(e):
    ptrs = [p for p in e.params if p.role == "ptr"]
    steps = [p for p in e.params if p.role == "step"]
    modes = [p for p in e.params if p.role == "mode"]
    groups = []
    for tok in [t.strip() for t in e.checks.split(",")]:
        m = re.match(r"^ptr\(([\w\s]+)\)$", tok)
        if m:
            names = m.group(1).split()
            idx = [i for i, p in enumerate(ptrs) if p.name in names]
            if len(idx) != len(names):
                raise TableError(f"{e.name}: check {tok} names an unknown pointer")
            groups.append(("Ptr", idx))
        elif tok == "ptr":
            groups.append(("Ptr", list(range(len(ptrs)))))
        elif tok in ("step", "step0") or tok in STEP_CHECKS:
            groups.append((GROUP_KIND.get(tok, "Step"), list(range(len(steps)))))
        elif tok in PASSIVE_CHECKS:
            continue
        elif tok == "roi":
            groups.append(("Roi", []))
        elif tok in ("rnd", "rounding", "hint"):
            kind, ctype = ("Hint", "QvnAccuracyHint") if tok == "hint" else ("Rounding", "QvnRounding")
            groups.append((kind, [i for i, p in enumerate(modes) if p.ctype == ctype][:1]))
        # other family checks (orders, constants, ...) stop the generic order here
        else:
            break
    args, pi, si, mi = [], 0, 0, 0
    for p in e.params:
        if p.role == "ptr":
            args.append(f"f.ptr<{p.ctype}>({pi})")
            pi += 1
        elif p.role == "step":
            args.append(f"f.step<{p.ctype}>({si})")
            si += 1
        elif p.role == "roi":
            args.append(f"f.roi<{p.ctype}>()")
        elif p.role == "mode":
            args.append(f"f.mode<{p.ctype}>({mi})")
            mi += 1
        else:
            args.append(f"{p.ctype}{{}}")
    if len(groups) > 6 or len(ptrs) > 8 or any(p.entries > 8 for p in ptrs):
        raise TableError(f"{e.name}: more checks, pointers or entries than the case record holds")
    gtext = ", ".join(f"{{Check::{k}, {len(idx)}, {{{', '.join(map(str, idx))}}}}}" for k, idx in groups)
    entries = ", ".join(str(p.entries) for p in ptrs) if any(p.entries for p in ptrs) else ""
    return (f'{{"{e.name}", {len(groups)}, {{{gtext}}}, {len(steps)}, {{{entries}}},\n'
            f' [](const Faults& f) -> QvnStatus {{ return {e.name}({", ".join(args)}); }}}},\n')


def write_if_changed(path, text):
    try:
        with open(path) as f:
            if f.read() == text:
                return
    except FileNotFoundError:
        pass
    os.makedirs(os.path.dirname(path) or ".", exist_ok=True)
    with open(path, "w") as f:
        f.write(text)


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument("--api", required=True, help="folder with shapes.txt and the tables")
    ap.add_argument("--include", required=True, help="folder of the public headers")
    ap.add_argument("--out", required=True, help="folder for the generated build files")
    ap.add_argument("--check", action="store_true", help="fail if a public header is out of date")
    a = ap.parse_args()

    try:
        tables = sorted(f for f in os.listdir(a.api) if f.endswith(".txt") and f != "shapes.txt")
        shapes = read_shapes(os.path.join(a.api, "shapes.txt"), [os.path.join(a.api, t) for t in tables])
        read_check_words([os.path.join(a.api, t) for t in tables])
        subs, includes, entries = {}, {}, []
        for t in tables:
            sub = re.split(r"[-.]", t, 1)[0]
            got, inc = expand_table(os.path.join(a.api, t), sub, shapes)
            subs.setdefault(sub, []).extend(got)
            includes[t] = inc
            entries += got
    except TableError as err:
        sys.exit(f"apigen: {err}")

    seen = set()
    for e in entries:
        if e.name in seen:
            sys.exit(f"apigen: {e.name} is generated twice")
        seen.add(e.name)

    headers = {f"qvnip_{s}.h": header_text(s, es) for s, es in subs.items()}
    umbrella = ["/* qvnIP: the umbrella header. Generated by tools/apigen.py. */",
                "#ifndef QVNIP_H", "#define QVNIP_H", "", '#include "qvnip_types.h"']
    umbrella += [f'#include "{h}"' for h in sorted(headers)] + ["", "#endif /* QVNIP_H */", ""]
    headers["qvnip.h"] = "\n".join(umbrella)

    if a.check:
        stale = []
        for h, text in headers.items():
            try:
                with open(os.path.join(a.include, h)) as f:
                    if f.read() != text:
                        stale.append(h)
            except FileNotFoundError:
                stale.append(h)
        if stale:
            sys.exit("apigen: out of date: " + ", ".join(stale))
        return
    for h, text in headers.items():
        write_if_changed(os.path.join(a.include, h), text)

    shards = {}
    for e in entries:
        shards.setdefault((e.sub, e.src[1]), []).append(e)
    shard_files = []
    for (sub, tok), es in sorted(shards.items()):
        incs = []
        for e in es:
            for i in includes[e.src[0]]:
                if i not in incs:
                    incs.append(i)
        text = ["// Export wrappers. Generated by tools/apigen.py from api/; do not edit.",
                '#include "qvnip.h"', '#include "core/entry.h"', '#include "kernels/target.h"']
        text += [f'#include "{i}"' for i in incs]
        text += ["", "namespace qvn { namespace QVN_TARGET {} }  // opened even where no family uses it", "",
                 "QVN_ENTRIES_BEGIN", ""]
        text += [wrapper(e) for e in es]
        text += ["QVN_ENTRIES_END", ""]
        fname = f"api_{sub}_{tok}.cpp"
        write_if_changed(os.path.join(a.out, fname), "\n".join(text))
        shard_files.append(fname)

    for fname, text in dispatch_files(entries).items():
        write_if_changed(os.path.join(a.out, fname), text)

    names = sorted(e.name for e in entries)
    write_if_changed(os.path.join(a.out, "api_names.txt"), "".join(n + "\n" for n in names))
    write_if_changed(os.path.join(a.out, "qvnip.map"),
                     "{\n  global:\n" + "".join(f"    {n};\n" for n in names) + "  local:\n    *;\n};\n")
    write_if_changed(os.path.join(a.out, "api_cases.inc"),
                     "// Generated by tools/apigen.py.\n" +
                     "".join(case_text(e) for e in entries if e.checks != "-"))
    write_if_changed(os.path.join(a.out, "shards.txt"), "".join(s + "\n" for s in shard_files))


if __name__ == "__main__":
    main()
