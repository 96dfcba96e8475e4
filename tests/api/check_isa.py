#!/usr/bin/env python3
"""Fails when a library contains an instruction newer than SSE3 outside the
code of its wider build targets.

Disassembles every given library and looks for SSSE3, SSE4, AVX (VEX or EVEX
encoded, any ymm/zmm/k register) and the other post-SSE3 extensions. Functions
of the avx2 and avx512 targets (namespaces qvn::avx2 and qvn::avx512, lambdas
inside them included) may use them; everything else, the exported names and
the dispatching layer of the dispatching build included, runs on any x86-64
processor with SSE3, and the avx2 target's code uses nothing of AVX-512. A
baseline build holds no wider target, so there the check covers every
function.
usage: check_isa.py lib...
"""
import re
import subprocess
import sys

NEWER = re.compile(
    r"\b(pshufb|palignr|phaddw|phaddd|phaddsw|phsubw|phsubd|phsubsw|pmaddubsw|pmulhrsw|"
    r"psign[bwd]|pabs[bwd]|"                                            # SSSE3
    r"pblendw|pblendvb|blendp[sd]|blendvp[sd]|dpp[sd]|insertps|extractps|"
    r"pextr[bdq]|pinsr[bdq]|pmins[bd]|pmaxs[bd]|pminu[wd]|pmaxu[wd]|pmulld|pmuldq|"
    r"pmov[sz]x\w+|packusdw|pcmpeqq|ptest|round[ps][sd]|mpsadbw|phminposuw|movntdqa|"  # SSE4.1
    r"pcmpgtq|pcmp[ei]str[im]|crc32\w*|popcnt|"                         # SSE4.2
    r"lzcnt|tzcnt|andn|bextr|blsi|blsmsk|blsr|bzhi|pdep|pext|mulx|rorx|sarx|shlx|shrx|"  # BMI
    r"v[a-z0-9]+)\b"                                                     # every VEX/EVEX form
    r"|%[yz]mm\d+|%k[0-7]\b")

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


def main():
    bad = 0
    for lib in sys.argv[1:]:
        out = subprocess.run(["objdump", "-d", "--no-show-raw-insn", lib], check=True,
                             capture_output=True, text=True).stdout
        func = "?"
        for line in out.splitlines():
            m = re.match(r"^[0-9a-f]+ <(.+)>:$", line)
            if m:
                func = m.group(1)
                continue
            parts = line.split("\t")
            if len(parts) < 2:
                continue
            insn = parts[-1].strip()
            if (NEWER.search(insn) and not WIDE_TARGET.match(func)) or (AVX2_TARGET.match(func) and AVX512.search(insn)):
                bad += 1
                if bad <= 20:
                    print(f"{lib}: {func}: {insn}")
    print(f"{bad} instructions newer than their target allows")
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
