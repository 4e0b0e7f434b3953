#!/usr/bin/env python3
"""Checks the whole years of the desktop's calendar against answers that owe nothing to ICU.

Gregorian dates by Python's datetime and zoneinfo; Hebrew, Islamic (arithmetical) and Persian ones
by the calendars' own arithmetic below, in UTC. Usage: calendar_oracle.py PROGRAM [SEED]
"""
import datetime
import random
import subprocess
import sys
import zoneinfo

UTC = datetime.timezone.utc
EPOCH = datetime.date(1970, 1, 1).toordinal()


class Arithmetic:
    """A calendar in UTC: `start(year)` is the ordinal of its first day, `lengths(year)` its months."""

    def date(self, ordinal):
        year = 1 + (ordinal - self.start(1)) * 1000 // self.millidays
        while self.start(year) > ordinal:
            year -= 1
        while self.start(year + 1) <= ordinal:
            year += 1
        day = ordinal - self.start(year)
        for month, length in self.lengths(year):
            if day < length:
                return year, month, day
            day -= length
        raise AssertionError("a year longer than its months")

    def same_day(self, year, month, day):
        months = dict(self.lengths(year))
        if month not in months:  # Adar I of a leap year is kept in Adar
            month = "Adar"
        day = min(day, months[month] - 1)
        before = 0
        for name, length in self.lengths(year):
            if name == month:
                return self.start(year) + before + day
            before += length
        raise AssertionError("no such month")

    def anniversary(self, birth, years):
        days, second = divmod(birth, 86400)
        year, month, day = self.date(days + EPOCH)
        return (self.same_day(year + years, month, day) - EPOCH) * 86400 + second


class Hebrew(Arithmetic):
    millidays = 365247

    def molad(self, year):
        """The day of the mean new moon of Tishri, moved on where it would fall on a day that the
        first rule forbids."""
        months = (235 * year - 234) // 19
        day = 29 * months + (12084 + 13753 * months) // 25920
        return day + 1 if 3 * (day + 1) % 7 < 3 else day

    def start(self, year):
        before, this, after = (self.molad(y) for y in (year - 1, year, year + 1))
        moved = 2 if after - this == 356 else 1 if this - before == 382 else 0
        return this + moved - 1373427

    def lengths(self, year):
        leap = (7 * year + 1) % 19 < 7
        days = self.start(year + 1) - self.start(year)
        heshvan = 30 if days % 10 == 5 else 29
        kislev = 29 if days % 10 == 3 else 30
        adar = [("Adar I", 30), ("Adar", 29)] if leap else [("Adar", 29)]
        return [("Tishri", 30), ("Heshvan", heshvan), ("Kislev", kislev), ("Tevet", 29),
                ("Shevat", 30), *adar, ("Nisan", 30), ("Iyar", 29), ("Sivan", 30),
                ("Tamuz", 29), ("Av", 30), ("Elul", 29)]


class Islamic(Arithmetic):
    millidays = 354367

    def start(self, year):
        return 227015 + 354 * (year - 1) + (3 + 11 * year) // 30

    def lengths(self, year):
        leap = (11 * year + 14) % 30 < 11
        months = [(month, 30 if month % 2 == 0 else 29) for month in range(11)]
        return [*months, (11, 30 if leap else 29)]


class Persian(Arithmetic):
    millidays = 365242

    def start(self, year):
        return 226895 + 365 * (year - 1) + (8 * year + 21) // 33

    def lengths(self, year):
        length = self.start(year + 1) - self.start(year)
        return [(m, 31) for m in range(6)] + [(m, 30) for m in range(6, 11)] + [(11, length - 336)]


class Gregorian:
    def __init__(self, zone):
        self.zone = zoneinfo.ZoneInfo(zone)

    def anniversary(self, birth, years):
        born = datetime.datetime.fromtimestamp(birth, self.zone)
        year = born.year + years
        leap = year % 4 == 0 and (year % 100 != 0 or year % 400 == 0)
        day = 28 if (born.month, born.day) == (2, 29) and not leap else born.day
        first = datetime.datetime(year, born.month, day, born.hour, born.minute, born.second,
                                  tzinfo=self.zone)
        second = first.replace(fold=1)
        # An hour that comes twice counts as the second of the two.
        is_twice = first.utcoffset() > second.utcoffset()
        return int((second if is_twice else first).timestamp())


def years_between(calendar, birth, now):
    step = 1 if now >= birth else -1
    years = (now - birth) // 31556952 - 3 * step if abs(now - birth) > 4 * 31556952 else 0
    def reached(count):
        moment = calendar.anniversary(birth, count)
        return moment <= now if step == 1 else moment >= now
    while not reached(years):
        years -= step
    while reached(years + step):
        years += step
    return years


def cases(generator):
    zones = ["UTC", "Europe/Paris", "America/New_York", "Australia/Lord_Howe", "Asia/Tokyo"]
    calendars = [("en-US", zone, Gregorian(zone)) for zone in zones]
    calendars += [("th-TH", "Asia/Bangkok", Gregorian("Asia/Bangkok")),
                  ("ja-JP-u-ca-japanese", "Asia/Tokyo", Gregorian("Asia/Tokyo")),
                  ("he-IL-u-ca-hebrew", "UTC", Hebrew()),
                  ("ar-SA-u-ca-islamic-civil", "UTC", Islamic()),
                  ("fa-IR", "UTC", Persian())]
    start = int(datetime.datetime(1950, 1, 1, tzinfo=UTC).timestamp())
    # Before 2046-10-01: ICU 72 begins the Hebrew year 5807 a day late, since it looks for a late new
    # moon on Monday after having moved the day there from Sunday.
    end = int(datetime.datetime(2040, 1, 1, tzinfo=UTC).timestamp())
    for locale, zone, calendar in calendars:
        for _ in range(400):
            birth = generator.randrange(start, end)
            around = calendar.anniversary(birth, generator.randrange(-2, 60))
            for now in (generator.randrange(start, end), around - 1, around, around + 1):
                if now < end:
                    yield locale, zone, calendar, birth, now


def main():
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 20261120
    asked = list(cases(random.Random(seed)))
    questions = "".join(f"{case[0]} {case[1]} {case[3]} {case[4]}\n" for case in asked)
    answers = subprocess.run([sys.argv[1]], input=questions, capture_output=True, text=True,
                             check=True).stdout.split()
    assert len(answers) == len(asked), "an answer is missing"
    wrong = [(case[0], case[1], case[3], case[4], int(answer), expected)
             for case, answer in zip(asked, answers)
             if int(answer) != (expected := years_between(*case[2:]))]
    for one in wrong[:20]:
        print("locale %s, zone %s, from %d to %d: %d years, expected %d" % one)
    print(f"{len(asked)} questions, {len(wrong)} wrong answers")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
