"""Turns what the benchmarks measured into a table.

usage: report.py BUILD [PAGE]

Prints the medians of BUILD/results.json and how many times as long the others take. With PAGE, a Markdown file, weighs
the library too (footprint.py) and puts everything between the page's two marks.
"""

import collections
import datetime
import json
import pathlib
import re
import statistics
import subprocess
import sys

import footprint

BEGIN, END = "<!-- measured by ./bench.sh: begin -->\n", "<!-- measured by ./bench.sh: end -->\n"
OURS = "QV Commons"
LIMIT = "limit: "
PEERS = {"libfmt-dev": "{fmt}", "libabsl-dev": "Abseil", "libssl-dev": "OpenSSL", "libglib2.0-dev": "GLib",
         "libboost-dev": "Boost", "qt6-base-dev": "Qt", "libicu-dev": "ICU"}


def nanoseconds(measurement):
    """Of one of the parts that the work is made of."""
    if "items_per_second" in measurement:
        return 1e9 / measurement["items_per_second"]
    return measurement["real_time"] * {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[measurement["time_unit"]]


def medians(results):
    """{(work, inputs): {contender: nanoseconds}}"""
    measured = collections.defaultdict(lambda: collections.defaultdict(list))
    for measurement in sorted(results["benchmarks"], key=lambda one: one["family_index"]):
        if measurement["run_type"] != "iteration":
            continue
        work, inputs, contender = measurement["run_name"].split("/")[:3]
        measured[work, inputs][contender].append(nanoseconds(measurement))
    return {contest: {name: statistics.median(times) for name, times in contenders.items()}
            for contest, contenders in measured.items()}


def three_digits(value):
    return "%.3g" % value if value < 1000 else "%.0f" % value


def duration(time):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if time >= size:
            return three_digits(time / size) + " " + unit
    return three_digits(time) + " ns"


def rows(contests):
    """(work, inputs, our time, limit, the others) as texts."""
    for (work, inputs), times in contests.items():
        if OURS not in times:  # left out by the regular expression
            continue
        ours = times[OURS]
        limits = ["%s times %s (%s)" % (three_digits(ours / time), name.removeprefix(LIMIT), duration(time))
                  for name, time in times.items() if name.startswith(LIMIT)]
        others = sorted((time / ours, name) for name, time in times.items()
                        if name != OURS and not name.startswith(LIMIT))
        yield (work, inputs, duration(ours), ", ".join(limits),
               " · ".join("%s %s" % (name, three_digits(ratio)) for ratio, name in others))


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def circumstances(build, results):
    """What the figures depend on, as a sentence."""
    cache = (build / "CMakeCache.txt").read_text()
    compiler = re.search(r"^CMAKE_CXX_COMPILER:\w+=(.*)$", cache, re.MULTILINE)[1]
    flags = re.search(r"^CMAKE_CXX_FLAGS_RELEASE:\w+=(.*)$", cache, re.MULTILINE)[1]
    machine = re.search(r"^Model name:\s*(.*?)\s*$", output("lscpu"), re.MULTILINE)
    installed = dict(line.split() for line in output("dpkg-query", "-W", "-f", "${Package} ${Version}\n", *PEERS).splitlines())
    peers = ", ".join("%s %s" % (name, re.sub(r"^\d+:|[-+].*", "", installed[package])) for package, name in PEERS.items())
    return "%s, %s, `%s`, on %s with %d processors. Peers: %s." % (
        datetime.date.fromisoformat(results["context"]["date"][:10]), output(compiler, "--version").splitlines()[0], flags,
        machine[1] if machine else "an unknown processor", results["context"]["num_cpus"], peers), compiler


def table(header, lines):
    return "".join("| " + " | ".join(cells) + " |\n" for cells in [header, ["---"] * len(header), *lines])


def page_text(contests, sentence, compiler):
    return "\n".join([
        "\nMeasured " + sentence + "\n",
        table(["work", "on", "QV Commons takes", "which is", "the others take, times as long"], rows(contests)),
        table(["cost of the library", "", ""], footprint.rows(compiler))]) + "\n"


def main():
    build = pathlib.Path(sys.argv[1])
    results = json.loads((build / "results.json").read_text() or '{"benchmarks": []}')  # empty if nothing matched
    contests = medians(results)
    if not any(OURS in times for times in contests.values()):
        sys.exit("No contest with %s in it was timed. Its name is work/inputs/contender." % OURS)
    for work, inputs, ours, limit, others in rows(contests):
        print("%s, %s: %s\n%s%s" % (work, inputs, ours, "    %s\n" % limit if limit else "",
                                    "    others, times as long: %s\n" % others if others else ""))
    if len(sys.argv) < 3:
        return
    page = pathlib.Path(sys.argv[2])
    before, rest = page.read_text().split(BEGIN)
    text = page_text(contests, *circumstances(build, results))
    page.write_text(before + BEGIN + text + END + rest.split(END)[1])
    print("The table of %s is new." % page.relative_to(footprint.ROOT))


if __name__ == "__main__":
    main()
