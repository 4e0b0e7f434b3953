#!/usr/bin/env python3
"""Turns the examples in the public headers' comments into one program that compiles them all.

    tools/extract_examples.py OUT.cpp HEADER...

An example is a run of comment lines indented by four blanks after the slashes, at the top of a
header (before #pragma once). Each becomes a function, in which a memory platform named `platform`
is at hand. A header of class-level operations without an example is an error.
"""
import pathlib
import re
import sys

PROLOGUE = """// Made by tools/extract_examples.py from the headers' own comments.
#include "qv_commons/platform/memory/memory_platform.h"
"""
FUNCTION = """
[[maybe_unused]] static void example{number}(
    [[maybe_unused]] qv_commons::memory::MemoryPlatform& platform) {{
  {{
#line {line} "{path}"
{body}
  }}
}}
"""


def examples(header):
    """Yields (line number, text) for each example at the top of the header."""
    block, start = [], 0
    for number, line in enumerate(header.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("#pragma once"):
            break
        if line.startswith("//     "):
            start = start or number
            block.append(line[7:])
        elif line == "//" and block:
            block.append("")
        elif block:
            yield start, "\n".join(block)
            block, start = [], 0
    if block:
        yield start, "\n".join(block)


def main():
    out, headers = pathlib.Path(sys.argv[1]), [pathlib.Path(a) for a in sys.argv[2:]]
    root = pathlib.Path(__file__).resolve().parent.parent
    includes, functions, without = [], [], []
    for header in headers:
        name = header.resolve().relative_to(root).as_posix()
        includes.append(f'#include "{name}"')
        found = list(examples(header))
        if not found and re.search(r"^class QV_", header.read_text(encoding="utf-8"), re.M):
            without.append(name)
        for line, body in found:
            functions.append(FUNCTION.format(line=line, path=header.resolve().as_posix(),
                                             number=len(functions) + 1, body=body))
    if without:
        sys.exit("no example in " + ", ".join(without))
    out.write_text(PROLOGUE + "\n".join(includes) + "\n" + "".join(functions) + "\nint main() {}\n",
                   encoding="utf-8")
    print(f"{len(functions)} examples of {len(headers)} headers")


if __name__ == "__main__":
    main()
