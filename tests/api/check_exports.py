#!/usr/bin/env python3
"""Compares what the shared libraries export with the names they must export.

usage: check_exports.py libqvnip.so api_names.txt libqvncore.so qvncore.h
"""
import re
import subprocess
import sys


def exported(lib):
    out = subprocess.run(["nm", "-D", "--defined-only", lib], check=True,
                         capture_output=True, text=True).stdout
    # T/t code, D/B/R data; the linker's own markers (A) are not ours
    return {line.split()[-1] for line in out.splitlines()
            if len(line.split()) == 3 and line.split()[1] in "TDBRWVi"}


def compare(lib, want):
    got = exported(lib)
    missing, extra = sorted(want - got), sorted(got - want)
    for n in missing[:20]:
        print(f"{lib}: missing {n}")
    for n in extra[:20]:
        print(f"{lib}: exports {n}, which is not an API name")
    print(f"{lib}: {len(got)} exported, {len(want)} expected")
    return not missing and not extra


def main():
    qvnip, names, qvncore, core_header = sys.argv[1:5]
    want_ip = {line.strip() for line in open(names) if line.strip()}
    want_core = set(re.findall(r"QVN_API\s+[\w\s\*]+?\b(\w+)\s*\(", open(core_header).read()))
    ok = compare(qvnip, want_ip) & compare(qvncore, want_core)
    sys.exit(0 if ok else 1)


if __name__ == "__main__":
    main()
