#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
# Says what a linked file lacks of the hardening; Debian's own checker knows neither libraries' versions nor jumps.
"""usage: check_hardening.py FILE

Prints what the program or library lacks, one fault a line; ends with 1 if there is any.
"""

import platform
import re
import subprocess
import sys

# Marks where an indirect jump may land: endbr64.
JUMP_TARGET = bytes.fromhex("f30f1efa")
# A start-up file of the compiler's may bring a mark or two; the smallest module of ours has twenty.
LEAST_JUMP_TARGETS = 10

# Functions of libc whose place checked forms always take; of others, only where the compiler knows a size.
UNCHECKED = re.compile(r"UND\s+(v?(?:f|s|sn)?printf)\b")


def readelf(path, *flags):
    return subprocess.run(["readelf", "-W", *flags, path], check=True, capture_output=True, text=True).stdout


def faults(path):
    header = readelf(path, "-h")
    segments = readelf(path, "-l")
    dynamic = readelf(path, "-d")
    symbols = readelf(path, "--dyn-syms")
    if not re.search(r"Type:\s+DYN", header):
        yield "not a position-independent executable or library"
    if "GNU_RELRO" not in segments:
        yield "no read-only relocations"
    if not re.search(r"\(FLAGS(_1)?\).*NOW", dynamic):
        yield "symbols are bound late"
    if re.search(r"GNU_STACK.*RWE", segments) or "GNU_STACK" not in segments:
        yield "the stack can be executed"
    if re.search(r"LOAD.*RWE", segments):
        yield "memory that can be written and executed"
    if "(TEXTREL)" in dynamic:
        yield "relocations in the code"
    for path_list in re.findall(r"\((?:RUNPATH|RPATH)\).*\[(.*)\]", dynamic):
        if not all(folder.startswith(("/", "$ORIGIN")) for folder in path_list.split(":")):
            yield "libraries are looked for in the working directory"
    if not re.search(r"UND\s+__stack_chk_fail", symbols):
        yield "no stack protector"
    if unchecked := sorted(set(re.findall(UNCHECKED, symbols))):
        yield "unchecked functions: " + " ".join(unchecked)
    if platform.machine() == "x86_64":
        with open(path, "rb") as file:
            if file.read().count(JUMP_TARGET) < LEAST_JUMP_TARGETS:
                yield "no marks for indirect jumps"


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = list(faults(sys.argv[1]))
    for fault in found:
        print(f"{sys.argv[1]}: {fault}")
    sys.exit(1 if found else 0)
