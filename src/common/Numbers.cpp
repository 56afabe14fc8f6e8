#include "common/Numbers.h"

#include "common/Text.h"

#include <charconv>
#include <cmath>

namespace varnik {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Digits with at most one full stop, on every machine; 0 for none.
double Number(const std::string& digits) {
    double number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

constexpr const char* Ones[] = {"", "One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine"};
constexpr const char* Tens[] = {
    "",      "",      "Twenty",  "Thirty", "Fourty", // spelled so on every document
    "Fifty", "Sixty", "Seventy", "Eighty", "Ninety"};
constexpr const char* Teens[] = {"Ten",     "Eleven",  "Twelve",    "Thirteen", "Fourteen",
                                 "Fifteen", "Sixteen", "Seventeen", "Eighteen", "Nineteen"};
constexpr const char* Scale[] = {"", "", " Thousand", " Million", " Billion", " Trillion"};

// Words of up to three digits. A digit that is missing, or none, adds nothing.
std::string GroupInWords(std::string_view group) {
    const auto digit = [&](std::size_t i) {
        return i < group.size() && IsDigit(group[i]) ? group[i] - '0' : 0;
    };
    std::string words;
    if (digit(0) != 0) words += std::string(" ") + Ones[digit(0)] + " Hundred";
    if (digit(1) == 1) return words + " " + Teens[digit(2)];
    if (digit(1) != 0) words += std::string(" ") + Tens[digit(1)];
    if (digit(2) != 0) words += std::string(" ") + Ones[digit(2)];
    return words;
}

} // namespace

double ToNumber(std::string_view text, const Regional& regional) {
    const std::string trimmed = Trim(text);
    const double sign = !trimmed.empty() && trimmed[0] == '-' ? -1 : 1;
    std::string whole, fraction;
    bool pastSeparator = false;
    for (char c : trimmed) {
        if (c == regional.decimal)
            pastSeparator = true;
        else if (IsDigit(c))
            (pastSeparator ? fraction : whole) += c;
    }
    const double below = Number(fraction) / std::pow(10.0, static_cast<double>(fraction.size()));
    return sign * (Number(whole) + below) + 0.0; // no negative zero
}

double ToNumber(const Value& value, const Regional& regional) {
    return ToNumber(std::string_view(ShowValue(value, regional)), regional);
}

std::string NullToText(const Value& value, const Regional& regional) { return ShowValue(value, regional); }

double NullToNumber(const Value& value, const Regional& regional) {
    if (value.IsBool()) return value.Bool() ? -1 : 0;
    if (value.IsInteger()) return static_cast<double>(value.Integer());
    if (value.IsDouble()) return value.Double();
    return value.IsText() && IsNumeric(value.Text(), regional) ? ToNumber(value, regional) : 0;
}

double Val(std::string_view text) {
    std::string digits;
    bool seenSign = false, seenPoint = false;
    for (char c : text) {
        if (c == ' ') continue;
        const bool sign = (c == '-' || c == '+') && digits.empty() && !seenSign;
        const bool point = c == '.' && !seenPoint;
        if (!IsDigit(c) && !sign && !point) break;
        seenPoint = seenPoint || point;
        seenSign = seenSign || sign;
        if (c != '+') digits += c;
    }
    return Number(digits);
}

std::string AmountInWords(std::string_view amount) {
    std::string digits = Trim(ReplaceText(amount, ",", ""));
    if (Val(digits) == 0) return "zero!";
    // The length still counts the decimals that are cut: a fraction may shift the groups, as it always has.
    int n = Len(digits);
    digits = digits.substr(0, digits.find('.'));
    while (n % 3 != 0) {
        digits.insert(0, 1, '0');
        n = Len(digits);
    }
    std::string words;
    int group = 1;
    for (int position = n - 2; position >= 1; position -= 3, ++group) {
        const std::string spoken = GroupInWords(Mid(digits, position, 3));
        if (spoken.empty()) continue;
        if (group > 5) return "";
        words.insert(0, spoken + Scale[group]);
    }
    return words + " ";
}

std::string ReplaceText(std::string_view text, std::string_view search, std::string_view replacement) {
    std::string result;
    if (search.empty()) return std::string(text);
    for (;;) {
        const auto at = text.find(search);
        result += text.substr(0, at);
        if (at == std::string_view::npos) return result;
        result += replacement;
        text.remove_prefix(at + search.size());
    }
}

std::string MonthName(int month) {
    // "Mei" and "Agust" stand on the reports of every shop.
    static constexpr const char* Names[] = {"January",   "February", "March",    "April",
                                            "Mei",       "June",     "July",     "Agust",
                                            "September", "October",  "November", "December"};
    return month >= 1 && month <= 12 ? Names[month - 1] : "";
}

int DaysInMonth(int month, int year) {
    switch (month) {
    case 2:
        return (year & 3) == 0 ? 29 : 28; // no century rule
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    default:
        return month >= 1 && month <= 12 ? 31 : 0;
    }
}

} // namespace varnik
