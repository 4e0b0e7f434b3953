"""What the build knows: how a source is compiled, which test programs link it and how they are run."""
import dataclasses
import json
import os
import pathlib
import shlex
import shutil
import signal
import subprocess
import tempfile
import time

# Whole hosts, displays and killed processes: minutes for what the others notice in seconds.
SLOW = ("routes.", "examples.", "bench.", "desktop.faults", "desktop.age_gate_kill", "desktop.delivery",
        "desktop.xvfb", "desktop.sheet_", "desktop.age_gate_", "desktop.read_aloud", "desktop.fractional",
        "fuzz.", "uikit.ios_host")
PATIENCE = 8  # times what a run takes of itself, and
MOMENT = 5    # seconds
QUICK = 0.05  # seconds of a case that runs before the slower ones


@dataclasses.dataclass
class Program:
    path: pathlib.Path
    link: list
    runs: list          # commands
    environment: dict
    is_of_googletest: bool = False
    seconds: list = dataclasses.field(default_factory=list)  # of each run
    members: set = dataclasses.field(default_factory=set)    # objects and members of archives


class Build:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.entries = {e["file"]: e for e in json.loads((self.folder / "compile_commands.json").read_text())}
        self.known = {}
        listed = self.output("ctest", "--test-dir", str(self.folder), "--show-only=json-v1")
        for test in json.loads(listed)["tests"]:
            self.take(test)

    def output(self, *command):
        return subprocess.run(command, check=True, capture_output=True, text=True, cwd=self.folder).stdout

    def take(self, test):
        """Notes the program of a CTest test: those of GoogleTest whole, in place of case by case."""
        command = test.get("command", [])
        if test["name"].startswith(SLOW):
            return
        paths = [a for a in command if a.startswith(str(self.folder)) and os.access(a, os.X_OK)
                 and pathlib.Path(a).is_file()]
        if len(paths) != 1:
            return
        properties = {p["name"]: p["value"] for p in test["properties"]}
        environment = dict(v.split("=", 1) for v in properties.get("ENVIRONMENT", []))
        program = self.known.setdefault(paths[0], Program(pathlib.Path(paths[0]), [], [], environment))
        if command[0] == paths[0] and any(a.startswith("--gtest_filter") for a in command):
            command = [paths[0], "--gtest_fail_fast"]
            program.is_of_googletest = True
        if command not in program.runs:
            program.runs.append(command)

    def compile_command(self, source, mutant, output):
        """That compiles `mutant` in the place of `source`."""
        arguments = shlex.split(self.entries[str(source)]["command"])
        at = arguments.index("-o")
        kept = arguments[:at] + ["-w", "-g0", "-O0"]
        return kept + ["-o", str(output), "-c", str(mutant)]

    def object_of(self, source):
        arguments = shlex.split(self.entries[str(source)]["command"])
        return arguments[arguments.index("-o") + 1]

    def programs_of(self, source):
        """The programs that link the source, nearest folder first, quickest then. What isn't the desktop's
        has to be noticed without it."""
        name = self.object_of(source)
        is_desktops = "desktop" in source.parts
        holder = self.output("ninja", "-t", "query", name).split("outputs:")[1].split()[0]
        member = f"{holder}({pathlib.Path(name).name})"
        found = []
        for program in self.known.values():
            if not program.link:
                program.link = self.link_command(program)
            if not is_desktops and any("commons_desktop" in a for a in program.link):
                continue
            if (name in program.link or holder in program.link) and self.members_of(program) & {name, member}:
                self.measure(program)
                found.append(program)
        return sorted(found, key=lambda p: (source.parent.name not in p.path.parts, sum(p.seconds)))

    def members_of(self, program):
        """What the linker takes into the program, as it tells it."""
        if not program.members:
            with tempfile.TemporaryDirectory() as folder:
                command = [*program.link, "-fuse-ld=lld", "-Wl,--trace"]
                command[command.index("-o") + 1] = str(pathlib.Path(folder) / "program")
                program.members = set(self.output(*command).splitlines())
        return program.members

    def link_command(self, program):
        target = str(program.path.relative_to(self.folder))
        try:
            last = self.output("ninja", "-t", "commands", "-s", target).strip()
        except subprocess.CalledProcessError:
            return ["none"]
        parts = [shlex.split(part) for part in last.split("&&") if f" -o {target} " in part]
        return parts[0] if parts else ["none"]

    def measure(self, program):
        if program.seconds:
            return
        program.runs = [run for command in program.runs for run in slow_cases_last(program, command)]
        for command in program.runs:
            start = time.monotonic()
            passed, said = run(program, command, program.path, 600)
            if not passed:
                raise SystemExit(f"mutate: {program.path} fails without any change:\n{said[-2000:]}")
            program.seconds.append(time.monotonic() - start)

    def linked(self, program, source, mutated, folder):
        """The program with the mutated object in it, in a copy of the folder that it lies in; None where
        it can't be linked."""
        name = self.object_of(source)
        place = pathlib.Path(folder) / program.path.parent.name
        if program.path.parent.suffix == ".app":  # whose main bundle is around it
            place.mkdir()
            for entry in program.path.parent.iterdir():
                if entry != program.path:
                    (place / entry.name).symlink_to(entry)
        else:
            place.mkdir(exist_ok=True)
        output = place / program.path.name
        command = [str(mutated) if a == name else a for a in program.link]
        at = command.index("-o")
        command[at + 1] = str(output)
        if str(mutated) not in command:  # before the archive, whose own object is not needed then
            command.insert(at, str(mutated))
        command.insert(1, "-fuse-ld=lld")
        done = subprocess.run(command, cwd=self.folder, capture_output=True, text=True, check=False)
        return output if done.returncode == 0 else None

    def notices(self, program, source, mutated):
        with tempfile.TemporaryDirectory() as folder:
            path = self.linked(program, source, mutated, folder)
            if path is None:
                return True
            return not all(run(program, command, path, seconds * PATIENCE + MOMENT)[0]
                           for command, seconds in zip(program.runs, program.seconds))


def slow_cases_last(program, command):
    """The command as one run of the quick cases and one of the others, if it runs all of GoogleTest's."""
    if not program.is_of_googletest or command != [str(program.path), "--gtest_fail_fast"]:
        return [command]
    with tempfile.TemporaryDirectory() as folder:
        report = pathlib.Path(folder) / "report.json"
        run(program, [*command, f"--gtest_output=json:{report}"], program.path, 600)
        if not report.is_file():
            return [command]
        slow = [f"{case['classname']}.{case['name']}" for suite in json.loads(report.read_text())["testsuites"]
                for case in suite["testsuite"] if float(case["time"].rstrip("s")) > QUICK]
    if not slow:
        return [command]
    return [[*command, "--gtest_filter=-" + ":".join(slow)], [*command, "--gtest_filter=" + ":".join(slow)]]


RUNNING = set()  # the homes of the runs


def end_all_of(home):
    """Ends whatever has been started with that home, in whichever group and session it is."""
    mark = f"HOME={home}".encode()
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            if mark in (process / "environ").read_bytes().split(b"\0"):
                os.kill(int(process.name), signal.SIGKILL)
        except OSError:
            pass  # gone meanwhile, or somebody else's


def end_with_all(*_):
    """Ends this process and all that its runs have started: what to do at a signal."""
    for home in list(RUNNING):
        end_all_of(home)
    os._exit(1)


def run(program, command, path, limit):
    """Whether the program's command passes within so many seconds, made with the file at `path`, and what
    it said."""
    with tempfile.TemporaryDirectory() as home:
        RUNNING.add(home)
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", **program.environment,
                       "HOME": home, "TMPDIR": home, "XDG_RUNTIME_DIR": home}
        process = subprocess.Popen([str(path) if a == str(program.path) else a for a in command],
                                   env=environment, cwd=home, stdin=subprocess.DEVNULL, text=True,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT, errors="replace",
                                   start_new_session=True)
        passed, said = False, ""
        try:
            said = process.communicate(timeout=limit)[0]
            passed = process.returncode == 0
        except subprocess.TimeoutExpired:
            pass
        finally:
            end_all_of(home)
            process.stdout.close()
            process.wait()
            RUNNING.discard(home)
        return passed, said
