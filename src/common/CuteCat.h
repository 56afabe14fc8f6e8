#pragma once
// Reads a barcode scanner that stands between keyboard and machine and types what it reads: Alt+F10, then
// ".number.type.data." and Enter, each of the three in a base-64 writing of its own. A form passes its keys
// here; those of a reading are told from ordinary typing and are not for its fields.

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace varnik {

class CuteCat {
public:
    CuteCat();

    // Key codes and shift states as the desktop platform counts them: F10 is 121, Alt is 4. True when the
    // key belongs to a reading.
    bool KeyDown(int keyCode, int shift);
    bool KeyPress(int keyAscii);

    // Of the last reading; "" after one that was broken.
    const std::string& BarcodeData() const { return data_; }
    const std::string& BarcodeType() const { return type_; }
    bool BarcodeValid() const { return valid_; }

    std::function<void()> onStart;
    std::function<void(const std::string& type, const std::string& data)> onEnd;
    // Sets the mouse pointer and gives the one that it replaces; 11 is the hourglass.
    std::function<int(int pointer)> setPointer;

    // A reading that goes on beyond this many characters has lost its end.
    static constexpr std::size_t LongestReading = 1024;

private:
    void Start();
    void End(std::string type, std::string data);
    void Decode();
    bool DecodeField(const std::string& field, std::string& text) const;

    std::array<std::int8_t, 256> table_{}; // value of a character, -1 for those of no value
    std::string buffer_, data_, type_;
    bool reading_ = false, valid_ = false;
    int pointer_ = 0;
};

} // namespace varnik
