#!/usr/bin/env python3
"""Makes one page of all the site's files, which opens by a double click.

Usage: one_file.py SITE_FOLDER OUT.html
"""
import base64
import gzip
import json
import pathlib
import re
import sys

DATA = {"game.pack.gz": "application/gzip", "sarnoth.wasm.gz": "application/gzip",
        "sounds.pack": "application/octet-stream"}


def data_address(content, kind):
    return f"data:{kind};base64,{base64.b64encode(content).decode()}"


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    site = pathlib.Path(sys.argv[1])
    page = (site / "index.html").read_text()
    # A module within a page has no folder to find others in: each gets a bare name, and a map says what it stands for.
    modules = {}
    for path in sorted(site.glob("*.js")):
        if path.name == "service_worker.js":
            continue
        text = re.sub(r'from "\./([a-z_]+\.js)"', r'from "sarnoth/\1"', path.read_text())
        modules[f"sarnoth/{path.name}"] = data_address(text.encode(), "text/javascript")
    content = {"game.pack.gz": (site / "game.pack.gz").read_bytes(),
               "sarnoth.wasm.gz": gzip.compress((site / "sarnoth.wasm").read_bytes(), 9, mtime=0),
               "sounds.pack": (site / "sounds.pack").read_bytes()}
    files = {name: data_address(content[name], kind) for name, kind in DATA.items()}
    icon = data_address((site / "icon48.png").read_bytes(), "image/png")
    scripts = (f'<script>globalThis.sarnothFiles = {json.dumps(files)};</script>\n'
               f'<script type="importmap">{json.dumps({"imports": modules})}</script>\n'
               '<script type="module">import "sarnoth/main.js";</script>')
    for old, new in (('<link rel="icon" href="icon48.png">', f'<link rel="icon" href="{icon}">'),
                     ('<link rel="manifest" href="manifest.webmanifest">\n', ""),
                     (re.search('(<link rel="(module)?preload.*\n)+', page)[0], ""),
                     ('<link rel="stylesheet" href="page.css">', f'<style>\n{(site / "page.css").read_text()}</style>'),
                     ('<script type="module" src="main.js"></script>', scripts)):
        if page.count(old) != 1:
            sys.exit(f"index.html: expected once: {old}")
        page = page.replace(old, new)
    pathlib.Path(sys.argv[2]).write_text(page)


if __name__ == "__main__":
    main()
