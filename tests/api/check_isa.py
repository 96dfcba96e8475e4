#!/usr/bin/env python3
"""Fails when a library contains an instruction newer than SSE3.

Disassembles every given library and looks for SSSE3, SSE4, AVX (VEX or EVEX
encoded, any ymm/zmm/k register) and the other post-SSE3 extensions.
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
            if NEWER.search(insn):
                bad += 1
                if bad <= 20:
                    print(f"{lib}: {func}: {insn}")
    print(f"{bad} instructions newer than SSE3")
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
