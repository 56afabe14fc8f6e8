#include "common/Regional.h"

#include <gtest/gtest.h>

namespace varnik {
namespace {

const Regional English{};
const Regional German{DateOrder::DayMonthYear, ".", true, ',', '.'};
const Regional Swedish{DateOrder::YearMonthDay, "-", true, ',', ' '};
const Regional DayInTheMiddle{DateOrder::YearDayMonth, "/", true, '.', '\''};

TEST(Regional, MasksRoundHalfAwayFromZeroOnTheDecimalText) {
    struct Case {
        double number;
        const char *mask, *english, *german;
    };
    const Case cases[] = {
        {1234567, "#,##0", "1,234,567", "1.234.567"},
        {0, "#,##0", "0", "0"},
        {-1234.5, "#,##0", "-1,235", "-1.235"},
        {2.5, "#,##0", "3", "3"},
        {0.5, "#0", "1", "1"},
        {-0.4, "#0", "0", "0"},
        {999.5, "#,##0", "1,000", "1.000"},
        {1.005, "#,##0.#0", "1.01", "1,01"}, // a binary 1.00499999...
        {1500.75, "#0", "1501", "1501"},
        {110000, "#,##0.#0", "110,000.00", "110.000,00"},
        {0.05, "#,##0.#0", "0.05", "0,05"},
        {0.004, "#,##0.#0", "0.00", "0,00"},
        {12.5, "#,##0.##", "12.5", "12,5"},
        {7, "000", "007", "007"},
        {1e15, "#,##0", "1,000,000,000,000,000", "1.000.000.000.000.000"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FormatNumber(c.number, c.mask, English), c.english);
        EXPECT_EQ(FormatNumber(c.number, c.mask, German), c.german);
    }
}

TEST(Regional, PlainNumbersHaveNoBinaryTail) {
    EXPECT_EQ(PlainNumber(0.1 + 0.2, German), "0,3");
    EXPECT_EQ(SqlNumber(-1234.5), "-1234.5");
    // Into a statement a comma goes as it is shown, any other separator does not.
    EXPECT_EQ(MaskedInSql(-1234.5, English) + " " + MaskedInSql(999.4, English), "-1,235 999");
    for (const auto& regional : {German, Swedish, DayInTheMiddle})
        EXPECT_EQ(MaskedInSql(-1234.5, regional) + " " + MaskedInSql(0, regional), "-1235 0");
    EXPECT_EQ(SqlNumber(-0.0), "0");
    EXPECT_EQ(SqlNumber(1e20), "100000000000000000000");
    EXPECT_EQ(SqlNumber(0.000123), "0.000123");
    EXPECT_EQ(ShowValue(Value(true), English) + ShowValue(Value(12), English) + ShowValue(Value(), English),
              "True12");
}

TEST(Regional, WhatIsNumeric) {
    for (const char* yes : {"1", " -1,234.50 ", "+.5", "12.", "1,2,3"})
        EXPECT_TRUE(IsNumeric(yes, English)) << yes;
    for (const char* no : {"", "-", "1.2.3", "1.2,3", "12a", "1-", "Rp 5"})
        EXPECT_FALSE(IsNumeric(no, English)) << no;
    EXPECT_TRUE(IsNumeric("1.234,5", German));
    EXPECT_FALSE(IsNumeric("1,234.5", German));
}

TEST(Regional, DatesAreReadInTheMachinesOrder) {
    const auto date = MakeDate(2026, 3, 4);
    for (const char* text : {"03/04/2026", "3/4/26", " 3-4-2026 ", "3.4.2026", "2026-03-04", "2026/3/4"})
        EXPECT_EQ(ParseDate(text, English), date) << text;
    for (const char* text : {"04.03.2026", "4/3/26", "2026-03-04", "4. 3. 2026"})
        EXPECT_EQ(ParseDate(text, German), date) << text;
    EXPECT_EQ(ParseDate("26-3-4", Swedish), date);
    for (const char* text : {"2026/04/03", "26/4/3", "2026.4.3", "2026-03-04", "4/3/2026"})
        EXPECT_EQ(ParseDate(text, DayInTheMiddle), date) << text;
    EXPECT_EQ(ParseDate("04/ 3/ 2026", Swedish), date); // no day has four digits
    EXPECT_EQ(ParseDate("4/3/2026 09:30:05", German), MakeDate(2026, 3, 4, 9 * 3600 + 30 * 60 + 5));
    EXPECT_EQ(ParseDate("1/1/30", English), MakeDate(1930, 1, 1));
    EXPECT_EQ(ParseDate("1/1/29", English), MakeDate(2029, 1, 1));
    for (const char* text :
         {"", "31/12/2026", "2/30/2026", "3/4", "3/4/2026x", "3/4/202", "3//4/2026", "3/4/2026 25:00"})
        EXPECT_FALSE(IsDate(text, English)) << text;
    EXPECT_TRUE(IsDate("29.02.2024", German));
    EXPECT_FALSE(IsDate("29.02.2023", German));
}

TEST(Regional, ShortDatesAndMasksAgree) {
    const DateTime date = *MakeDate(2026, 3, 4, 9 * 3600 + 5);
    for (const auto& regional : {English, German, Swedish, DayInTheMiddle})
        EXPECT_EQ(FormatDate(date, DateMaskOfMachine(regional)), ShortDate(date, regional));
    EXPECT_EQ(FormatDate(date, "dd-mm-yyyy hh:mm:ss"), "04-03-2026 09:00:05");
    EXPECT_EQ(FormatDate(date, "hh:mm mm"), "09:00 03");

    EXPECT_EQ(DateMaskOfMachine(English), "mm/dd/yyyy");
    EXPECT_EQ(DateMaskOfMachine(German), "dd.mm.yyyy");
    EXPECT_EQ(DateMaskOfMachine(Swedish), "yyyy-mm-dd");
    EXPECT_EQ(DateMaskOfMachine({DateOrder::DayMonthYear, "/", false, '.', ','}), "dd/mm/yy");
    EXPECT_EQ(DateMaskOfMachine({DateOrder::YearMonthDay, "/", false, '.', ','}), "yy/mm/dd");
    EXPECT_EQ(DateMaskOfMachine({DateOrder::DayMonthYear, ". ", true, '.', ','}), "");
}

TEST(DateTime, StoredFormAndCalendar) {
    EXPECT_EQ(ToIso(*MakeDate(2026, 11, 22)), "2026-11-22");
    EXPECT_EQ(ToIso(*MakeDate(2026, 11, 22, 34200)), "2026-11-22 09:30:00");
    for (const char* text : {"2026-11-22", "1899-12-30", "2024-02-29 23:59:59", "0001-01-01", "9999-12-31"})
        EXPECT_EQ(ToIso(FromIso(text).value()), text);
    for (const char* text :
         {"", "2026-02-29", "2026-13-01", "2026/01/01", "2026-01-01 24:00:00", "2026-01-01 09:30"})
        EXPECT_FALSE(FromIso(text)) << text;
    EXPECT_EQ(ToIso(AddDays(*MakeDate(2024, 2, 28), 2)), "2024-03-01");
    EXPECT_EQ(MakeDate(1970, 1, 1)->day, 0);
}

} // namespace
} // namespace varnik
