#include "common/DateTime.h"

#include <chrono>
#include <cstdio>

namespace varnik {
namespace {

std::optional<int> Digits(std::string_view text) {
    int number = 0;
    for (char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        number = number * 10 + (c - '0');
    }
    return number;
}

} // namespace

std::optional<DateTime> MakeDate(int year, int month, int day, int second) {
    using namespace std::chrono;
    if (year < 1 || year > 9999 || month < 1 || day < 1 || second < 0 || second >= 86400) return std::nullopt;
    const year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                              std::chrono::day{static_cast<unsigned>(day)}};
    if (!date.ok()) return std::nullopt;
    return DateTime{static_cast<std::int32_t>(sys_days{date}.time_since_epoch().count()), second};
}

CalendarDate ToCalendar(DateTime date) {
    using namespace std::chrono;
    const year_month_day calendar{sys_days{days{date.day}}};
    return {static_cast<int>(calendar.year()), static_cast<int>(static_cast<unsigned>(calendar.month())),
            static_cast<int>(static_cast<unsigned>(calendar.day()))};
}

DateTime AddDays(DateTime date, int days) { return {date.day + days, date.second}; }

std::string ToIso(DateTime date) {
    const auto [year, month, day] = ToCalendar(date);
    char text[40];
    if (date.second == 0)
        std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, month, day);
    else
        std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", year, month, day,
                      date.second / 3600, date.second / 60 % 60, date.second % 60);
    return text;
}

std::optional<DateTime> FromIso(std::string_view text) {
    const bool timed = text.size() == 19;
    if (!timed && text.size() != 10) return std::nullopt;
    if (text[4] != '-' || text[7] != '-') return std::nullopt;
    const auto year = Digits(text.substr(0, 4)), month = Digits(text.substr(5, 2)),
               day = Digits(text.substr(8, 2));
    if (!year || !month || !day) return std::nullopt;
    if (!timed) return MakeDate(*year, *month, *day);
    if ((text[10] != ' ' && text[10] != 'T') || text[13] != ':' || text[16] != ':') return std::nullopt;
    const auto hour = Digits(text.substr(11, 2)), minute = Digits(text.substr(14, 2)),
               second = Digits(text.substr(17, 2));
    if (!hour || !minute || !second || *hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
    return MakeDate(*year, *month, *day, *hour * 3600 + *minute * 60 + *second);
}

} // namespace varnik
