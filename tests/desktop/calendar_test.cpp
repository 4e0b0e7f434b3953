#include <QDateTime>
#include <QTemporaryDir>
#include <QTimeZone>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "qv_commons/platform/desktop/icu_calendar.h"
#include "qv_commons/platform/desktop/time_zone.h"

namespace qv_commons::desktop {
namespace {

// "2000-02-29T12:00:00+01:00", by Qt, which knows nothing of ICU's calendars.
Instant at(const char* text) {
  return instantAt(
      static_cast<double>(QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch()));
}

struct Case {
  const char* born;
  const char* now;
  std::int64_t years;
};

void expectYears(const CalendarSettings& settings, const std::vector<Case>& cases) {
  const IcuCalendar calendar(settings);
  for (const Case& one : cases) {
    EXPECT_EQ(calendar.yearsBetween(at(one.born), at(one.now)), one.years)
        << settings.locale << " " << one.born << " " << one.now;
  }
}

TEST(CalendarYears, CountTheSecondOfTheBirthday) {
  expectYears({"en-US", "UTC"}, {{"2008-11-20T15:30:00Z", "2026-11-20T15:29:59Z", 17},
                                 {"2008-11-20T15:30:00Z", "2026-11-20T15:30:00Z", 18},
                                 {"2008-11-20T15:30:00Z", "2026-11-20T15:30:01Z", 18},
                                 {"2008-12-31T23:59:59Z", "2009-12-31T23:59:58Z", 0},
                                 {"2008-12-31T23:59:59Z", "2009-12-31T23:59:59Z", 1},
                                 {"1969-07-20T20:17:40Z", "1987-07-20T20:17:40Z", 18}});
}

TEST(CalendarYears, CompleteOn28FebruaryForThoseBornOnThe29th) {
  expectYears({"en-US", "UTC"}, {{"2008-02-29T12:00:00Z", "2026-02-27T12:00:00Z", 17},
                                 {"2008-02-29T12:00:00Z", "2026-02-28T11:59:59Z", 17},
                                 {"2008-02-29T12:00:00Z", "2026-02-28T12:00:00Z", 18},
                                 {"2008-02-29T12:00:00Z", "2024-02-28T12:00:00Z", 15},
                                 {"2008-02-29T12:00:00Z", "2024-02-29T12:00:00Z", 16},
                                 {"1896-02-29T00:00:00Z", "1900-02-28T00:00:00Z", 4}});
}

TEST(CalendarYears, AreZeroForTheFutureUntilItIsAYearAway) {
  expectYears({"en-US", "UTC"}, {{"2026-11-21T00:00:00Z", "2026-11-20T00:00:00Z", 0},
                                 {"2027-11-19T23:59:59Z", "2026-11-20T00:00:00Z", 0},
                                 {"2027-11-20T00:00:00Z", "2026-11-20T00:00:00Z", -1},
                                 {"2029-01-01T00:00:00Z", "2026-11-20T00:00:00Z", -2}});
}

// The wall clock counts: 10:00 in winter is 09:00 UTC in Paris, in summer 08:00.
TEST(CalendarYears, FollowTheWallClockThroughDaylightSaving) {
  expectYears({"fr-FR", "Europe/Paris"},
              {{"1976-03-27T09:00:00Z", "1994-03-27T07:59:59Z", 17},
               {"1976-03-27T09:00:00Z", "1994-03-27T08:00:00Z", 18},
               // Born in the hour that a spring night skips 18 years later: 02:30 becomes 03:30.
               {"2011-03-31T00:30:00Z", "2024-03-31T00:29:59Z", 12},
               {"2011-03-31T00:30:00Z", "2024-03-31T01:30:00Z", 13}});
}

TEST(CalendarYears, FollowTheZoneWhereItMoved) {
  // Samoa skipped 2011-12-30 and lies a day ahead since: the same wall clock is 24 hours earlier.
  expectYears({"en-US", "Pacific/Apia"}, {{"2010-06-01T12:00:00Z", "2012-05-31T11:59:59Z", 1},
                                          {"2010-06-01T12:00:00Z", "2012-05-31T12:00:00Z", 2}});
  // Moscow: UTC+4 from 2011 to 2014, UTC+3 since.
  expectYears({"ru-RU", "Europe/Moscow"}, {{"2012-01-15T08:00:00Z", "2020-01-15T08:59:59Z", 7},
                                           {"2012-01-15T08:00:00Z", "2020-01-15T09:00:00Z", 8}});
}

// 2026-11-20 is 11 Kislev 5787; 2008-11-20 was 22 Heshvan 5769.
TEST(CalendarYears, CountHebrewYears) {
  expectYears({"he-IL-u-ca-hebrew", "UTC"},
              {// 1 Tishri 5769 = 2008-09-30, 1 Tishri 5787 = 2026-09-12
               {"2008-09-30T12:00:00Z", "2026-09-11T12:00:00Z", 17},
               {"2008-09-30T12:00:00Z", "2026-09-12T12:00:00Z", 18},
               // 15 Adar I 5768 (a leap year) = 2008-02-21, 15 Adar 5769 = 2009-03-11
               {"2008-02-21T12:00:00Z", "2009-03-10T12:00:00Z", 0},
               {"2008-02-21T12:00:00Z", "2009-03-11T12:00:00Z", 1}});
}

TEST(CalendarYears, CountBuddhistAndJapaneseYearsAsTheGregorianTheyAre) {
  for (const char* locale : {"th-TH", "ja-JP-u-ca-japanese"}) {
    expectYears({locale, "UTC"},
                {{"2008-11-20T00:00:00Z", "2026-11-19T23:59:59Z", 17},
                 {"2008-11-20T00:00:00Z", "2026-11-20T00:00:00Z", 18},
                 // From one era to the next: Showa 63 to Heisei, Heisei 31 to Reiwa.
                 {"1988-06-01T00:00:00Z", "1989-06-01T00:00:00Z", 1},
                 {"2018-06-01T00:00:00Z", "2019-05-31T23:59:59Z", 0},
                 {"2018-06-01T00:00:00Z", "2019-06-01T00:00:00Z", 1}});
  }
}

TEST(CalendarYears, CountIslamicYears) {
  // 1 Muharram 1430 = 2008-12-29 and 1 Muharram 1448 = 2026-06-17 by the tables of the arithmetical
  // calendar; by those of Umm al-Qura 2008-12-29 and 2026-06-16.
  expectYears({"ar-SA-u-ca-islamic-civil", "UTC"},
              {{"2008-12-29T12:00:00Z", "2026-06-16T12:00:00Z", 17},
               {"2008-12-29T12:00:00Z", "2026-06-17T12:00:00Z", 18}});
  expectYears({"ar-SA-u-ca-islamic-umalqura", "UTC"},
              {{"2008-12-29T12:00:00Z", "2026-06-15T12:00:00Z", 17},
               {"2008-12-29T12:00:00Z", "2026-06-16T12:00:00Z", 18}});
}

TEST(CalendarYears, CountPersianYears) {
  // 1 Farvardin 1388 = 2009-03-21, 1 Farvardin 1406 = 2027-03-21; 30 Esfand 1387 (a leap year) =
  // 2009-03-20, 29 Esfand 1388 = 2010-03-20.
  expectYears({"fa-IR", "UTC"}, {{"2009-03-21T12:00:00Z", "2027-03-20T12:00:00Z", 17},
                                 {"2009-03-21T12:00:00Z", "2027-03-21T12:00:00Z", 18},
                                 {"2009-03-20T12:00:00Z", "2010-03-19T12:00:00Z", 0},
                                 {"2009-03-20T12:00:00Z", "2010-03-20T12:00:00Z", 1}});
}

TEST(CalendarYears, AreNothingForWhatIsNoDate) {
  const IcuCalendar calendar({"en-US", "UTC"});
  constexpr double kNever = std::numeric_limits<double>::infinity();
  constexpr Instant kEpoch;
  for (const double seconds : {std::nan(""), kNever, -kNever, 1e18, -1e18, 8.65e12}) {
    const Instant nonsense = instantAt(seconds);
    EXPECT_EQ(calendar.yearsBetween(nonsense, kEpoch), std::nullopt) << seconds;
    EXPECT_EQ(calendar.yearsBetween(kEpoch, nonsense), std::nullopt) << seconds;
    EXPECT_EQ(calendar.dateByAddingYears(nonsense, 1), std::nullopt) << seconds;
  }
  EXPECT_EQ(calendar.dateByAddingYears(kEpoch, std::numeric_limits<int>::max()), std::nullopt);
  EXPECT_EQ(calendar.dateByAddingYears(instantAt(8.64e12), 1), std::nullopt);
}

TEST(CalendarYears, AreAddedToADate) {
  const IcuCalendar calendar({"en-US", "Europe/Paris"});
  EXPECT_EQ(calendar.dateByAddingYears(at("2026-11-20T10:00:00Z"), 1), at("2027-11-20T10:00:00Z"));
  EXPECT_EQ(calendar.dateByAddingYears(at("2028-02-29T10:00:00Z"), 1), at("2029-02-28T10:00:00Z"));
  constexpr Instant::duration kQuarter(0.25);
  EXPECT_EQ(calendar.dateByAddingYears(at("2026-11-20T10:00:00Z") + kQuarter, 1),
            at("2027-11-20T10:00:00Z") + kQuarter);
  EXPECT_EQ(IcuCalendar({"ar-SA-u-ca-islamic-civil", "UTC"})
                .dateByAddingYears(at("2008-12-29T12:00:00Z"), 18),
            at("2026-06-17T12:00:00Z"));
}

TEST(CalendarYears, AreTheSameFromManyThreads) {
  const IcuCalendar calendar({"en-US", "UTC"});
  std::vector<std::thread> threads;
  std::vector<int> wrong(4);
  for (int& count : wrong) {
    threads.emplace_back([&calendar, &count] {
      for (int day = 0; day < 40'000; day += 20) {
        const auto years = calendar.yearsBetween(instantAt(0), instantAt(day * 86400.0));
        if (years != QDate(1970, 1, 1).addDays(day).year() - 1970) ++count;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong, (std::vector<int>{0, 0, 0, 0}));
}

TEST(CalendarLocale, DecidesOnTheCalendar) {
  const auto type = [](const char* locale) {
    return std::string(IcuCalendar({locale, "UTC"}).makeCalendar()->getType());
  };
  EXPECT_EQ(type("en-US"), "gregorian");
  EXPECT_EQ(type("th-TH"), "buddhist");
  EXPECT_EQ(type("ar-SA-u-ca-islamic-umalqura"), "islamic-umalqura");
  EXPECT_EQ(type("fa-IR"), "persian");
  EXPECT_EQ(type("th-TH-u-ca-gregory"), "gregorian");
  EXPECT_EQ(type("en-US-u-ca-hebrew"), "hebrew");
  EXPECT_EQ(type("not a language tag!"), "gregorian");
}

TEST(CalendarLocale, IsNotThatOfTheDateFormats) {
  setenv("LC_TIME", "th_TH.UTF-8", 1);
  EXPECT_STREQ(IcuCalendar().makeCalendar()->getType(), "gregorian");
  unsetenv("LC_TIME");
}

TEST(CalendarZone, IsWhatTzNames) {
  EXPECT_EQ(timeZoneIdentifier("Europe/Paris"), "Europe/Paris");
  EXPECT_EQ(timeZoneIdentifier(":Europe/Paris"), "Europe/Paris");
  EXPECT_EQ(timeZoneIdentifier("/usr/share/zoneinfo/Asia/Tokyo"), "Asia/Tokyo");
  EXPECT_EQ(timeZoneIdentifier(":/usr/share/zoneinfo/Asia/Tokyo"), "Asia/Tokyo");
}

TEST(CalendarZone, IsUtcWhereItIsEmpty) {
  EXPECT_EQ(timeZoneIdentifier(""), "UTC");
  EXPECT_EQ(timeZoneIdentifier(":"), "UTC");
}

TEST(CalendarZone, IsToldWhereItIsNotKnown) {
  for (const char* nonsense : {"Nowhere/Land", ":/etc/passwd", "/no/such/file", "\xff", "/etc",
                               "CET-1CEST,M3.5.0,M10.5.0/3"}) {
    EXPECT_EQ(timeZoneIdentifier(nonsense), std::nullopt) << nonsense;
  }
  std::vector<std::string> told;
  const IcuCalendar calendar({"en-US", "CET-1CEST,M3.5.0,M10.5.0/3"},
                             [&](std::string error) { told.push_back(std::move(error)); });
  EXPECT_EQ(calendar.dateByAddingYears(instantAt(0), 1), instantAt(31536000));
  EXPECT_EQ(calendar.dateByAddingYears(instantAt(0), 1), instantAt(31536000));
  EXPECT_THAT(told, testing::ElementsAre("The time zone CET-1CEST,M3.5.0,M10.5.0/3 is not known by "
                                         "name; dates are reckoned in UTC."));
}

TEST(CalendarZone, OfACopiedFileIsTheZoneWithTheSameBytes) {
  const QTemporaryDir folder;
  const std::string copy = folder.filePath("localtime").toStdString();
  std::filesystem::copy_file("/usr/share/zoneinfo/America/St_Johns", copy);
  const std::optional<std::string> name = timeZoneIdentifier(":" + copy);
  ASSERT_TRUE(name);
  EXPECT_THAT(*name, testing::AnyOf("America/St_Johns", "Canada/Newfoundland"));
}

TEST(CalendarZone, OfTheSystemIsFollowedWhenItChanges) {
  const QByteArray before = qgetenv("TZ");
  const IcuCalendar calendar({"en-US", ""});
  const auto offset = [&] {
    UErrorCode status = U_ZERO_ERROR;
    const auto made = calendar.makeCalendar();
    return made->get(UCAL_ZONE_OFFSET, status) / 3'600'000;
  };
  qputenv("TZ", "Asia/Tokyo");
  EXPECT_EQ(offset(), 9);
  qputenv("TZ", "Asia/Dubai");
  EXPECT_EQ(offset(), 4);
  before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before);
}

TEST(CalendarZone, OfTheSystemFollowsTheLink) {
  EXPECT_EQ(timeZoneIdentifier(":/etc/localtime"), timeZoneIdentifier(std::nullopt));
}

}  // namespace
}  // namespace qv_commons::desktop
