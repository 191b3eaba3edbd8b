#include <gtest/gtest.h>

#include "platform/event_loop.h"

namespace {

using platform::CalendarTime;
using platform::DateTime;

constexpr int64_t kDay = 86400;

TEST(Calendar, KnownMoments) {
    EXPECT_EQ(platform::FromCalendar({1970, 1, 1, 0, 0, 0}).seconds, 0);
    EXPECT_EQ(platform::FromCalendar({2000, 3, 1, 0, 0, 0}).seconds, 951868800);
    EXPECT_EQ(platform::FromCalendar({2001, 9, 9, 1, 46, 40}).seconds, 1000000000);
    EXPECT_EQ(platform::FromCalendar({1969, 12, 31, 23, 59, 59}).seconds, -1);
    EXPECT_EQ(platform::FromCalendar({1899, 12, 30, 0, 0, 0}).seconds, -25569 * kDay);
}

TEST(Calendar, TakesValuesBeyondTheirRange) {
    const auto text = [](CalendarTime value) {
        return platform::DateTimeText(platform::FromCalendar(value));
    };
    EXPECT_EQ(text({2026, 1, 32, 0, 0, 0}), u"2026/02/01 00:00:00");
    EXPECT_EQ(text({2026, 13, 1, 0, 0, 0}), u"2027/01/01 00:00:00");
    EXPECT_EQ(text({2026, 0, 1, 0, 0, 0}), u"2025/12/01 00:00:00");
    EXPECT_EQ(text({2024, 3, 0, 0, 0, 0}), u"2024/02/29 00:00:00");
    EXPECT_EQ(text({2026, 1, 1, 24, 60, -1}), u"2026/01/02 00:59:59");
}

TEST(Calendar, EveryDayFollowsTheLast) {
    DateTime day = platform::FromCalendar({1890, 1, 1, 0, 0, 0});
    CalendarTime before = platform::ToCalendar({day.seconds - kDay});
    for (int i = 0; i < 100000; ++i, day.seconds += kDay) {
        const CalendarTime c = platform::ToCalendar(day);
        const bool nextDay = c.day == before.day + 1 && c.month == before.month;
        const bool nextMonth = c.day == 1 && before.day >= 28 &&
                               (c.month == before.month + 1 ||
                                (c.month == 1 && before.month == 12 && c.year == before.year + 1));
        ASSERT_TRUE(nextDay || nextMonth) << c.year << ' ' << c.month << ' ' << c.day;
        ASSERT_EQ(platform::FromCalendar(c), day);
        before = c;
    }
}

TEST(DateText, PadsWithZeros) {
    const DateTime moment = platform::FromCalendar({2026, 1, 2, 3, 4, 5});
    EXPECT_EQ(platform::DateText(moment), u"2026/01/02");
    EXPECT_EQ(platform::DateTimeText(moment), u"2026/01/02 03:04:05");
}

TEST(ReadDateTime, ReadsItsForms) {
    const auto read = [](TextView from) {
        DateTime value;
        return platform::ReadDateTime(from, value) ? platform::DateTimeText(value) : Text(u"no");
    };
    EXPECT_EQ(read(u"2026/01/02"), u"2026/01/02 00:00:00");
    EXPECT_EQ(read(u" 2026/1/2 "), u"2026/01/02 00:00:00");
    EXPECT_EQ(read(u"2026/01/02 9:30"), u"2026/01/02 09:30:00");
    EXPECT_EQ(read(u"2026/01/02 23:59:59"), u"2026/01/02 23:59:59");
    EXPECT_EQ(read(u"2024/2/29"), u"2024/02/29 00:00:00");
    EXPECT_EQ(read(u"12:34"), u"1899/12/30 12:34:00");
    EXPECT_EQ(read(u"1:02:03"), u"1899/12/30 01:02:03");
    EXPECT_EQ(read(u"2026/01/02      "), u"2026/01/02 00:00:00");
}

TEST(ReadDateTime, RefusesWhatIsNoDateAndLeavesTheValue) {
    for (const TextView no : {u"",
                              u"   ",
                              u"2026/02/29",
                              u"2026/13/01",
                              u"2026/00/10",
                              u"2026/01/00",
                              u"2026/04/31",
                              u"24:00",
                              u"12:60",
                              u"12:00:60",
                              u"12",
                              u"12:5",
                              u"26/01/02",
                              u"2026/01",
                              u"2026/01/02x",
                              u"2026/01/02 x",
                              u"2026/01/0212:00",
                              u"2026/001/02",
                              u"12:00 2026/01/02",
                              u"-1:00",
                              u"２０２６/01/02",
                              u"2026/01/02 12:00:"}) {
        DateTime value{42};
        EXPECT_FALSE(platform::ReadDateTime(no, value)) << text::ToUtf8(no);
        EXPECT_EQ(value.seconds, 42);
    }
}

TEST(ReadDateTime, ReadsBackEveryPrintedMoment) {
    for (int64_t seconds = -3000000000; seconds < 4000000000; seconds += 7654321) {
        DateTime back;
        ASSERT_TRUE(platform::ReadDateTime(platform::DateTimeText({seconds}), back));
        ASSERT_EQ(back.seconds, seconds);
    }
}

}  // namespace
