"""Compares the texts of the memory adapter's layouts with those of the desktop's layout files.

usage: memory_layout_oracle.py PROGRAM

See memory_layout_oracle_helper.cpp.
"""

import html
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

BUNDLE = pathlib.Path(__file__).resolve().parents[2] / "qv_commons/resources/QV_Commons_iOS.bundle"


def seen(text):
    """A rich text as it is seen: without its marks."""
    return html.unescape(re.sub("<[^>]*>", "", text)) if text.startswith("<") else text


def texts_of(layout):
    root = ElementTree.parse(BUNDLE / f"{layout}.ui").getroot()
    for widget in root.iter("widget"):
        text = widget.find("property[@name='text']/string")
        text = widget.find("property[@name='html']/string") if text is None else text
        if text is not None and "Button" not in widget.get("class"):
            yield layout, widget.get("name"), seen(text.text)


layouts = ("QV_AgeGateViewController", "QV_AgeGateRefusedViewController")
expected = sorted(text for layout in layouts for text in texts_of(layout))
output = subprocess.run([sys.argv[1]], check=True, capture_output=True, encoding="utf-8").stdout
actual = sorted(tuple(line.split("\t")) for line in output.splitlines())
if len(expected) != 6 or actual != expected:
    print("the layout files:", *expected, "the memory adapter:", *actual, sep="\n  ")
    sys.exit(1)
