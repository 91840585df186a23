#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""What the page for authors quotes stands in the examples, line for line. Usage: check_snippets.py ROOT"""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
page = root / "docs/writing-a-panel.md"
# One text a file, and every line without the blanks around it: a quotation may begin anywhere in a class.
examples = ["\n" + "\n".join(line.strip() for line in path.read_text().splitlines()) + "\n"
            for path in sorted((root / "examples").rglob("*")) if path.is_file() and path.suffix != ".md"]
quoted = re.findall(r"^```(cpp|json|cmake|xml)\n(.*?)^```$", page.read_text(), re.MULTILINE | re.DOTALL)
if len(quoted) < 5:
    sys.exit(f"{page}: only {len(quoted)} quotations were found")
strangers = [code for _, code in quoted
             if not any("\n" + "\n".join(line.strip() for line in code.splitlines()) + "\n" in text for text in examples)]
for code in strangers:
    print(f"{page}: stands in no example:\n{code}")
sys.exit(len(strangers))
