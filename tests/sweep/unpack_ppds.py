#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
# Unpacks the PPDs of Debian's PPD packages. Their own programs answer one PPD a call and read the whole archive for it.
"""usage: unpack_ppds.py FOLDER [AT_MOST]

Writes the PPDs into FOLDER, PACKAGE/PATH each. With AT_MOST, only a spread of them: all in sorted order, every n-th,
with the smallest n that leaves no more than AT_MOST. A folder that was filled this way before is left as it is.
"""

import base64
import io
import json
import lzma
import os
import re
import sys

DRIVER_FOLDER = "/usr/lib/cups/driver"
PACKAGES = ("foomatic-db-compressed-ppds", "openprinting-ppds")
INDEX = re.compile(r'ppds_compressed_b64 = b"([^"]+)"')


def read_index(package):
    """The packed PPDs, and where each stands in them: name to (start, length)."""
    with open(os.path.join(DRIVER_FOLDER, package), encoding="ascii") as driver:
        found = INDEX.search(driver.read())
    if found is None:
        sys.exit(f"unpack_ppds: {package} is packed in another way than this program knows")
    index = json.loads(lzma.decompress(base64.b64decode(found.group(1))))
    archive = base64.b64decode(index.pop("ARCHIVE"))
    return archive, {name: (entry[0], entry[1]) for name, entry in index.items()}


def write_ppds(archive, places, folder):
    """Writes the PPDs at some places, in one pass and without holding them all."""
    position = 0
    with lzma.LZMAFile(io.BytesIO(archive)) as packed:
        for name, (start, length) in sorted(places.items(), key=lambda item: item[1]):
            while position < start:
                position += len(packed.read(min(start - position, 1 << 20)))
            text = packed.read(length)
            position += len(text)
            path = os.path.join(folder, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as ppd:
                ppd.write(text)


def main(folder, at_most):
    done = os.path.join(folder, f"unpacked-{at_most or 'all'}")
    if os.path.exists(done):
        return
    indexes = {package: read_index(package) for package in PACKAGES}
    names = sorted((package, name) for package, (_, places) in indexes.items() for name in places)
    step = -(-len(names) // at_most) if at_most else 1
    chosen = set(names[::step])
    for package, (archive, places) in indexes.items():
        wanted = {name: place for name, place in places.items() if (package, name) in chosen}
        write_ppds(archive, wanted, os.path.join(folder, package))
    with open(done, "w", encoding="ascii") as stamp:
        stamp.write(f"{len(chosen)} of {len(names)}\n")
    print(f"{len(chosen)} of {len(names)} PPDs")


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    main(sys.argv[1], int(sys.argv[2]) if len(sys.argv) == 3 else 0)
