#include "common/CuteCat.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <string_view>
#include <utility>

namespace varnik {

namespace {

constexpr int F10 = 121, AltState = 4, Enter = 13, Hourglass = 11;
// "+" and "-" for the last two are this program's own choice.
constexpr std::string_view Alphabet = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-";
static_assert(Alphabet.size() == 64);

void AppendByte(std::string& text, unsigned byte) {
    if (byte < 0x80) {
        text += static_cast<char>(byte);
    } else {
        text += static_cast<char>(0xC0 | (byte >> 6));
        text += static_cast<char>(0x80 | (byte & 0x3F));
    }
}

} // namespace

CuteCat::CuteCat() {
    table_.fill(-1);
    for (std::size_t value = 0; value < Alphabet.size(); ++value)
        table_[static_cast<unsigned char>(Alphabet[value])] = static_cast<std::int8_t>(value);
}

bool CuteCat::KeyDown(int keyCode, int shift) {
    if (keyCode != F10 || shift != AltState) return reading_;
    if (reading_) End("", ""); // broken off: every start has its end, and the pointer its way back
    Start();
    return true;
}

bool CuteCat::KeyPress(int keyAscii) {
    if (!reading_) return false;
    if (keyAscii == Enter) {
        Decode();
    } else if (keyAscii < 0 || keyAscii > 255 || buffer_.size() == LongestReading ||
               (buffer_.empty() && keyAscii != '.')) {
        End("", "");
    } else {
        buffer_ += static_cast<char>(keyAscii);
    }
    return true;
}

void CuteCat::Start() {
    reading_ = true;
    buffer_.clear();
    if (onStart) onStart();
    if (setPointer) pointer_ = setPointer(Hourglass);
}

void CuteCat::End(std::string type, std::string data) {
    reading_ = false;
    buffer_.clear();
    type_ = std::move(type);
    data_ = std::move(data);
    valid_ = !data_.empty();
    if (setPointer) setPointer(pointer_);
    if (onEnd) onEnd(type_, data_);
}

void CuteCat::Decode() {
    const std::vector<std::string> parts = Split(buffer_, '.');
    std::string type, data;
    const bool whole = parts.size() == 5 && parts.front().empty() && parts.back().empty() &&
                       DecodeField(parts[2], type) && DecodeField(parts[3], data);
    if (whole)
        End(std::move(type), std::move(data));
    else
        End("", "");
}

// Four characters of six bits are three bytes; two or three at the end are one or two.
bool CuteCat::DecodeField(const std::string& field, std::string& text) const {
    std::string plain = field;
    for (const std::string_view dropped : {"\r", "\n", "="}) plain = ReplaceText(plain, dropped, "");
    if (plain.size() % 4 == 1) return false;
    std::uint32_t bits = 0;
    int held = 0; // bits not yet turned into a byte
    for (const char c : plain) {
        const int value = table_[static_cast<unsigned char>(c)];
        if (value < 0) return false;
        bits = (bits << 6 | static_cast<std::uint32_t>(value)) & 0xFFFF;
        held += 6;
        if (held < 8) continue;
        held -= 8;
        AppendByte(text, (bits >> held) & 0xFF);
    }
    return true;
}

} // namespace varnik
