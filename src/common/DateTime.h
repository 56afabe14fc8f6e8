#pragma once
// A calendar date with a time of day, as the database keeps it. Pure arithmetic: nothing here asks the
// machine what day it is, the clock comes from the desktop.

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnik {

struct DateTime {
    std::int32_t day = 0;    // days since 1970-01-01, negative before
    std::int32_t second = 0; // of the day, 0 to 86399

    auto operator<=>(const DateTime&) const = default;
};

struct CalendarDate {
    int year = 1970, month = 1, day = 1;
    bool operator==(const CalendarDate&) const = default;
};

// The date, or nothing when there is no such day (31 February, month 13).
std::optional<DateTime> MakeDate(int year, int month, int day, int second = 0);
CalendarDate ToCalendar(DateTime date);
DateTime AddDays(DateTime date, int days);

// "2026-11-22", or "2026-11-22 09:30:00" when the time is not midnight; the form stored in the file.
std::string ToIso(DateTime date);
// Reads both forms; nothing when the text is neither.
std::optional<DateTime> FromIso(std::string_view text);

} // namespace varnik
