#pragma once
// The tolerant readings behind every field, and amounts in words.

#include "common/Regional.h"
#include "common/Value.h"

#include <array>
#include <string>
#include <string_view>

namespace varnik {

// Reads whatever stands in a field as a number: all but digits, a leading "-" and the machine's decimal
// separator is dropped; no digits or Null give 0. "Rp 1,234.50" is 1234.5 where the full stop separates.
double ToNumber(std::string_view text, const Regional& regional);
double ToNumber(const Value& value, const Regional& regional);
inline double ToNumber(const std::string& text, const Regional& regional) {
    return ToNumber(std::string_view(text), regional);
}
inline double ToNumber(const char* text, const Regional& regional) {
    return ToNumber(std::string_view(text), regional);
}
// Text of a value, "" for Null.
std::string NullToText(const Value& value, const Regional& regional);
// 0 for Null and anything that is not numeric.
double NullToNumber(const Value& value, const Regional& regional);
// A text's leading digits as a number, stopping at the first character that cannot continue it; the full
// stop is the only decimal point, blanks are passed over. 0 when there are none.
double Val(std::string_view text);

// English words of a whole amount given as digits ("1234" is " One Thousand Two Hundred Thirty Four "):
// with a blank at each end, "Fourty" spelled so, "zero!" for 0, "" beyond five groups of three.
std::string AmountInWords(std::string_view amount);
std::string ReplaceText(std::string_view text, std::string_view search, std::string_view replacement);

std::string MonthName(int month);     // "January" ... "Mei" ... "Agust"; "" for anything else
int DaysInMonth(int month, int year); // every fourth year is a leap year; 0 for no month

} // namespace varnik
