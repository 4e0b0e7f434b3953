"""What the library costs: the bytes that it adds to a program which uses all of it, and what including it adds to a
compilation.

usage: footprint.py [--check] [COMPILER]

With --check, what can be counted is held against its limit, and nothing is timed.
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
LARGEST = 44 * 1024
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

    def functions(file, kinds):
        found = (pattern.fullmatch(line) for line in run("nm", "-A", "-C", "--defined-only", file).splitlines())
        return [(match[1], match[3]) for match in found if match and match[2] in kinds]

    used = {name for _, name in functions(program, "Tt")}  # what a library hides is local there
    offered = functions(library, "T")
    members = {member for member, _ in offered}
    return sorted(members - {member for member, name in offered if name in used})


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
        code = sum(sections.get(section, 0) for section in (".text", ".rodata", ".data.rel.ro", ".data", ".plt"))
        sizes[name] = {"file": stripped.stat().st_size, "code": code}
    return {kind: sizes["everything"][kind] - sizes["nothing"][kind] for kind in ("file", "code")}


def preprocessed_lines(compiler, source):
    return len(run(compiler, "-std=c++20", "-I", ROOT, "-E", "-P", source).splitlines())


def include_cost(compiler, rounds=9):
    """For each of INCLUDES, the lines after preprocessing and the median of the seconds to compile them."""
    with tempfile.TemporaryDirectory() as folder:
        sources = {}
        for name, text in INCLUDES.items():
            sources[name] = pathlib.Path(folder, "source%d.cpp" % len(sources))
            sources[name].write_text(text)
        lines = {name: preprocessed_lines(compiler, source) for name, source in sources.items()}
        seconds = {name: [] for name in sources}
        for _ in range(rounds):
            for name, source in sources.items():
                start = time.perf_counter()
                run(compiler, "-std=c++20", "-I", ROOT, "-c", source, "-o", pathlib.Path(folder, "object.o"))
                seconds[name].append(time.perf_counter() - start)
    return {name: {"lines": lines[name], "seconds": statistics.median(seconds[name] or [0])} for name in sources}


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


def check(compiler):
    size = code_size(compiler)["code"]
    lines = {name: cost["lines"] for name, cost in include_cost(compiler, rounds=0).items()}
    standard, ours = lines["<string> and <functional>"], lines["qv_commons/qv_commons.h"]
    print("%d bytes of code and constants, at most %d" % (size, LARGEST))
    print("%d lines to include, at most 1.5 times %d" % (ours, standard))
    return 0 if size <= LARGEST and ours <= 1.5 * standard else 1


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--check"]
    compiler = arguments[0] if arguments else "g++"
    if "--check" in sys.argv:
        return check(compiler)
    for what, value, beside in rows(compiler):
        print("%s\n    %s, %s" % (what, value, beside))
    return 0


if __name__ == "__main__":
    sys.exit(main())
