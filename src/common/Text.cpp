#include "common/Text.h"

#include <algorithm>
#include <array>

namespace varnik {
namespace {

bool Continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// Byte offset of a character counted from 0; the text's size when it is shorter.
std::size_t Offset(std::string_view text, int character) {
    std::size_t at = 0;
    while (at < text.size() && character > 0) {
        ++at;
        while (at < text.size() && Continues(text[at])) ++at;
        --character;
    }
    return at;
}

// Code points of a text. A stray byte counts as the character of its own value.
std::vector<char32_t> Decode(std::string_view text) {
    std::vector<char32_t> characters;
    characters.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t more = lead >= 0xF0 && lead < 0xF8 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
        bool whole = lead < 0xF8 && i + more < text.size();
        for (std::size_t k = 1; whole && k <= more; ++k) whole = Continues(text[i + k]);
        if (more == 0 || !whole) {
            characters.push_back(lead);
            ++i;
            continue;
        }
        char32_t code = lead & (0x3Fu >> more);
        for (std::size_t k = 1; k <= more; ++k)
            code = (code << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3Fu);
        characters.push_back(code);
        i += more + 1;
    }
    return characters;
}

void Append(std::string& text, char32_t code) {
    const auto put = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | (code >> 6));
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | (code >> 12));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | (code >> 18));
        put(0x80 | ((code >> 12) & 0x3F));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    }
}

// Capitals of the Latin, Greek and Cyrillic letters that names on this desk are written in.
char32_t Capital(char32_t c) {
    if (c >= 'a' && c <= 'z') return c - 32;
    if (c < 0x80) return c;
    if (c == 0xFF) return 0x178;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 32;
    if ((c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177)) return c == 0x131 ? 'I' : c & ~char32_t{1};
    if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) return c % 2 == 0 ? c - 1 : c;
    if (c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2) return c - 32;
    if (c >= 0x430 && c <= 0x44F) return c - 32;
    if (c >= 0x450 && c <= 0x45F) return c - 80;
    return c;
}

} // namespace

std::string Trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return "";
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string RTrim(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string Upper(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) >= 0; })) {
        for (char c : text) result += c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
        return result;
    }
    for (char32_t c : Decode(text)) Append(result, Capital(c));
    return result;
}

std::string Left(std::string_view text, int length) {
    return std::string(text.substr(0, Offset(text, length)));
}

std::string Right(std::string_view text, int length) {
    return std::string(text.substr(Offset(text, Len(text) - std::max(length, 0))));
}

std::string Mid(std::string_view text, int start) {
    return std::string(text.substr(Offset(text, start - 1)));
}

std::string Mid(std::string_view text, int start, int length) {
    text.remove_prefix(Offset(text, start - 1));
    return Left(text, length);
}

int Len(std::string_view text) {
    return static_cast<int>(std::count_if(text.begin(), text.end(), [](char c) { return !Continues(c); }));
}

int InStr(std::string_view text, std::string_view search, int start) {
    const auto found = text.find(search, Offset(text, start - 1));
    return found == std::string_view::npos ? 0 : Len(text.substr(0, found)) + 1;
}

std::string Repeat(int count, char character) {
    return std::string(static_cast<std::size_t>(std::max(count, 0)), character);
}

std::string PadRight(std::string_view text, int width) {
    return std::string(text) + Repeat(width - Len(text), ' ');
}

bool EqualsNoCase(std::string_view a, std::string_view b) { return a == b || Upper(a) == Upper(b); }

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (;;) {
        const auto at = text.find(separator);
        parts.emplace_back(text.substr(0, at));
        if (at == std::string_view::npos) return parts;
        text.remove_prefix(at + 1);
    }
}

std::string TransformPassword(std::string_view text) { return RevealPassword(Trim(text)); }

std::string RevealPassword(std::string_view stored) {
    static constexpr std::string_view Key = "ZMXNCBVLAKSJDHFGQPWOEIRUTY,.;/1!2@3#4$5%6^7&8*9(0)";
    static_assert(Key.size() == 50);
    std::string result;
    std::size_t i = 0;
    // The first character meets the second of the key: stored passwords were made so.
    for (char32_t c : Decode(stored)) Append(result, c ^ static_cast<char32_t>(Key[++i % 50]));
    return result;
}

} // namespace varnik
