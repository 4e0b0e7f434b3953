"""Compares the powers of ten with Python's unbounded integers.

usage: power_of_ten_oracle.py PROGRAM

PROGRAM prints a line for each power: the exponent, then its two words in hexadecimal.
"""

import subprocess
import sys


def leading_bits(k):
    """The 128 bits of 10^k after its leading zeros, rounded up."""
    numerator, denominator = 5 ** max(k, 0), 5 ** max(-k, 0)
    shift = 128 - numerator.bit_length() + denominator.bit_length()
    for near in (shift - 1, shift):
        scaled = -(-(numerator << max(near, 0)) // (denominator << max(-near, 0)))
        if scaled.bit_length() == 128:
            return scaled
    raise AssertionError(k)


lines = subprocess.run(sys.argv[1:], capture_output=True, text=True, check=True).stdout.splitlines()
wrong = 0
for k, line in zip(range(-292, 325), lines):
    expected = "%d %016x %016x" % (k, leading_bits(k) >> 64, leading_bits(k) & 2**64 - 1)
    if line != expected:
        print("got %s, expected %s" % (line, expected))
        wrong += 1
print("%d powers, %d wrong" % (len(lines), wrong))
sys.exit(1 if wrong or len(lines) != 617 else 0)
