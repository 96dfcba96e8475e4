#!/usr/bin/env python3
"""Checks that the libraries need nothing but libc, libm and each other.

usage: check_runtime.py LIBRARY...

A shared library may list only libc, libm and libqvncore as needed, and may
leave undefined only symbols that those provide: nothing of the C++ runtime
(libstdc++'s CXXABI and GLIBCXX symbols, mangled C++ names, exception
support). A static archive may leave undefined no C++-runtime symbol that it
does not define itself, so that a C program links it with no extra flags.
"""
import re
import subprocess
import sys

ALLOWED_NEEDED = re.compile(r"^(libc\.so\.6|libm\.so\.6|libqvncore\.so(\.\d+)*)$")
CXX_VERSION = re.compile(r"@+(CXXABI|GLIBCXX|CXXABI_TM|GCC)_")
CXX_NAME = re.compile(r"^(_Z|__cxa_|__gxx_|_Unwind_)")


def run(*cmd):
    return subprocess.run(cmd, check=True, capture_output=True, text=True).stdout


def cxx_runtime(symbol):
    """Whether an undefined symbol comes from the C++ runtime."""
    name, _, version = symbol.partition("@")
    if CXX_VERSION.search(symbol):
        return True
    # __cxa_atexit and __cxa_finalize are libc's and carry its version
    return bool(CXX_NAME.match(name)) and not version.lstrip("@").startswith("GLIBC_")


def check_shared(lib):
    problems = []
    needed = re.findall(r"\(NEEDED\)\s+Shared library: \[([^\]]+)\]", run("readelf", "-d", lib))
    problems += [f"needs {n}" for n in needed if not ALLOWED_NEEDED.match(n)]
    for line in run("nm", "-D", "--undefined-only", lib).splitlines():
        kind, symbol = line.split()[-2:]
        if kind == "U" and cxx_runtime(symbol):  # weak references need no library
            problems.append(f"leaves {symbol} undefined")
    return problems


def check_static(lib):
    defined, undefined = set(), set()
    for line in run("nm", "--defined-only", "-g", lib).splitlines():
        if len(line.split()) == 3:
            defined.add(line.split()[2])
    for line in run("nm", "--undefined-only", lib).splitlines():
        if line.strip() and not line.endswith(":"):
            undefined.add(line.split()[-1])
    return [f"leaves {s} undefined" for s in sorted(undefined - defined) if cxx_runtime(s)]


def main():
    ok = True
    for lib in sys.argv[1:]:
        problems = check_static(lib) if lib.endswith(".a") else check_shared(lib)
        for p in problems[:20]:
            print(f"{lib}: {p}")
        print(f"{lib}: {'needs the C++ runtime' if problems else 'libc and libm only'}")
        ok &= not problems
    sys.exit(0 if ok else 1)


if __name__ == "__main__":
    main()
