// Page breaks are arithmetic; here they are checked against the pages themselves, on random rows. The seed
// is printed, so that a failure comes back.

#include "reports/engine/TextMetrics.h"
#include "tests/unit/reports/ReportCases.h"

#include <gmock/gmock.h>
#include <random>
#include <set>

using namespace varnik;
using namespace varnik::reports;

namespace {

constexpr const char* Grouped = R"(
title = "Sales"
[[group]]
by = "Type"
header = "Type {Type}"
footer = "End of type {Type}"
[[group]]
by = "Customer"
header = "Customer {Customer}"
footer = "End of customer {Customer}"
[[column]]
heading = "Row"
field = "Id"
width = 22
[[column]]
heading = "Description"
field = "Name"
width = 40
flex = true
[[column]]
heading = "Amount"
field = "Amount"
total = true
)";

std::string RowName(int row) { return "R" + std::to_string(1'000'000 + row); }

Rows RandomRows(std::mt19937& random, int count) {
    Rows rows({"Id", "Name", "Type", "Customer", "Amount"});
    int type = 1, customer = 1;
    for (int row = 0; row < count; ++row) {
        if (random() % 23 == 0) ++type;
        if (random() % 6 == 0) ++customer;
        std::string name;
        for (std::size_t word = 0; word < 1 + random() % 14; ++word)
            name += std::string(1 + random() % 11, static_cast<char>('a' + random() % 26)) + " ";
        rows.Add(std::array<Value, 5>{Value(RowName(row)), Value(name), Value("T" + std::to_string(type)),
                                      Value("C" + std::to_string(customer)),
                                      Value(static_cast<double>(random() % 1'000'000'000) / 4)});
    }
    return rows;
}

bool Overlap(const Area& a, const Area& b) {
    constexpr double Touch = 0.01;
    return a.x + a.width > b.x + Touch && b.x + b.width > a.x + Touch && a.y + a.height > b.y + Touch &&
           b.y + b.height > a.y + Touch;
}

// What holds for every page of every report.
void CheckPage(const Page& page, int pages) {
    for (std::size_t i = 0; i < page.runs.size(); ++i) {
        const TextRun& run = page.runs[i];
        EXPECT_GE(run.area.x, 12);
        EXPECT_LE(run.area.x + run.area.width, page.width - 12 + 0.01);
        EXPECT_LE(run.area.y + run.area.height, page.height - 12 + 0.01);
        EXPECT_LE(TextWidth(run.text, run.size, run.bold), run.area.width + 0.01) << run.text;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(Overlap(run.area, page.runs[j].area)) << run.text << " on " << page.runs[j].text;
    }
    EXPECT_EQ(page.runs.back().text, "Page " + std::to_string(page.number) + " of " + std::to_string(pages));
}

} // namespace

TEST(Paging, EveryRowStandsOnceUnderItsHeadings) {
    for (unsigned seed = 1; seed <= 25; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const int count = static_cast<int>(random() % 400);
        const Report report(ReadDefinition(Grouped, "Sales.rpt"), RandomRows(random, count), FactsOf());
        int next = 0;
        for (int number = 1; number <= report.PageCount(); ++number) {
            const Page page = report.BuildPage(number);
            CheckPage(page, report.PageCount());
            bool headings = false, rowSinceHeader = true, anyRow = false;
            for (const TextRun& run : page.runs) {
                headings = headings || run.text == "Description";
                if (run.text == RowName(next)) {
                    EXPECT_TRUE(headings);
                    ++next;
                    rowSinceHeader = anyRow = true;
                } else {
                    EXPECT_NE(run.text.substr(0, 2), "R1") << "a row twice, or out of order";
                }
                if (run.text.starts_with("Type ") || run.text.starts_with("Customer "))
                    rowSinceHeader = false;
            }
            EXPECT_TRUE(rowSinceHeader) << "a group's heading without a row under it";
            EXPECT_TRUE(anyRow || count == 0) << "a page of totals alone";
        }
        EXPECT_EQ(next, count);
    }
}

// Of every product's card the opening line stands with the first movement, the closing one with the last.
TEST(Paging, AGroupsBalancesStayWithItsRows) {
    Rows rows({"ID", "Tanggal", "KodeBrg", "NamaBrg", "Memo", "Masuk", "Qty2", "Saldo"});
    int id = 0;
    for (int product = 0; product < 200; ++product)
        for (int row = 0; row <= product % 4; ++row)
            rows.Add(std::array<Value, 8>{Value(++id), Value(*FromIso("2026-11-02")),
                                          Value("P" + std::to_string(1000 + product)), Value("Goods"),
                                          Value("Sold"), Value(0), Value(2.5), Value(100 - 2.5 * row)});
    const Report report(LoadDefinition("Report", "Stok.rpt"), std::move(rows), FactsOf());
    ASSERT_GT(report.PageCount(), 5);
    int openings = 0, closings = 0;
    for (int number = 1; number <= report.PageCount(); ++number) {
        std::vector<std::string> texts;
        for (const TextRun& run : report.BuildPage(number).runs) texts.push_back(run.text);
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (texts[i] == "Opening balance") {
                ++openings;
                ASSERT_LT(i + 2, texts.size());
                EXPECT_EQ(texts[i + 1], "02/11/2026") << "page " << number;
                EXPECT_EQ(texts[i - 1], "102.5");
            }
            if (texts[i] == "Closing balance") {
                ++closings;
                EXPECT_NE(std::find(texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(i), "Sold"),
                          texts.begin() + static_cast<std::ptrdiff_t>(i));
            }
        }
    }
    EXPECT_EQ(openings, 200);
    EXPECT_EQ(closings, 200);
}

TEST(Paging, AGroupThatGoesOnSaysSo) {
    Rows rows({"Id", "Name", "Type", "Customer", "Amount"});
    for (int row = 0; row < 100; ++row)
        rows.Add(std::array<Value, 5>{Value(RowName(row)), Value("x"), Value("T"), Value("C"), Value(1)});
    const Report report(ReadDefinition(Grouped, "Sales.rpt"), std::move(rows), FactsOf());
    ASSERT_GT(report.PageCount(), 1);
    EXPECT_THAT(report.Text(1), testing::Not(testing::HasSubstr("continued")));
    EXPECT_THAT(report.Text(2), testing::HasSubstr("Type T (continued)"));
    EXPECT_THAT(report.Text(2), testing::HasSubstr("Customer C (continued)"));
}

// An invoice of any length ends with its totals, words and signatures together, and never without a line.
TEST(Paging, ADocumentsFootStaysTogetherWithItsLastLine) {
    for (int lines = 1; lines <= 90; ++lines) {
        SCOPED_TRACE(lines);
        std::string table = "NoInvoice|KodeBrg|NamaBrg|Qty#|Harga#|Netto#|PPN#|Total#\n";
        for (int line = 1; line <= lines; ++line)
            table += "000000000100|" + RowName(line) + "|Goods|1|1000|900|100|1000\n";
        const Report report(LoadDefinition("Report", "Invoice.rpt"), RowsOf(table), FactsOf());
        const Page last = report.BuildPage(report.PageCount());
        CheckPage(last, report.PageCount());
        std::set<std::string> texts;
        for (const TextRun& run : last.runs) texts.insert(run.text);
        for (const std::string& expected :
             {std::string("Netto"), std::string("Total"), std::string("In words"), std::string("Approved by"),
              RowName(lines)})
            EXPECT_TRUE(texts.contains(expected)) << expected;
        for (int page = 1; page < report.PageCount(); ++page)
            EXPECT_THAT(report.Text(page), testing::Not(testing::HasSubstr("Netto")));
    }
}

// Twelve digits with decimals in many columns: smaller type, but every figure whole.
TEST(Paging, WideFiguresAreNeverCut) {
    std::string definition = "title = \"Wide\"\n", table = "Name", row = "\nSomebody";
    for (int i = 0; i < 11; ++i) {
        const std::string name = "F" + std::to_string(i);
        definition += "[[column]]\nheading = \"" + name + "\"\nfield = \"" + name + "\"\ntotal = true\n";
        table += "|" + name + "#";
        row += "|-999999999999.25";
    }
    definition = "paper = \"across\"\n" + definition +
                 "[[column]]\nheading = \"Name\"\nfield = \"Name\"\nflex = true\n";
    const Report report(ReadDefinition(definition, "Wide.rpt"), RowsOf(table + row + row), FactsOf());
    const Page page = report.BuildPage(1);
    CheckPage(page, 1);
    EXPECT_EQ(std::count_if(page.runs.begin(), page.runs.end(),
                            [](const TextRun& run) { return run.text == "-999,999,999,999.25"; }),
              22);
    EXPECT_EQ(std::count_if(page.runs.begin(), page.runs.end(),
                            [](const TextRun& run) { return run.text == "-1,999,999,999,998.50"; }),
              11);
}

TEST(Paging, FindGoesThroughAllPagesBothWays) {
    std::mt19937 random(7);
    const Report report(ReadDefinition(Grouped, "Sales.rpt"), RandomRows(random, 300), FactsOf());
    const auto last = report.Find(RowName(299));
    ASSERT_TRUE(last);
    EXPECT_EQ(last->page, report.PageCount());
    EXPECT_EQ(report.BuildPage(last->page).runs[static_cast<std::size_t>(last->run)].text, RowName(299));
    EXPECT_EQ(report.Find(RowName(299), last), last) << "the only one is found again, once round";
    EXPECT_EQ(report.Find(RowName(299), last, false), last);
    int rows = 0;
    std::set<std::pair<int, int>> places;
    for (auto hit = report.Find("r1000"); places.insert({hit->page, hit->run}).second; ++rows)
        hit = report.Find("r1000", hit);
    EXPECT_EQ(rows, 300);
    EXPECT_FALSE(report.Find("nowhere"));
    EXPECT_FALSE(report.Find(RowName(299), {}, true, [](long, long) { return false; })) << "stopped";
}

TEST(Paging, FindSeesATextThatGoesOnInTheNextLine) {
    const std::string name =
        "Pasir beton dari Cimalaka, dicuci dan disaring, diantar sampai ke tempat pembangunan";
    const Report report(LoadDefinition("Report", "Invoice.rpt"),
                        RowsOf("KodeBrg|NamaBrg|Qty#|Harga#\nB1|" + name + "|1|2\nB2|Semen|1|2"), FactsOf());
    const Page page = report.BuildPage(1);
    for (std::size_t begin = 0; begin + 20 < name.size(); ++begin) {
        const std::string piece = Trim(name.substr(begin, 20));
        const auto hit = report.Find(piece);
        ASSERT_TRUE(hit) << piece;
        const std::string& line = page.runs[static_cast<std::size_t>(hit->run)].text;
        EXPECT_NE(name.find(line), std::string::npos) << "it begins in a line of the name: " << line;
    }
    EXPECT_FALSE(report.Find("Semen pembangunan"));
    EXPECT_FALSE(report.Find("pembangunan B2"));
}
