#!/usr/bin/env python3
"""Loads the showcase page in a headless Chromium and fails unless every
picture on it loads and every picture in the folder is on it.

usage: check_page.py OUTDIR

The page marks, once loaded, how many images it has and how many did not
load (attributes data-images and data-broken of its body); the browser
prints the document as it then stands.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile

BROWSERS = (("chromium-headless-shell", []), ("chromium", ["--headless"]))


def main():
    out = os.path.abspath(sys.argv[1])
    page = os.path.join(out, "index.html")
    html = open(page, encoding="utf-8").read()
    shown = re.findall(r'<img src="([^"]+)"', html)
    files = sorted(f for f in os.listdir(out) if f.endswith(".png"))
    problems = [f"{f} is not on the page" for f in files if f not in shown]
    problems += [f"{f} is on the page but not in {out}" for f in shown if f not in files]

    browser = next(((b, extra) for b, extra in BROWSERS if shutil.which(b)), None)
    if browser is None:
        sys.exit("check_page: no Chromium found (scripts/deps.sh browser installs one)")
    with tempfile.TemporaryDirectory() as profile:
        cmd = [browser[0], *browser[1], "--no-sandbox", "--disable-gpu", "--allow-file-access-from-files",
               f"--user-data-dir={profile}", "--virtual-time-budget=10000", "--dump-dom", "file://" + page]
        dom = subprocess.run(cmd, capture_output=True, text=True, timeout=120).stdout
    body = re.search(r"<body([^>]*)>", dom)
    attrs = dict(re.findall(r'data-(images|broken)="(\d+)"', body.group(1) if body else ""))
    if len(attrs) != 2:
        problems.append("the page's check did not run (no data-images and data-broken on its body)")
    else:
        if int(attrs["images"]) != len(shown):
            problems.append(f"the browser found {attrs['images']} images, the page has {len(shown)}")
        if int(attrs["broken"]) != 0:
            problems.append(f"{attrs['broken']} of {attrs['images']} images did not load")
    for p in problems:
        print(f"check_page: {p}")
    if problems or not shown:
        sys.exit(f"check_page: {page} is broken" if shown else f"check_page: {page} shows no pictures")
    print(f"check_page: all {len(shown)} pictures of {page} load in {os.path.basename(browser[0])}")


if __name__ == "__main__":
    main()
