#!/usr/bin/env python3
"""Turns the `//` comments of a header into ones that Doxygen reads, line by line: FILTER HEADER.

The comment that opens a header is that of the file. Examples in it, indented by four or more
spaces, stay verbatim as Markdown has them. A comment behind code belongs to that code.
"""
import re
import sys


def filtered(text):
    lines = []
    in_opening = True
    for number, line in enumerate(text.split("\n")):
        comment = re.match(r"( *)//(?!/)(.*)$", line)
        if comment:
            if in_opening and number == 0:
                lines.append("/// @file")
            lines.append(f"{comment.group(1)}///{comment.group(2)}")
            continue
        in_opening = False
        lines.append(re.sub(r'(?<=[;,{}\w])  ?// (?=[^"]*$)', "  ///< ", line))
    return "\n".join(lines)


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as file:
        sys.stdout.write(filtered(file.read()))
