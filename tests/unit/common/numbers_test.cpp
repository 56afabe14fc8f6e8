#include "common/Numbers.h"

#include "common/Numbering.h"

#include <gtest/gtest.h>

namespace varnik {
namespace {

const Regional English{};
const Regional German{DateOrder::DayMonthYear, ".", true, ',', '.'};

TEST(Numbers, FieldsAreReadByTheMachinesSeparator) {
    struct Case {
        const char* text;
        double english, german;
    };
    const Case cases[] = {
        {"Rp 1,234.50", 1234.5, 1.2345},
        {"1.234,50", 1.2345, 1234.5},
        {"", 0, 0},
        {"-", 0, 0},
        {"12-3", 123, 123},
        {"  -5", -5, -5},
        {"+7", 7, 7},
        {".5", .5, 5},
        {"1.2.3", 1.23, 123},
        {"abc", 0, 0},
        {"-0.05", -.05, -5},
        {"1 000", 1000, 1000},
    };
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(ToNumber(c.text, English), c.english) << c.text;
        EXPECT_DOUBLE_EQ(ToNumber(c.text, German), c.german) << c.text;
    }
    EXPECT_EQ(ToNumber(Value(), English), 0);
    EXPECT_DOUBLE_EQ(ToNumber(Value(-1234.5), German), -1234.5);
    EXPECT_DOUBLE_EQ(ToNumber(Value("1,234"), English), 1234);
    EXPECT_FALSE(std::signbit(ToNumber("-", English)));
}

TEST(Numbers, NullAndForeignTextsCountAsNothing) {
    EXPECT_EQ(NullToText(Value(), English), "");
    EXPECT_EQ(NullToText(Value(1234.5), German), "1234,5");
    EXPECT_EQ(NullToNumber(Value(), English), 0);
    EXPECT_EQ(NullToNumber(Value("12 apples"), English), 0);
    EXPECT_EQ(NullToNumber(Value("1,200.5"), English), 1200.5);
    EXPECT_EQ(NullToNumber(Value(true), English), -1);
    EXPECT_EQ(NullToNumber(Value(*MakeDate(2026, 1, 1)), English), 0);
}

TEST(Numbers, ValReadsLeadingDigits) {
    EXPECT_EQ(Val("000001,000"), 1);
    EXPECT_EQ(Val("0000000041"), 41);
    EXPECT_EQ(Val(" 1 2 . 5 x9"), 12.5);
    EXPECT_EQ(Val("-3-4"), -3);
    EXPECT_EQ(Val("+3"), 3);
    EXPECT_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Val("x1"), 0);
    EXPECT_EQ(Val("-"), 0);
}

TEST(Numbers, AmountsInWords) {
    const std::pair<const char*, const char*> cases[] = {
        {"1234", " One Thousand Two Hundred Thirty Four "},
        {"1,234", " One Thousand Two Hundred Thirty Four "},
        {"1000000", " One Million "},
        {"42", " Fourty Two "},
        {"110", " One Hundred Ten "},
        {"19", " Nineteen "},
        {"100000", " One Hundred Thousand "},
        {"999999999999999", " Nine Hundred Ninety Nine Trillion Nine Hundred Ninety Nine Billion Nine "
                            "Hundred Ninety Nine Million"
                            " Nine Hundred Ninety Nine Thousand Nine Hundred Ninety Nine "},
        {"0", "zero!"},
        {"", "zero!"},
        {"0.00", "zero!"},
        {"abc", "zero!"},
        {"1234567890123456", ""},
        {"12.50", " Twelve "},
        // The decimals shift the groups: no zero goes in front, and the last group has one digit.
        {"1234.5", " One Hundred Twenty Three Thousand Four Hundred "},
    };
    for (const auto& [amount, words] : cases) EXPECT_EQ(AmountInWords(amount), words) << amount;
}

TEST(Numbers, MonthsAndTheirDays) {
    EXPECT_EQ(MonthName(5), "Mei");
    EXPECT_EQ(MonthName(8), "Agust");
    EXPECT_EQ(MonthName(12), "December");
    EXPECT_EQ(MonthName(0) + MonthName(13), "");
    EXPECT_EQ(DaysInMonth(2, 1900), 29);
    EXPECT_EQ(DaysInMonth(2, 2023), 28);
    EXPECT_EQ(DaysInMonth(4, 2023) + DaysInMonth(12, 2023), 61);
    EXPECT_EQ(DaysInMonth(13, 2023), 0);
}

TEST(Numbering, EveryReadingGoesOnAsItsScreenDoes) {
    using enum CounterReading;
    struct Case {
        std::optional<std::string> counter;
        CounterReading reading;
        const char* next;
    };
    const Case cases[] = {
        {std::nullopt, LeadingDigits, "0000000001"}, {"0000000041", LeadingDigits, "0000000042"},
        {"0000000041", PlusOne, "0000000042"},       {"0000000041", WholeNumber, "0000000042"},
        {"0000000999", LeadingDigits, "000001,000"}, {"000001,000", LeadingDigits, "0000000002"},
        {"000001,000", PlusOne, "000001,001"},       {"000001,000", WholeNumber, "000001,001"},
        {"999,999", PlusOne, "01,000,000"},          {"SAMPLE", WholeNumber, "0000000001"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(NumberAfter(c.counter, c.reading, "07"), std::string(c.next) + "07")
            << c.counter.value_or("none");
    // Each rule stands at the place of its document.
    for (int i = 0; i <= static_cast<int>(Document::OtherPayment); ++i)
        EXPECT_EQ(static_cast<int>(NumberingOf(static_cast<Document>(i)).document), i);
}

} // namespace
} // namespace varnik
