#!/usr/bin/env python3
"""Packs a game folder for the page.

Usage: pack.py GAME_FOLDER BUILD_SUM OUT_FOLDER

OUT_FOLDER/game.pack.gz has data, maps and pictures, and the names of the sounds; OUT_FOLDER/sounds.pack the sounds as
Ogg Vorbis, which browsers read and which takes a tenth of the room. A pack begins with the length of its index in four
bytes, the lowest first. Then comes the index, JSON: an array of [name, begin, length], for sounds [name, begin, length,
rate]; places count from its end. The same folder gives the same bytes.
"""
import gzip
import json
import multiprocessing.pool
import os
import pathlib
import struct
import subprocess
import sys
import tempfile

QUALITY = "3"  # of 0 to 10: what differs lies 40 dB and more below a shot
FOLDERS = ("dat", "map", "pic")


def write_pack(entries):
    """The pack of (name, bytes, what else the index has)."""
    index, body = [], bytearray()
    for name, content, *rest in entries:
        index.append([name, len(body), len(content), *rest])
        body += content
    head = json.dumps(index, separators=(",", ":")).encode()
    return struct.pack("<I", len(head)) + head + bytes(body)


def files_of(game, folder):
    return sorted(path for path in (game / folder).rglob("*") if path.is_file())


def encoded(wave):
    """A sound as Ogg Vorbis, and the rate of its samples."""
    with tempfile.TemporaryDirectory() as work:
        made = os.path.join(work, "made.ogg")
        subprocess.run(["sox", "-R", "-V1", wave, "-C", QUALITY, made], check=True)
        content = pathlib.Path(made).read_bytes()
    rate = subprocess.run(["soxi", "-r", wave], check=True, capture_output=True, text=True).stdout
    return content, int(rate)


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    game, out = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[3])
    if not (game / "dat").is_dir():
        sys.exit(f"{game}: expected a game folder, with dat/ in it")
    out.mkdir(parents=True, exist_ok=True)
    name = lambda path: path.relative_to(game).as_posix()
    waves = files_of(game, "wav")
    files = [(name(path), path.read_bytes()) for folder in FOLDERS for path in files_of(game, folder)]
    files += [(name(path), b"") for path in waves]
    files.append(("build", sys.argv[2].encode()))
    (out / "game.pack.gz").write_bytes(gzip.compress(write_pack(files), 9, mtime=0))
    with multiprocessing.pool.ThreadPool() as pool:
        sounds = pool.map(encoded, waves)
    (out / "sounds.pack").write_bytes(write_pack([(name(path), *sound) for path, sound in zip(waves, sounds)]))


if __name__ == "__main__":
    main()
