#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
# Unpacks the PPDs of Debian's packages. Their own programs answer one PPD a call and read the whole archive for it.
"""usage: unpack_ppds.py FOLDER [AT_MOST | --and ROOT]

Writes the PPDs of the packages that the tests need into FOLDER, PACKAGE/PATH each. With AT_MOST, only a spread of them:
all in sorted order, every n-th, with the smallest n that leaves no more than AT_MOST. With --and, also those of the
packages unpacked below ROOT, and those of this machine that stand in plain files or in CUPS's own form. A folder that
was filled this way before is left as it is.

Printers of labels, tapes and receipts are left out: those that take no paper as wide as a postcard.
"""

import base64
import glob
import gzip
import io
import json
import lzma
import os
import re
import subprocess
import sys
import tempfile

DRIVER_FOLDER = "/usr/lib/cups/driver"
DRV_FOLDER = "/usr/share/cups/drv"
PACKAGES = ("foomatic-db-compressed-ppds", "openprinting-ppds")
INDEX = re.compile(r'ppds_compressed_b64 = b"([^"]+)"')
PAPER = re.compile(rb'^\*PaperDimension[^:]*:\s*"\s*([0-9.]+)\s+([0-9.]+)', re.MULTILINE)
POSTCARD_PT = 4.1 * 72


def read_index(driver):
    """The packed PPDs, and where each stands in them: name to (start, length)."""
    with open(driver, encoding="ascii") as program:
        found = INDEX.search(program.read())
    if found is None:
        sys.exit(f"unpack_ppds: {driver} is packed in another way than this program knows")
    index = json.loads(lzma.decompress(base64.b64decode(found.group(1))))
    archive = base64.b64decode(index.pop("ARCHIVE"))
    return archive, {name: (entry[0], entry[1]) for name, entry in index.items()}


def is_narrow(ppd):
    """Whether it has papers, and none of them is as wide as a postcard."""
    widths = [min(float(width), float(height)) for width, height in PAPER.findall(ppd)]
    return bool(widths) and max(widths) < POSTCARD_PT


def write_ppd(ppd, path):
    """Returns whether it was one to write."""
    if is_narrow(ppd):
        return False
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(ppd)
    return True


def write_packed(archive, places, folder):
    """Writes the PPDs at some places, in one pass and without holding them all. Returns how many were left out."""
    position = 0
    left_out = 0
    with lzma.LZMAFile(io.BytesIO(archive)) as packed:
        for name, (start, length) in sorted(places.items(), key=lambda item: item[1]):
            while position < start:
                position += len(packed.read(min(start - position, 1 << 20)))
            text = packed.read(length)
            position += len(text)
            left_out += not write_ppd(text, os.path.join(folder, name))
    return left_out


def write_plain(root, folder):
    """Writes the PPDs that stand in files of their own. Returns how many there are, and how many were left out."""
    names = glob.glob(os.path.join(root, "**"), recursive=True)
    names = [name for name in names if re.search(r"\.ppd(\.gz)?$", name, re.IGNORECASE)]
    left_out = 0
    for name in names:
        with (gzip.open if name.endswith(".gz") else open)(name, "rb") as file:
            path = os.path.join(folder, os.path.relpath(name.removesuffix(".gz"), root))
            left_out += not write_ppd(file.read(), path)
    return len(names), left_out


def write_compiled(drv, folder):
    """Writes the PPDs that a file of CUPS's own form describes. Returns the same."""
    with tempfile.TemporaryDirectory() as compiled:
        subprocess.run(["ppdc", "-d", compiled, drv], stderr=subprocess.DEVNULL, check=False)
        return write_plain(compiled, os.path.join(folder, os.path.basename(drv)))


def write_others(root, folder):
    """Writes the PPDs of unpacked packages, and those that CUPS and its filters bring."""
    found = []
    for base in ("", root):
        found.append(write_plain(f"{base}/usr/share/ppd", os.path.join(folder, "plain")))
        found += [write_compiled(drv, folder) for drv in glob.glob(f"{base}{DRV_FOLDER}/*.drv")]
    for driver in glob.glob(f"{root}{DRIVER_FOLDER}/*"):
        archive, places = read_index(driver)
        found.append((len(places), write_packed(archive, places, os.path.join(folder, os.path.basename(driver)))))
    return sum(count for count, _ in found), sum(left_out for _, left_out in found)


def main(folder, at_most, root):
    done = os.path.join(folder, "unpacked-" + ("with-others" if root else str(at_most or "all")))
    if os.path.exists(done):
        return
    indexes = {package: read_index(os.path.join(DRIVER_FOLDER, package)) for package in PACKAGES}
    names = sorted((package, name) for package, (_, places) in indexes.items() for name in places)
    step = -(-len(names) // at_most) if at_most else 1
    chosen = set(names[::step])
    left_out = 0
    for package, (archive, places) in indexes.items():
        wanted = {name: place for name, place in places.items() if (package, name) in chosen}
        left_out += write_packed(archive, wanted, os.path.join(folder, package))
    others, left_out_others = write_others(root, folder) if root else (0, 0)
    left_out += left_out_others
    said = f"{len(chosen) + others} of {len(names) + others} PPDs, {left_out} of narrow printers left out"
    with open(done, "w", encoding="ascii") as stamp:
        stamp.write(said + "\n")
    print(said)


if __name__ == "__main__":
    arguments = sys.argv[1:]
    if len(arguments) == 3 and arguments[1] == "--and":
        main(arguments[0], 0, arguments[2])
    elif len(arguments) in (1, 2):
        main(arguments[0], int(arguments[1]) if len(arguments) == 2 else 0, "")
    else:
        sys.exit(__doc__)
