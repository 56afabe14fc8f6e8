// Numbers, words, dates, texts and barcodes.

#include "common/CuteCat.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "tests/fuzz/Targets.h"

#include <cmath>
#include <utility>

namespace varnik::fuzz {

namespace {

// The first byte chooses among machines.
Regional MachineOf(std::string_view& input) {
    const unsigned char choice = input.empty() ? 0 : static_cast<unsigned char>(input[0]);
    if (!input.empty()) input.remove_prefix(1);
    Regional regional;
    regional.order = static_cast<DateOrder>(choice % 4);
    regional.fourDigitYear = (choice & 4) != 0;
    static constexpr const char* separators[] = {"/", "-", ".", " ", ". ", "", "d", "00"};
    regional.dateSeparator = separators[choice >> 3 & 7];
    if ((choice & 64) != 0) {
        regional.decimal = ',';
        regional.group = (choice & 128) != 0 ? ' ' : '.';
    }
    return regional;
}

constexpr const char* Masks[] = {"#,##0", "#,##0.#0", "#0", "#,##0.00", "0000000000", "###,###,##0.##"};

} // namespace

void FuzzNumber(std::string_view input) {
    const Regional regional = MachineOf(input);
    const double number = ToNumber(input, regional);
    Require(!std::isnan(number) && !std::isinf(number), "a number that is none");
    Require(!IsNumeric(input, regional) || std::isfinite(NullToNumber(Value(input), regional)),
            "a numeric text without a number");
    Require(std::isfinite(Val(input)), "leading digits that are no number");
    for (const char* mask : Masks) {
        const std::string shown = FormatNumber(number, mask, regional);
        const double read = ToNumber(shown, regional);
        // What is shown is read back the same.
        Require(FormatNumber(read, mask, regional) == shown, "a shown number is read back as another");
    }
    const std::string plain = PlainNumber(number, regional), sql = SqlNumber(number);
    Require(PlainNumber(ToNumber(plain, regional), regional) == plain,
            "a plain number is read back as another");
    Require(sql.find_first_not_of("-.0123456789") == std::string::npos,
            "a number of a statement that is none");
}

void FuzzWords(std::string_view input) {
    const std::string words = AmountInWords(input);
    Require(words.size() < 600, "words without end");
    for (const char c : words)
        Require(c == ' ' || c == '!' || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'),
                "words of other than letters");
}

void FuzzDate(std::string_view input) {
    const Regional regional = MachineOf(input);
    const std::string mask = DateMaskOfMachine(regional);
    for (const auto& date : {ParseDate(input, regional), FromIso(input)}) {
        if (!date) continue;
        Require(FromIso(ToIso(*date)) == date, "a stored date is read back as another");
        const CalendarDate calendar = ToCalendar(*date);
        Require(calendar.year >= 1 && calendar.year <= 9999, "a year out of bounds");
        const std::string shown = ShortDate(*date, regional);
        // With other separators the machine's own text is its own affair.
        const bool plain =
            regional.dateSeparator == "/" || regional.dateSeparator == "-" || regional.dateSeparator == ".";
        if (regional.fourDigitYear && plain)
            Require(ParseDate(shown, regional) == DateTime{date->day, 0},
                    "a shown date is read back as another");
        FormatDate(*date, mask);
    }
    FormatDate(DateTime{20779, 34200}, input);
    Require(IsDate(input, regional) == ParseDate(input, regional).has_value(), "a date that is none");
}

void FuzzText(std::string_view input) {
    const int cut = input.empty() ? 0 : static_cast<signed char>(input[0]);
    const int length = Len(input);
    Require(Left(input, cut).size() <= input.size(), "a piece longer than its text");
    if (cut >= 0 && length >= cut)
        Require(Left(input, cut) + Mid(input, cut + 1) == input, "two pieces that are not the text");
    Right(input, cut);
    Mid(input, cut, cut);
    InStr(input, input.substr(0, input.size() / 2), cut);
    Require(EqualsNoCase(input, input), "a text that is not its own");
    Upper(input);
    PadRight(input, cut);
    Require(ReplaceText(ReplaceText(input, "'", "''"), "''", "'").size() <= input.size(),
            "a text that grows");
    RevealPassword(TransformPassword(input));
    std::size_t together = 0;
    const auto parts = Split(input, ',');
    for (const std::string& part : parts) together += part.size();
    Require(together + parts.size() - 1 == input.size(), "parts that are not the text");
}

void FuzzBarcode(std::string_view input) {
    CuteCat reader;
    int starts = 0, ends = 0, pointer = 7;
    reader.onStart = [&] { ++starts; };
    reader.onEnd = [&](const std::string& type, const std::string& data) {
        ++ends;
        Require(type == reader.BarcodeType() && data == reader.BarcodeData(),
                "another reading than it tells");
    };
    reader.setPointer = [&](int next) { return std::exchange(pointer, next); };
    bool reading = false;
    for (const char key : input) {
        if (key == '\x01')
            reading = reader.KeyDown(121, 4);
        else if (key == '\x02')
            reader.KeyDown(65, 0);
        else
            reader.KeyPress(static_cast<signed char>(key) == -1 ? 300 : static_cast<unsigned char>(key));
    }
    Require(starts == ends || (reading && starts == ends + 1), "a reading that began twice");
    Require(reader.BarcodeValid() == !reader.BarcodeData().empty(), "a valid reading of nothing");
    Require((pointer == 7) == (starts == ends), "the mouse pointer stays as it was in a reading");
    Require(reader.BarcodeData().size() <= 2 * CuteCat::LongestReading, "a reading without end");
}

} // namespace varnik::fuzz
