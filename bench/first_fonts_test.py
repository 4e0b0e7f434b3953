"""Which font files a process opens up to its first painted age gate: first_fonts_test.py BENCH

Those of the layout, and one of the application's own. Opening one and making it ready takes half a millisecond.
"""
import os
import re
import shutil
import subprocess
import sys

if shutil.which("strace") is None:
    print("skipped: needs strace")
    sys.exit(77)
done = subprocess.run(["strace", "-f", "-e", "trace=openat", sys.argv[1], "--first-screen", "age gate/QV Commons"],
                      env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, capture_output=True, text=True, check=True)
files = set(re.findall(r'"([^"]+\.(?:otf|ttf|ttc|pfb))", [^)]*\) = \d', done.stderr))
print(*sorted(files), sep="\n")
others = [file for file in files if not os.path.basename(file).startswith("Inter-")]
if not files or len(others) > 1:
    sys.exit("expected: Inter's, and at most one other")
