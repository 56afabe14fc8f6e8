#pragma once
// The text routines in which the rules are written. Positions count from 1 and characters are Unicode
// characters, not bytes; texts are UTF-8. "Trim" takes blanks alone, not tabs or line breaks.

#include <string>
#include <string_view>
#include <vector>

namespace varnik {

std::string Trim(std::string_view text);
std::string RTrim(std::string_view text);
std::string Upper(std::string_view text);
std::string Left(std::string_view text, int length);
std::string Right(std::string_view text, int length);
std::string Mid(std::string_view text, int start);
std::string Mid(std::string_view text, int start, int length);
int Len(std::string_view text);
// First position of search in text at or after start, 0 when it is not there.
int InStr(std::string_view text, std::string_view search, int start = 1);
std::string Repeat(int count, char character);          // "" when count is not positive
std::string PadRight(std::string_view text, int width); // blanks on the right; longer texts stay whole
bool EqualsNoCase(std::string_view a, std::string_view b);
std::vector<std::string> Split(std::string_view text, char separator);

inline constexpr std::string_view CrLf = "\r\n";

// The stored form of a password: each character of the trimmed text against a fixed key of 50. Its own
// inverse, apart from the trim; the result may hold control characters, the null character included.
std::string TransformPassword(std::string_view text);
// The password behind a stored form: the transform without the trim, since a blank at an edge of a stored
// form stands for a character of the password.
std::string RevealPassword(std::string_view stored);

} // namespace varnik
