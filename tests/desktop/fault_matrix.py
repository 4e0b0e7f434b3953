#!/usr/bin/env python3
"""What the age gate's two flags withstand: each fault with its outcome, as a table.

A host app (age_gate_start) is started under failing system calls, locks, a full disk and kills. A
user who has been told of a refusal must be refused at the next start, or the host must have been
told that this is not certain; nobody under age is let through.
Usage: fault_matrix.py PROGRAM [KILLS [SEED]]
"""
import collections
import os
import random
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROGRAM = sys.argv[1]
UNDER_AGE = "2020"
FILE = "unnamed.defaults"
COPY = FILE + ".copy"
ERRORS = ("EIO", "ENOSPC", "EACCES", "EMFILE")

Start = collections.namedtuple("Start", "outcome told milliseconds")


class Failed(Exception):
    """The app broke a promise."""


def strace(calls, injection, paths):
    """The start of a command line under which that happens to those system calls on those files."""
    command = ["strace", "-f", "-qq", "-o", "/dev/null", "-e", f"trace={calls}",
               "-e", f"inject={calls}:{injection}"]
    for path in paths:
        command += ["-P", str(path)]
    return command


def injected(calls, error, paths):
    return strace(calls, f"error={error}", paths)


def start(folder, under=()):
    """How the app starts: "asked", "allowed" or "refused", and whether its host was told why."""
    begun = time.monotonic()
    done = subprocess.run([*under, PROGRAM, str(folder)], capture_output=True, text=True,
                          check=False, timeout=120)
    told = "settings" in done.stderr or "folder" in done.stderr
    return Start(done.stdout.strip() or "crashed", told, 1000 * (time.monotonic() - begun))


def begin(folder, under=()):
    process = subprocess.Popen([*under, PROGRAM, str(folder), UNDER_AGE], stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                               start_new_session=True)
    if process.stdout.readline() != "ready\n":
        raise Failed("the age gate did not come up")
    return process


def confirm(process):
    process.stdin.write("\n")
    process.stdin.flush()


def refuse(folder, under=()):
    """A refusal up to its picture, then a kill; whether the host was told of a failing write."""
    process = begin(folder, under)
    confirm(process)
    seen = process.stdout.readline() == "told\n"
    os.killpg(process.pid, signal.SIGKILL)  # strace and the app under it
    said = process.stderr.read()
    process.wait()
    if not seen:
        raise Failed("the refusal was not shown")
    return "settings" in said or "folder" in said


def row(fault, outcome, told, note=""):
    print(f"| {fault} | {outcome} | {'told' if told else 'not told'} | {note} |", flush=True)


def refused_user(folder):
    refuse(folder)
    if start(folder).outcome != "refused":
        raise Failed("a refused user is not refused without any fault")


def reading_row(fault, folder, under=(), copy_counts=True):
    """A start of a refused user under a fault: still refused where the copy can be read."""
    result = start(folder, under)
    if copy_counts and result.outcome != "refused":
        raise Failed(f"{fault}: a refused user is {result.outcome}")
    if result.outcome != "refused" and not result.told:
        raise Failed(f"{fault}: a refused user is {result.outcome}, and nobody is told")
    row(fault, result.outcome, result.told)


def reading_faults(folder):
    for error in ERRORS:
        for calls in ("openat", "pread64", "fcntl"):
            reading_row(f"start: `{calls}` on the file gives {error}", folder,
                        injected(calls, error, [folder / FILE]))
    for error in ("EIO", "EACCES", "EMFILE"):
        reading_row(f"start: `openat` on file and copy gives {error}", folder,
                    injected("openat", error, [folder / FILE, folder / COPY]), copy_counts=False)


def failing_folders(folder):
    """A disk that fails while what was left there is looked through, at a start."""
    for name in ("drafts", "handed-over"):
        (folder / name).mkdir()
        (folder / name / "left").touch()
        reading_row(f"start: the second `getdents64` on {name} gives EIO", folder,
                    strace("getdents64", "error=EIO:when=2", [folder / name]))


def locks(folder):
    for names, copy_counts in ((("file", FILE),), True), ((("file", FILE), ("copy", COPY)), False):
        held = [sqlite3.connect(folder / path) for _, path in names]
        for connection in held:
            connection.execute("BEGIN EXCLUSIVE")
        reading_row("start: another process holds the " + " and the ".join(n for n, _ in names),
                    folder, copy_counts=copy_counts)
        for connection in held:
            connection.close()


def damage(folder):
    whole = (folder / FILE).read_bytes()
    for fault, change in (("lost", None), ("empty", b""), ("cut to 5,000 bytes", whole[:5000]),
                          ("cut to 4,096 bytes", whole[:4096]), ("garbage", b"garbage" * 1000)):
        (folder / FILE).unlink(missing_ok=True)
        if change is not None:
            (folder / FILE).write_bytes(change)
        reading_row(f"start: the file is {fault}", folder)


def writing_faults():
    for error in ERRORS:
        for calls in ("openat", "pwrite64", "fdatasync", "unlink", "mkdir"):
            for name in (FILE, COPY):
                with tempfile.TemporaryDirectory() as temporary:
                    folder = Path(temporary) / "data"
                    paths = [folder / name, folder / (name + "-journal")]
                    if calls == "mkdir":
                        paths = [folder]
                    told = refuse(folder, injected(calls, error, paths))
                    after = start(folder)
                    if after.outcome == "allowed" or (after.outcome != "refused" and not told):
                        raise Failed(f"{calls} {error} {name}: {after.outcome}, told: {told}")
                    row(f"refusal: `{calls}` for the {'copy' if name == COPY else 'file'} gives "
                        f"{error}", after.outcome, told, "at the next start without the fault")


def full_disk():
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary)
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=16k", "tmpfs", temporary],
                                 stderr=subprocess.DEVNULL, check=False)
        if mounted.returncode != 0:
            print("| a full disk | left out: needs the right to mount | | |")
            return
        try:
            (folder / "other").write_bytes(b"x" * 12288)
            told = refuse(folder / "data")
            first = start(folder / "data")
            if first.outcome != "refused" and not told:
                raise Failed("a full disk is not told")
            row("refusal on a full disk", first.outcome, told, "at the next start, still full")
        finally:
            subprocess.run(["umount", temporary], check=False)


def is_complete(folder):
    """Whether both files hold both flags. Looks at a copy: looking rolls back."""
    with tempfile.TemporaryDirectory() as temporary:
        look = Path(temporary) / "data"
        shutil.copytree(folder, look)
        for name in (FILE, COPY):
            try:
                rows = sqlite3.connect(look / name).execute("SELECT value FROM bools").fetchall()
            except sqlite3.Error:
                return False
            if rows != [(1,), (1,)]:
                return False
    return True


def at_changes(folder, injection):
    names = (FILE, FILE + "-journal", COPY, COPY + "-journal")
    return strace("pwrite64,fdatasync,fsync,ftruncate,unlink", injection,
                  [folder / name for name in names])


def kill_before(call):
    """Kills the app before that change of the files; the next start, or None if there are fewer."""
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary) / "data"
        process = begin(folder, at_changes(folder, f"signal=KILL:when={call}"))
        confirm(process)
        seen = process.stdout.readline() == "told\n"
        if seen:
            os.killpg(process.pid, signal.SIGKILL)
        process.communicate()
        return None if seen else start(folder).outcome


def kills_at_every_change():
    outcomes = []
    while (outcome := kill_before(len(outcomes) + 1)) is not None:
        row(f"kill before change {len(outcomes) + 1} of the files", outcome, False,
            "the refusal was not yet seen")
        if outcome == "allowed":
            raise Failed(f"killed before change {len(outcomes) + 1}: allowed")
        outcomes.append(outcome)
    if not {"asked", "refused"} <= set(outcomes):
        raise Failed(f"no kill fell between the first change and the last: {outcomes}")


def one_kill(generator):
    """When a random kill landed, whether the refusal had been seen, and the next start's outcome.

    Each change takes 3 ms longer than this disk needs, so that a kill can land between two.
    """
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary) / "data"
        process = begin(folder, at_changes(folder, "delay_enter=3000"))
        confirm(process)
        while not (folder / FILE).exists():
            pass
        time.sleep(generator.uniform(0, 0.06))
        os.killpg(process.pid, signal.SIGKILL)
        seen = "told" in process.stdout.read()
        process.wait()
        when = "after the last write" if is_complete(folder) else "between the writes"
        return when, seen, start(folder).outcome


def kills(number, seed):
    generator = random.Random(seed)
    counts = collections.Counter(one_kill(generator) for _ in range(number))
    for (when, seen, outcome), count in sorted(counts.items()):
        row(f"{count} kills {when}, refusal {'seen' if seen else 'not seen'}", outcome, False,
            "nobody is left to tell")
        if outcome == "allowed" or (seen and outcome != "refused"):
            raise Failed(f"killed {when}: {outcome}")
    between = sum(count for (when, _, _), count in counts.items() if when.startswith("between"))
    print(f"\n{number} kills, {between} of them between the first write and the last; seed {seed}")
    if 3 * between < number:
        raise Failed("too few kills landed between the writes")


def main():
    number = int(sys.argv[2]) if len(sys.argv) > 2 else 30
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else int.from_bytes(os.urandom(4), "big")
    os.environ.setdefault("XDG_RUNTIME_DIR", tempfile.gettempdir())
    print("| fault | next start | the host is | |\n|---|---|---|---|")
    try:
        with tempfile.TemporaryDirectory() as temporary:
            folder = Path(temporary) / "data"
            refused_user(folder)
            reading_faults(folder)
            failing_folders(folder)
            locks(folder)
            damage(folder)
        writing_faults()
        full_disk()
        kills_at_every_change()
        kills(number, seed)
    except Failed as failure:
        sys.exit(f"broken: {failure}")


if __name__ == "__main__":
    main()
