#!/usr/bin/env python3
"""Instruction checks of the built libraries, from their disassembly.

1. No instruction beyond the target of the code that holds it. Outside the
   avx2 and avx512 targets' code (namespaces qvn::avx2 and qvn::avx512, lambdas
   inside them included), so in the exported names, the dispatching layer and
   every function of a baseline build, nothing newer than SSE3: SSSE3, SSE4,
   AVX (VEX or EVEX encoded, any ymm/zmm/k register) and the other post-SSE3
   extensions. The avx2 target's code uses nothing of AVX-512.
2. Every non-temporal store is fenced before the exported function that issued
   it returns. Code is followed through direct calls, jumps and tail calls,
   however the compiler split or inlined it: a function "returns streaming"
   when a path from a non-temporal store (or from a call of a function that
   returns streaming) reaches a return without an sfence or mfence. No
   exported function, and no function that nothing calls directly (code of
   another target, reached through a pointer), may return streaming.
usage: check_isa.py lib...
"""
import bisect
import re
import subprocess
import sys

NEWER = re.compile(
    r"pshufb|palignr|phaddw|phaddd|phaddsw|phsubw|phsubd|phsubsw|pmaddubsw|pmulhrsw|"
    r"psign[bwd]|pabs[bwd]|"                                            # SSSE3
    r"pblendw|pblendvb|blendp[sd]|blendvp[sd]|dpp[sd]|insertps|extractps|"
    r"pextr[bdq]|pinsr[bdq]|pmins[bd]|pmaxs[bd]|pminu[wd]|pmaxu[wd]|pmulld|pmuldq|"
    r"pmov[sz]x\w+|packusdw|pcmpeqq|ptest|round[ps][sd]|mpsadbw|phminposuw|movntdqa|"  # SSE4.1
    r"pcmpgtq|pcmp[ei]str[im]|crc32\w*|popcnt|"                         # SSE4.2
    r"lzcnt|tzcnt|andn|bextr|blsi|blsmsk|blsr|bzhi|pdep|pext|mulx|rorx|sarx|shlx|shrx|"  # BMI
    r"v[a-z0-9]+")                                                       # every VEX/EVEX form
NEWER_REGISTER = re.compile(r"%[yz]mm\d+|%k[0-7]\b")
HEADER = re.compile(r"^([0-9a-f]+) <(.+)>:$", re.M)
# address, mnemonic (after prefixes), a direct branch target and its symbol
INSN = re.compile(r"^ *([0-9a-f]+):\t(?:(?:rep|repz|repnz|lock|bnd|notrack|data16|cs|ds) )*([a-z][a-z0-9]*)"
                  r"(?: +([0-9a-f]+) <([^>]*)>)?", re.M)
# calls that do not return (sanitizer reports, failed checks): their paths end
NORETURN = re.compile(r"__asan_report|__ubsan_handle_\w+_abort|__stack_chk_fail|\babort\b|__assert_fail|__cxa_throw")
STREAM = re.compile(r"v?(movnt(dq|ps|pd|i|q|sd|ss)|maskmovdqu|maskmovq)")
BRANCH = re.compile(r"\t(?:j\w+|call) +([0-9a-f]+) <")


def functions(text):
    heads = list(HEADER.finditer(text))
    ends = [h.start() for h in heads[1:]] + [len(text)]
    return [(int(h.group(1), 16), h.group(2), text[h.end():end]) for h, end in zip(heads, ends)]


# Mangled names of functions in (or local to functions in) a wider target's namespace.
WIDE_TARGET = re.compile(r"^_ZZ?N[rVK]*3qvn(4avx2|6avx512)")
AVX2_TARGET = re.compile(r"^_ZZ?N[rVK]*3qvn4avx2")

# What the avx2 target must not use either: AVX-512 registers and the AVX-512
# instructions that also exist on 16- and 32-byte vectors.
AVX512 = re.compile(
    r"%zmm\d+|%k[0-7]\b|\b(vpternlog[dq]|vperm[it]2\w+|vpmovm2\w|vpmov\w2m|vpmov(us|s)?[qdw][dwb]|"
    r"vpcompress\w|vpexpand\w|vcompressp\w|vexpandp\w|vpermw|vpsllvw|vpsravw|vpsrlvw|vpsraq|"
    r"vrcp14\w+|vrsqrt14\w+|vgetexp\w+|vgetmant\w+|vrndscale\w+|vfixupimm\w+|vscalef\w+|"
    r"vcvt\w*[qu][qd]\w*|vpabsq|vp(min|max)[su]q|vpmullq|vblendm\w+|vpblendm\w|vpcmpu?[bwdq]|vpconflict\w)\b")


def newer(funcs):
    for _, name, body in funcs:
        if AVX2_TARGET.match(name):
            too_new = [line for line in body.splitlines() if INSN.match(line) and AVX512.search(line)]
        elif WIDE_TARGET.match(name):
            continue
        else:
            bad = {m[1] for m in INSN.findall(body) if NEWER.fullmatch(m[1])}
            if not bad and not NEWER_REGISTER.search(body):
                continue
            too_new = [line for line in body.splitlines() if (m := INSN.match(line))
                       and (m.group(2) in bad or NEWER_REGISTER.search(line))]
        for line in too_new:
            yield f"{name}: {line.split(chr(9))[-1].strip()}"


def returning_streaming(funcs, exported):
    starts = [s for s, _, _ in funcs]
    entry = set(starts)
    callers, tainted = {}, set()  # tainted: a non-temporal store can be reached from it
    for start, _, body in funcs:
        for t in ({int(t, 16) for t in BRANCH.findall(body)} & entry) - {start}:
            callers.setdefault(t, set()).add(start)
        if any(STREAM.fullmatch(m[1]) for m in INSN.findall(body)):
            tainted.add(start)
    work = list(tainted)
    while work:
        for caller in callers.get(work.pop(), ()):
            if caller not in tainted:
                tainted.add(caller)
                work.append(caller)

    code = {}  # address -> (mnemonic, direct target, the next address when execution falls through)

    def insn(addr):
        if addr not in code:
            body = funcs[bisect.bisect_right(starts, addr) - 1][2]
            found = [(int(a, 16), m, int(t, 16) if t else None, n) for a, m, t, n in INSN.findall(body)]
            for k, (a, m, t, n) in enumerate(found):
                ends = m in ("ret", "retq", "jmp", "ud2", "hlt") or (m == "call" and NORETURN.search(n))
                code[a] = (m, t, None if ends or k + 1 == len(found) else found[k + 1][0])
        return code.get(addr)

    summary = {}

    def streams(start):  # whether a call of start may return with a store unfenced
        if start not in summary:
            summary[start] = False  # recursion: fenced until shown otherwise
            seen, todo = set(), [(start, False)]
            while todo and not summary[start]:
                addr, pending = todo.pop()
                i = insn(addr) if addr >= starts[0] else None
                if i is None or (addr, pending) in seen:
                    continue
                seen.add((addr, pending))
                mnem, target, nxt = i
                pending = (pending or bool(STREAM.fullmatch(mnem)) or (mnem == "call" and target in tainted
                           and streams(target))) and mnem not in ("sfence", "mfence")
                if mnem in ("ret", "retq") or (mnem == "jmp" and target is None):
                    summary[start] = pending
                elif mnem.startswith("j") and target is not None:
                    todo.append((target, pending))
                if nxt is not None:
                    todo.append((nxt, pending))
        return summary[start]

    return [name for start, name, _ in funcs
            if start in tainted and (name in exported or start not in callers) and streams(start)]


def run(*args):
    return subprocess.run(args, check=True, capture_output=True, text=True).stdout


def main():
    bad = 0
    for lib in sys.argv[1:]:
        funcs = functions(run("objdump", "-d", "--no-show-raw-insn", lib))
        exported = {line.split()[-1] for line in run("objdump", "-T", lib).splitlines() if " DF .text" in line}
        found = list(newer(funcs))[:20] + [f"{name} may return after a non-temporal store without a store fence"
                                           for name in returning_streaming(funcs, exported)]
        for f in found:
            print(f"{lib}: {f}")
        bad += len(found)
    print(f"{bad} instructions beyond their target or unfenced non-temporal stores")
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
