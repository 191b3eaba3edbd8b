// Calendar arithmetic of the proleptic Gregorian calendar, and the text form of dates.
#include <array>
#include <string>

#include "platform/event_loop.h"

namespace platform {

namespace {

constexpr int64_t kSecondsPerDay = 86400;
constexpr int64_t kDaysPerEra = 146097;      // 400 years
constexpr int64_t kDaysBefore1970 = 719468;  // from 0000-03-01

int64_t FloorDivide(int64_t value, int64_t by) {
    return value / by - (value % by < 0 ? 1 : 0);
}

/// Days since 1970-01-01. Years are counted from March, so that the leap day comes last.
int64_t DaysFromCalendar(int64_t year, int64_t month, int64_t day) {
    const int64_t months = year * 12 + month - 1 - 2;
    const int64_t marchYear = FloorDivide(months, 12);
    const int64_t marchMonth = months - marchYear * 12;
    const int64_t era = FloorDivide(marchYear, 400);
    const int64_t yearOfEra = marchYear - era * 400;
    const int64_t dayOfYear = (153 * marchMonth + 2) / 5;
    const int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * kDaysPerEra + dayOfEra - kDaysBefore1970 + day - 1;
}

Text Padded(int value, size_t width) {
    const std::string digits = std::to_string(value);
    Text result(width > digits.size() ? width - digits.size() : 0, u'0');
    result.append(digits.begin(), digits.end());
    return result;
}

/// Reads a text from left to right.
class Cursor {
public:
    explicit Cursor(TextView from) : rest_(from) {}

    bool AtEnd() const { return rest_.empty(); }

    /// Number of `least` to `most` digits; false where there are fewer or more.
    bool Number(size_t least, size_t most, int& value) {
        size_t count = 0;
        int read = 0;
        while (count < rest_.size() && rest_[count] >= u'0' && rest_[count] <= u'9') {
            if (++count > most) {
                return false;
            }
            read = read * 10 + (rest_[count - 1] - u'0');
        }
        rest_.remove_prefix(count);
        value = read;
        return count >= least;
    }

    bool Take(char16_t c) {
        if (rest_.empty() || rest_.front() != c) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

private:
    TextView rest_;
};

/// "hh:mm[:ss]" up to the end of the text.
bool ReadTime(Cursor& cursor, CalendarTime& value) {
    if (!cursor.Number(1, 2, value.hour) || !cursor.Take(u':') ||
        !cursor.Number(2, 2, value.minute)) {
        return false;
    }
    if (cursor.Take(u':') && !cursor.Number(2, 2, value.second)) {
        return false;
    }
    return cursor.AtEnd() && value.hour < 24 && value.minute < 60 && value.second < 60;
}

/// "YYYY/MM/DD"; false for a day that the calendar does not have.
bool ReadDate(Cursor& cursor, CalendarTime& value) {
    constexpr int kFirstYear = 100;
    if (!cursor.Number(4, 4, value.year) || !cursor.Take(u'/') ||
        !cursor.Number(1, 2, value.month) || !cursor.Take(u'/') ||
        !cursor.Number(1, 2, value.day)) {
        return false;
    }
    if (value.year < kFirstYear || value.month < 1 || value.month > 12 || value.day < 1) {
        return false;
    }
    return ToCalendar(FromCalendar(value)).day == value.day;
}

}  // namespace

DateTime FromCalendar(const CalendarTime& value) {
    const int64_t days = DaysFromCalendar(value.year, value.month, value.day);
    return {((days * 24 + value.hour) * 60 + value.minute) * 60 + value.second};
}

CalendarTime ToCalendar(DateTime value) {
    const int64_t days = FloorDivide(value.seconds, kSecondsPerDay);
    const int64_t second = value.seconds - days * kSecondsPerDay;
    const int64_t shifted = days + kDaysBefore1970;
    const int64_t era = FloorDivide(shifted, kDaysPerEra);
    const int64_t dayOfEra = shifted - era * kDaysPerEra;
    const int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int64_t marchMonth = (5 * dayOfYear + 2) / 153;
    CalendarTime result;
    result.day = static_cast<int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1);
    result.month = static_cast<int>(marchMonth < 10 ? marchMonth + 3 : marchMonth - 9);
    result.year = static_cast<int>(yearOfEra + era * 400 + (result.month <= 2 ? 1 : 0));
    result.hour = static_cast<int>(second / 3600);
    result.minute = static_cast<int>(second / 60 % 60);
    result.second = static_cast<int>(second % 60);
    return result;
}

Text DateText(DateTime value) {
    const CalendarTime c = ToCalendar(value);
    return Padded(c.year, 4) + u'/' + Padded(c.month, 2) + u'/' + Padded(c.day, 2);
}

Text DateTimeText(DateTime value) {
    const CalendarTime c = ToCalendar(value);
    return DateText(value) + u' ' + Padded(c.hour, 2) + u':' + Padded(c.minute, 2) + u':' +
           Padded(c.second, 2);
}

bool ReadDateTime(TextView from, DateTime& value) {
    const Text trimmed = text::Trim(from);
    Cursor cursor(trimmed);
    CalendarTime read{1899, 12, 30, 0, 0, 0};
    if (trimmed.find(u'/') != Text::npos) {
        if (!ReadDate(cursor, read)) {
            return false;
        }
        const bool blank = cursor.Take(u' ');
        while (cursor.Take(u' ')) {
        }
        if (!cursor.AtEnd() && !(blank && ReadTime(cursor, read))) {
            return false;
        }
    } else if (!ReadTime(cursor, read)) {
        return false;
    }
    value = FromCalendar(read);
    return true;
}

}  // namespace platform
