"""Compares the duration texts with Python's own arithmetic on unbounded integers.

usage: duration_oracle.py PROGRAM

PROGRAM is asked for thousands of durations and texts at once; see duration_oracle_helper.cpp.
"""

import random
import re
import subprocess
import sys

MIN, MAX = -2**63, 2**63 - 1
SPACES = "\t\n\v\f\r \x85\u00a0\u1680" + "".join(map(chr, range(0x2000, 0x200B))) + "\u2028\u2029\u202f\u205f\u3000"
ATOMS = ["0", "5", "59", "60", "007", "1:02:05", ":", "::", ".", ".5", "-", "+", "-5", " ", "\n", "\u2003", "\u2028",
         "\u200b", "x", "\u0661", "9223372036854775807", "-9223372036854775808", "9223372036854775808",
         "2562047788015215", "2562047788015216", "153722867280912930", "153722867280912931"]


def truncated(a, b):
    return a // b if a >= 0 else -(-a // b)


def as_int32(value):
    return (value + 2**31) % 2**32 - 2**31


def written(s):
    hours, minutes = truncated(s, 3600), truncated(s - truncated(s, 3600) * 3600, 60)
    text = "%02d:%02d" % (minutes, s - truncated(s, 60) * 60)
    return "%d:%s" % (as_int32(hours), text) if hours else text


def digits(s):
    return str(int(written(s).replace(":", ""))) if s >= 1 else ""


def integer(text):
    if not re.fullmatch(r"[+-]?[0-9]+", text, re.ASCII):
        raise ValueError(text)
    return in_range(int(text))


def in_range(value):
    if not MIN <= value <= MAX:
        raise ValueError(value)
    return value


def read(text):
    fields = [field for field in text.strip(SPACES).split(":") if field]
    try:
        seconds = integer(fields[-1].split(".")[0])
        minutes = integer(fields[-2]) if len(fields) > 1 else 0
        hours = integer(fields[-3]) if len(fields) > 2 else 0
        return str(in_range(in_range(seconds + in_range(minutes * 60)) + in_range(hours * 3600)))
    except (ValueError, IndexError):
        return "none"


def clock_texts_with_one_byte_changed():
    whole = "12:34:56"
    for text in [whole[start:] for start in range(8)] + ["1" + whole, whole + "7", whole + ".7", " " + whole[3:]]:
        for place in range(len(text)):
            for byte in range(256):
                changed = text[:place] + bytes([byte]).decode("utf-8", "surrogateescape") + text[place + 1:]
                yield "r", changed, read(changed)


def cases(chance):
    durations = [MIN, MAX, 0]
    for power in range(63):
        for near in (-1, 0, 1):
            durations += [2**power + near, -(2**power) - near]
    for _ in range(20000):
        durations.append(chance.getrandbits(64) + MIN >> chance.randrange(64))
    for s in durations:
        yield "w", str(s), written(s)
        yield "d", str(s), digits(s)
        yield "r", written(s), read(written(s))
    yield from clock_texts_with_one_byte_changed()
    for _ in range(40000):
        text = "".join(chance.choices(ATOMS, k=chance.randrange(9)))
        yield "r", text, read(text)


def main():
    table = list(cases(random.Random(1)))
    questions = "".join(kind + text.encode("utf-8", "surrogateescape").hex() + "\n" for kind, text, _ in table)
    answers = subprocess.run(sys.argv[1:], input=questions, capture_output=True, text=True, check=True).stdout.split("\n")
    wrong = [(case, answer) for case, answer in zip(table, answers) if case[2] != answer]
    for (kind, text, expected), answer in wrong[:20]:
        print("%s %r: expected %s, got %s" % (kind, text, expected, answer))
    readable = sum(kind == "r" and expected != "none" for kind, _, expected in table)
    print("%d cases, %d of them readable texts, %d wrong" % (len(table), readable, len(wrong)))
    return 1 if wrong or len(answers) != len(table) + 1 or readable < 1000 else 0


sys.exit(main())
