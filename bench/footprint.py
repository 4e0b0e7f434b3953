"""What the library costs: the bytes that it adds to a program which uses all of it, and what including it adds to a
compilation.

usage: footprint.py [COMPILER]
"""

import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "footprint"
INCLUDES = {
    "nothing": "",
    "<string> and <functional>": "#include <string>\n#include <functional>\n",
    "qv_commons/qv_commons.h": '#include "qv_commons/qv_commons.h"\n',
}


def run(*command):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit("%s\n%s%s" % (" ".join(map(str, command)), done.stdout, done.stderr))
    return done.stdout


def section_sizes(program):
    """The bytes of each section of the file."""
    lines = run("size", "-A", "-d", program).splitlines()
    fields = [line.split() for line in lines]
    return {row[0]: int(row[1]) for row in fields if len(row) == 3 and row[0].startswith(".")}


def unused_sources(program, library):
    """Sources of the library of which the program holds no function: what was not weighed."""
    pattern = re.compile(r".*?:(?:(\S+\.o):)?[0-9a-f]+ ([A-Za-z]) (.*)")

    def functions(file):
        found = (pattern.fullmatch(line) for line in run("nm", "-A", "-C", "--defined-only", file).splitlines())
        return [(match[1], match[3]) for match in found if match and match[2] == "T"]

    used = {name for _, name in functions(program)}
    members = {member for member, _ in functions(library)}
    return sorted(members - {member for member, name in functions(library) if name in used})


def code_size(compiler, flags=""):
    """Bytes that everything adds to nothing, stripped: of the whole file, and of its code and constants."""
    build = BUILD / ("with" + flags.replace(" ", "") if flags else "plain")
    run("cmake", "-S", ROOT / "bench" / "footprint", "-B", build, "-G", "Ninja", "-DCMAKE_CXX_COMPILER=" + compiler,
        "-DFOOTPRINT_FLAGS=" + flags)
    run("cmake", "--build", build, "--target", "nothing", "everything")
    unused = unused_sources(build / "everything", next(build.rglob("libqv_commons.a")))
    if unused:
        sys.exit("the program does not use:\n" + "\n".join(unused))
    sizes = {}
    for name in ("nothing", "everything"):
        stripped = build / (name + ".stripped")
        shutil.copy(build / name, stripped)
        run("strip", stripped)
        sections = section_sizes(stripped)
        code = sum(sections.get(name, 0) for name in (".text", ".rodata", ".data.rel.ro", ".data", ".plt"))
        sizes[name] = {"file": stripped.stat().st_size, "code": code}
    return {kind: sizes["everything"][kind] - sizes["nothing"][kind] for kind in ("file", "code")}


def include_cost(compiler, rounds=9):
    """For each of INCLUDES, the lines after preprocessing and the median of the seconds to compile them."""
    with tempfile.TemporaryDirectory() as folder:
        sources = {}
        for name, text in INCLUDES.items():
            sources[name] = pathlib.Path(folder, "source%d.cpp" % len(sources))
            sources[name].write_text(text)
        command = [compiler, "-std=c++20", "-I", ROOT]
        lines = {name: len(run(*command, "-E", "-P", source).splitlines()) for name, source in sources.items()}
        seconds = {name: [] for name in sources}
        for _ in range(rounds):
            for name, source in sources.items():
                start = time.perf_counter()
                run(*command, "-c", source, "-o", pathlib.Path(folder, "object.o"))
                seconds[name].append(time.perf_counter() - start)
    return {name: {"lines": lines[name], "seconds": statistics.median(seconds[name])} for name in sources}


def rows(compiler):
    """(what, value, beside what) for a table."""
    for flags in ("", "-fno-exceptions -fno-asynchronous-unwind-tables"):
        size = code_size(compiler, flags)
        yield ("bytes added to a stripped program that uses everything, `%s`" % ("-Os " + flags).strip(),
               "%.1f KB" % (size["file"] / 1024), "code and constants of it: %.1f KB" % (size["code"] / 1024))
    included = include_cost(compiler)
    standard, ours = included["<string> and <functional>"], included["qv_commons/qv_commons.h"]
    yield ("including `qv_commons/qv_commons.h`, time", "%.2f s" % ours["seconds"],
           "%.2f times `<string>` and `<functional>`" % (ours["seconds"] / standard["seconds"]))
    yield ("including `qv_commons/qv_commons.h`, lines", "%d" % ours["lines"],
           "%.2f times `<string>` and `<functional>`" % (ours["lines"] / standard["lines"]))


if __name__ == "__main__":
    for what, value, beside in rows(sys.argv[1] if len(sys.argv) > 1 else "g++"):
        print("%s\n    %s, %s" % (what, value, beside))
