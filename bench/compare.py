#!/usr/bin/env python3
"""Compares two runs of qvnip_bench --json: our time per pixel before and after.

    bench/compare.py BEFORE.json AFTER.json [--threshold 0.05]

Prints one line per operation and size present in both runs, with our time
(ns per pixel) in each, after/before, and a mark where the change exceeds the
threshold (faster '+', slower '-'); then the geometric mean of after/before.
Rows that failed their output check in either run are listed separately.
Exit status 0; it judges nothing, it shows.
"""
import argparse
import json
import math
import sys


def load(path):
    with open(path) as f:
        data = json.load(f)
    return {(r["op"], r["size"]): r for r in data["rows"]}  # dicts keep the file's order


def main(argv):
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("before")
    ap.add_argument("after")
    ap.add_argument("--threshold", type=float, default=0.05,
                    help="relative change that gets a mark (default 0.05)")
    args = ap.parse_args(argv)
    before = load(args.before)
    after = load(args.after)

    print(f"{'op':<24} | {'size':<9} | {'before':>8} | {'after':>8} | {'after/before':>12}")
    logs, failed = [], []
    for key in [k for k in after if k in before]:  # in the order of the newer run
        b, a = before[key], after[key]
        if b["error"] or a["error"] or b["ours"] is None or a["ours"] is None:
            failed.append((key, b["error"] or "-", a["error"] or "-"))
            continue
        ratio = a["ours"] / b["ours"]
        logs.append(math.log(ratio))
        mark = "+" if ratio < 1 - args.threshold else "-" if ratio > 1 + args.threshold else ""
        print(f"{key[0]:<24} | {key[1]:<9} | {b['ours']:8.4f} | {a['ours']:8.4f} | {ratio:11.2f}{mark or ' '}")
    only = sorted(set(before) ^ set(after))
    for key in only:
        print(f"{key[0]:<24} | {key[1]:<9} | only in {'before' if key in before else 'after'}")
    for key, eb, ea in failed:
        print(f"{key[0]:<24} | {key[1]:<9} | failed: before {eb}; after {ea}")
    if logs:
        print(f"compared {len(logs)}, geomean after/before = {math.exp(sum(logs) / len(logs)):.2f}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
