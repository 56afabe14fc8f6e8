#include "tests/walk/support/Texts.h"

#include "common/Text.h"

namespace varnik::walk {

using namespace std::string_literals;

const std::vector<std::string> Intrusions = {
    "'; DELETE FROM Produk; --",
    "'; Drop Table Customer; --",
    "x%' ; Update Bank Set SaldoAkhir = 0; Select '",
    "' OR '1'='1",
    "'OR''='",
    "%' OR 1=1 OR NamaBrg Like '%",
    "x' UNION SELECT UserID, [Password], NoUser, Tambah FROM T_User Where '1'='1",
    "' And (Delete From Supplier) And ''='",
    "#; DELETE FROM Invoice; #",
    "0; DELETE FROM Invoice",
    "1) ; Delete From Bank --",
    "[x]; DELETE FROM Supplier",
    "' /* ",
    "*/ ' --",
    "';\0DELETE FROM Produk"s,
    "' ; PRAGMA writable_schema = 1; --",
    "' ; ATTACH DATABASE 'x.db' AS x; --",
    "' Or "
    "right(right(right(right(right(right(right(right(right(right(right(right(right(right(right(right(right("
    "right(right(right(right(right(right(right('',1),1),1),1),1),1),1),1),1),1),1),1),1),1),1),1),1),1),1),1)"
    ",1),1)"
    ",1),1)='",
};

namespace {

const std::vector<std::string> Oddities = {
    ""s,
    " "s,
    "'"s,
    "''"s,
    "\""s,
    "%"s,
    "%s%n%d"s,
    "_"s,
    "*"s,
    "?"s,
    "["s,
    "]"s,
    "#"s,
    "&"s,
    "{"s,
    "}"s,
    "{sum x}"s,
    "O'Brien & \"Sons\""s,
    "a\tb"s,
    "a\r\nb"s,
    "\x01\x02\x1b[31m\x7f"s,
    "\0"s,
    "ab\0cd"s,
    "\xE4\xBD\xA0\xE5\xA5\xBD"s,                                     // Chinese
    "\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82"s,             // Cyrillic
    "\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7"s,                     // Arabic, right to left
    "e\xCC\x81\xCC\x82\xCC\x83\xCC\x84"s,                            // one letter of five characters
    "\xF0\x9F\x98\x80\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9"s, // beyond the basic plane
    "\xE2\x80\xAE"
    "abc"s, // turns the direction round
    "\xEF\xBB\xBF"s,
    "I\xC4\xB0\xC4\xB1\xC3\x9F\xC7\x86"s, // letters whose capitals are longer
    "CON"s,
    "../../x"s,
    "C:\\x\\y"s,
    "Null"s,
    "True"s,
    "=1+1"s,
};

const std::vector<std::string> Numbers = {
    "0",
    "1",
    "2",
    "12",
    "100",
    "-1",
    "-0",
    "0.5",
    "1.005",
    ",5",
    "1,234.56",
    "1.234,56",
    "999999999999999",
    "32767",
    "32768",
    "-32768",
    "2147483647",
    "2147483648",
    "-2147483648",
    "9223372036854775807",
    "9223372036854775808",
    "18446744073709551616",
    "1e308",
    "1e309",
    "-1e308",
    "1e-320",
    "nan",
    "inf",
    "-inf",
    "0x10",
    "1/0",
    "--1",
    "1-",
    "+1",
    "(5)",
    "1e",
    ".",
    "-",
    "00000000000000000000000001",
    "99999999999999999999999999999999",
    "0.000000000000000000001",
    "123456789.123456789",
    "100%",
    "Rp 5.000",
};

const std::vector<std::string> Dates = {
    "11/22/2026",
    "02/28/2026",
    "02/29/2024",
    "02/29/2026",
    "02/30/2026",
    "13/01/2026",
    "00/00/0000",
    "01/01/0001",
    "01/01/0100",
    "12/31/9999",
    "01/01/10000",
    "1/1/30",
    "1/1/29",
    "11-22-2026",
    "22.11.2026",
    "2026-11-22",
    "2026-11-22 25:61:61",
    "11/22",
    "/",
    "//",
    "11/22/2026/1",
    "99999999/1/1",
    "-1/-1/-1",
    "1/1/99999999999999999999",
    "11/22/2026 09:30:00",
    "abc",
};

} // namespace

std::string Texts::Number() {
    if (chance_.Percent(50)) return std::to_string(chance_.Below(30));
    return chance_.Of(Numbers);
}

std::string Texts::Date() { return chance_.Of(Dates); }

std::string Texts::Code() { return codes_.empty() ? "0000000001" : chance_.Of(codes_); }

std::string Texts::Bytes() {
    std::string text;
    for (int length = chance_.Below(40); length > 0; --length) text += static_cast<char>(chance_.Below(256));
    return text;
}

std::string Texts::Anything() {
    switch (chance_.Below(8)) {
    case 0:
        return chance_.Of(Intrusions);
    case 1:
        return Number();
    case 2:
        return Date();
    case 3:
        return Code();
    case 4: { // long
        std::string text;
        const std::string& piece = chance_.Of(Oddities);
        for (int times = 1 << chance_.Below(12); times > 0; --times) text += piece;
        return text;
    }
    case 5:
        return chance_.Percent(30) ? Bytes() : chance_.Of(Oddities) + chance_.Of(Oddities);
    default:
        return chance_.Of(Oddities);
    }
}

std::string Texts::For(std::string_view field) { return chance_.Percent(45) ? Anything() : Fitting(field); }

std::string Texts::Fitting(std::string_view field) {
    const std::string name = Upper(field);
    const auto speaksOf = [&](std::initializer_list<std::string_view> words) {
        return std::ranges::any_of(
            words, [&](std::string_view word) { return name.find(word) != std::string::npos; });
    };
    if (speaksOf({"TGL", "JTP", "DATE"})) return chance_.Percent(70) ? "11/22/2026" : Date();
    if (speaksOf({"QTY", "HARGA", "DIS", "PPN", "JUM", "BAYAR", "SALDO", "PECAHAN", "TOTAL"}))
        return Number();
    if (speaksOf({"KODE", "NO", "REK", "VALUE"})) return Code();
    return chance_.Percent(60) ? "Goods" : Anything();
}

} // namespace varnik::walk
