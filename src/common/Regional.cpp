#include "common/Regional.h"

#include "common/Text.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace varnik {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
std::string TwoDigits(int number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

// A number as its decimal text of 15 digits: what a person would read off it, without the binary tail.
struct Decimal {
    bool negative = false;
    std::string digits; // without leading or trailing zeros; empty for 0
    int whole = 0;      // digits before the point; negative when zeros follow it

    explicit Decimal(double number) {
        char text[32];
        std::snprintf(text, sizeof text, "%.14e", number);
        const std::string_view view(text);
        const auto exponent = view.find('e');
        negative = view.front() == '-';
        std::copy_if(view.begin(),
                     view.begin() + static_cast<std::ptrdiff_t>(std::min(exponent, view.size())),
                     std::back_inserter(digits), IsDigit);
        whole = exponent == std::string_view::npos ? 0 : std::atoi(text + exponent + 1) + 1;
        Strip();
    }

    // Half away from zero.
    void Round(int decimals) {
        const int keep = whole + decimals;
        if (keep >= static_cast<int>(digits.size())) return;
        const bool up = keep >= 0 && digits[static_cast<std::size_t>(keep)] >= '5';
        digits.resize(static_cast<std::size_t>(std::max(keep, 0)));
        if (up) {
            auto at = digits.size();
            while (at > 0 && digits[at - 1] == '9') digits[--at] = '0';
            if (at > 0) {
                ++digits[at - 1];
            } else {
                digits.insert(0, 1, '1');
                ++whole;
            }
        }
        Strip();
    }

    std::string Whole() const {
        std::string text = digits.substr(0, static_cast<std::size_t>(std::max(whole, 0)));
        return whole > static_cast<int>(text.size())
                   ? text + Repeat(whole - static_cast<int>(text.size()), '0')
                   : text;
    }
    std::string Fraction() const {
        if (whole >= static_cast<int>(digits.size())) return "";
        return Repeat(-whole, '0') + digits.substr(static_cast<std::size_t>(std::max(whole, 0)));
    }

private:
    void Strip() {
        digits.resize(digits.find_last_not_of('0') + 1);
        if (digits.empty()) {
            whole = 0;
            negative = false;
        }
    }
};

std::string Plain(double number, char point) {
    const Decimal decimal(number);
    std::string text = decimal.negative ? "-" : "";
    const std::string whole = decimal.Whole(), fraction = decimal.Fraction();
    text += whole.empty() ? "0" : whole;
    return fraction.empty() ? text : text + point + fraction;
}

// "09:30", "09:30:05"; seconds of the day.
std::optional<int> ParseTime(std::string_view text) {
    int parts[3] = {0, 0, 0};
    const auto pieces = Split(text, ':');
    if (pieces.size() < 2 || pieces.size() > 3) return std::nullopt;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (pieces[i].empty() || pieces[i].size() > 2 ||
            !std::all_of(pieces[i].begin(), pieces[i].end(), IsDigit))
            return std::nullopt;
        parts[i] = std::atoi(pieces[i].c_str());
    }
    if (parts[0] > 23 || parts[1] > 59 || parts[2] > 59) return std::nullopt;
    return parts[0] * 3600 + parts[1] * 60 + parts[2];
}

// The digits at the front of the text, which loses them.
std::string_view TakeDigits(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const auto digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

bool TakeSeparator(std::string_view& text, const Regional& regional) {
    const auto skipBlanks = [&] { text.remove_prefix(std::min(text.find_first_not_of(' '), text.size())); };
    const std::string own = Trim(regional.dateSeparator);
    skipBlanks();
    if (!own.empty() && text.starts_with(own))
        text.remove_prefix(own.size());
    else if (!text.empty() && (text[0] == '/' || text[0] == '-' || text[0] == '.'))
        text.remove_prefix(1);
    else
        return false;
    skipBlanks();
    return true;
}

} // namespace

std::string ShortDate(DateTime date, const Regional& regional) {
    const auto [year, month, day] = ToCalendar(date);
    char four[16];
    std::snprintf(four, sizeof four, "%04d", year);
    const std::string y = regional.fourDigitYear ? four : TwoDigits(year), m = TwoDigits(month),
                      d = TwoDigits(day);
    const std::string& s = regional.dateSeparator;
    switch (regional.order) {
    case DateOrder::DayMonthYear:
        return d + s + m + s + y;
    case DateOrder::YearMonthDay:
        return y + s + m + s + d;
    case DateOrder::YearDayMonth:
        return y + s + d + s + m;
    case DateOrder::MonthDayYear:
        break;
    }
    return m + s + d + s + y;
}

std::string FormatDate(DateTime date, std::string_view mask) {
    const auto [year, month, day] = ToCalendar(date);
    std::string text;
    bool afterHours = false;
    while (!mask.empty()) {
        const auto run = std::min(mask.find_first_not_of(mask[0]), mask.size());
        const auto number = [&](int n) { text += run == 1 ? std::to_string(n) : TwoDigits(n); };
        switch (mask[0]) {
        case 'd':
            number(day);
            break;
        case 'm':
            // Minutes only behind hours: "hh:mm:ss".
            number(afterHours ? date.second / 60 % 60 : month);
            break;
        case 'y': {
            char four[16];
            std::snprintf(four, sizeof four, "%04d", year);
            text += run > 2 ? four : TwoDigits(year);
            break;
        }
        case 'h':
            number(date.second / 3600);
            break;
        case 's':
            number(date.second % 60);
            break;
        default:
            text += mask.substr(0, run);
        }
        if (std::string_view("dmyhs").find(mask[0]) != std::string_view::npos) afterHours = mask[0] == 'h';
        mask.remove_prefix(run);
    }
    return text;
}

std::string DateMaskOfMachine(const Regional& regional) {
    std::string text = Trim(ShortDate(*MakeDate(2000, 12, 31), regional));
    if (text.size() >= 11) text.resize(10);
    struct Form {
        std::size_t length;
        int second, third; // positions
        const char *pieces[3], *mask[3];
    };
    static constexpr Form Forms[] = {
        {8, 4, 7, {"12", "31", "00"}, {"mm", "dd", "yy"}},
        {8, 4, 7, {"31", "12", "00"}, {"dd", "mm", "yy"}},
        {8, 4, 7, {"00", "12", "31"}, {"yy", "mm", "dd"}},
        {8, 4, 7, {"00", "31", "12"}, {"yy", "dd", "mm"}},
        {10, 4, 7, {"12", "31", "2000"}, {"mm", "dd", "yyyy"}},
        {10, 4, 7, {"31", "12", "2000"}, {"dd", "mm", "yyyy"}},
        {10, 6, 9, {"2000", "12", "31"}, {"yyyy", "mm", "dd"}},
        {10, 6, 9, {"2000", "31", "12"}, {"yyyy", "dd", "mm"}},
    };
    for (const Form& form : Forms) {
        const auto stands = [&](int position, std::string_view piece) {
            return Mid(text, position, static_cast<int>(piece.size())) == piece;
        };
        if (text.size() == form.length && stands(1, form.pieces[0]) && stands(form.second, form.pieces[1]) &&
            stands(form.third, form.pieces[2]))
            return form.mask[0] + regional.dateSeparator + form.mask[1] + regional.dateSeparator +
                   form.mask[2];
    }
    return "";
}

std::optional<DateTime> ParseDate(std::string_view text, const Regional& regional) {
    const std::string trimmed = Trim(text);
    std::string_view rest = trimmed;
    std::string_view parts[3];
    for (int i = 0; i < 3; ++i) {
        if (i > 0 && !TakeSeparator(rest, regional)) return std::nullopt;
        parts[i] = TakeDigits(rest);
        if (parts[i].empty() || parts[i].size() > 4) return std::nullopt;
    }
    int second = 0;
    if (!rest.empty()) {
        const auto time = rest[0] == ' ' || rest[0] == 'T' ? ParseTime(Trim(rest.substr(1))) : std::nullopt;
        if (!time) return std::nullopt;
        second = *time;
    }
    // A four-digit first part is a year in every order, so ISO is read on every machine.
    // One with four digits at the end is no day: there the day comes first where the machine has no say.
    const bool yearLast = parts[2].size() == 4;
    const bool ofYearFirst =
        regional.order == DateOrder::YearMonthDay || regional.order == DateOrder::YearDayMonth;
    const bool yearFirst = parts[0].size() == 4 || (ofYearFirst && !yearLast);
    const bool iso = parts[0].size() == 4 && trimmed.find('-') == 4 && Trim(regional.dateSeparator) != "-";
    const int y = yearFirst ? 0 : 2;
    const int m = yearFirst ? (regional.order == DateOrder::YearDayMonth && !iso ? 2 : 1)
                            : (regional.order == DateOrder::MonthDayYear ? 0 : 1);
    const int d = 3 - y - m;
    if (parts[y].size() == 3 || parts[m].size() > 2 || parts[d].size() > 2) return std::nullopt;
    const auto number = [&](int i) { return std::atoi(std::string(parts[i]).c_str()); };
    int year = number(y);
    if (parts[y].size() < 3) year += year < 30 ? 2000 : 1900;
    return MakeDate(year, number(m), number(d), second);
}

std::string FormatNumber(double number, std::string_view mask, const Regional& regional) {
    const auto point = mask.find('.');
    const std::string_view wholeMask = mask.substr(0, point);
    const std::string_view fractionMask = point == std::string_view::npos ? "" : mask.substr(point + 1);
    const auto least = static_cast<std::size_t>(std::count(wholeMask.begin(), wholeMask.end(), '0'));

    Decimal decimal(number);
    decimal.Round(static_cast<int>(fractionMask.size()));
    std::string whole = decimal.Whole(), fraction = decimal.Fraction();
    if (whole.size() < least) whole.insert(0, least - whole.size(), '0');
    if (wholeMask.find(',') != std::string_view::npos)
        for (auto at = whole.size(); at > 3; at -= 3) whole.insert(at - 3, 1, regional.group);
    // A zero in the mask fills all places before it: "#0" always shows two.
    const auto shown = fractionMask.find_last_of('0') + 1;
    if (fraction.size() < shown) fraction.append(shown - fraction.size(), '0');
    return (decimal.negative ? "-" : "") + whole + (fraction.empty() ? "" : regional.decimal + fraction);
}

std::string PlainNumber(double number, const Regional& regional) { return Plain(number, regional.decimal); }
std::string SqlNumber(double number) { return Plain(number, '.'); }

std::string MaskedInSql(double number, const Regional& regional) {
    return FormatNumber(number, regional.group == ',' ? "#,##0" : "#0", regional);
}

bool IsNumeric(std::string_view text, const Regional& regional) {
    std::string trimmed = Trim(text);
    std::string_view rest = trimmed;
    if (!rest.empty() && (rest[0] == '-' || rest[0] == '+')) rest.remove_prefix(1);
    bool digits = false, fraction = false;
    for (char c : rest) {
        if (IsDigit(c))
            digits = true;
        else if (c == regional.decimal && !fraction)
            fraction = true;
        else if (c != regional.group || !digits || fraction)
            return false;
    }
    return digits;
}

bool IsDate(std::string_view text, const Regional& regional) { return ParseDate(text, regional).has_value(); }

std::string ShowValue(const Value& value, const Regional& regional) {
    if (value.IsBool()) return value.Bool() ? "True" : "False";
    if (value.IsInteger()) return std::to_string(value.Integer());
    if (value.IsDouble()) return PlainNumber(value.Double(), regional);
    if (value.IsText()) return value.Text();
    if (value.IsDate()) return ShortDate(value.Date(), regional);
    return "";
}

} // namespace varnik
