// CSV, spreadsheet, and what of a report's forms they carry.

#include "platform/ado/Ado.h"
#include "tests/support/TemporaryShop.h"
#include "tests/unit/reports/ReportCases.h"

#include <gmock/gmock.h>

using namespace varnik;
using namespace varnik::reports;

namespace {

class Output : public testing::Test {
protected:
    bool FolderIsEmpty() const { return std::filesystem::is_empty(folder); }
    TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
};

constexpr const char* Lines = R"(
[[group]]
by = "Code"
heading = "Product"
header = "{Code}"
summary = true
[[column]]
heading = "Date"
field = "Day"
show = "detail"
[[column]]
heading = "Name, full"
field = "Name"
[[column]]
heading = "Amount"
field = "Amount"
total = true
)";
constexpr const char* Data = "Code|Day@|Name|Amount#\n"
                             "A1|2026-01-31|He said \"yes\", twice|1234567.5\n"
                             "A1|||-0.25\n"
                             "B2|2026-02-01|plain|3\n";

} // namespace

TEST_F(Output, CsvQuotesTextsAndLeavesNumbersPlain) {
    Rows rows = RowsOf(Data);
    rows.Add(std::array<Value, 4>{Value("C3"), Value(), Value("two\r\nlines"), Value(true)});
    Facts facts = FactsOf();
    facts.regional.decimal = ','; // the machine's settings do not reach the file
    facts.regional.group = '.';
    const Report report(ReadDefinition(Lines, "Lines.rpt"), std::move(rows), std::move(facts));
    EXPECT_TRUE(report.WriteCsv(folder / "rows.csv"));
    EXPECT_EQ(FileText(folder / "rows.csv"), "Product,Date,\"Name, full\",Amount\r\n"
                                             "A1,2026-01-31,\"He said \"\"yes\"\", twice\",1234567.5\r\n"
                                             "A1,,,-0.25\r\n"
                                             "B2,2026-02-01,plain,3\r\n"
                                             "C3,,\"two\r\nlines\",Yes\r\n");
}

TEST_F(Output, TheSummaryFormGoesOutAsItIsShown) {
    const Report report(ReadDefinition(Lines, "Lines.rpt"), RowsOf(Data), FactsOf({{"Detail", "S"}}));
    EXPECT_TRUE(report.WriteCsv(folder / "rows.csv"));
    EXPECT_EQ(FileText(folder / "rows.csv"), "Product,\"Name, full\",Amount\r\n"
                                             "A1,\"He said \"\"yes\"\", twice\",1234567.25\r\n"
                                             "B2,plain,3\r\n");
}

TEST_F(Output, AVoucherWithoutColumnsIsOneLine) {
    const Report report(LoadDefinition("Report", "BKM2.rpt"),
                        RowsOf("NoBKM|TglBKM@|CaraBayar|Keterangan|NoCek|Jumlah#|Penyetor|NamaBank|NoRek\n"
                               "000000000700|2026-11-22|CASH||0|1250.5|Bu Tini|Cash|\n"
                               "000000000700|2026-11-22|CASH||0|1250.5|Bu Tini|Cash|\n"),
                        FactsOf());
    EXPECT_TRUE(report.WriteCsv(folder / "receipt.csv"));
    EXPECT_EQ(FileText(folder / "receipt.csv"),
              "Received from,Receipt no.,Date,Paid by,Cheque no.,Into,Account no.,Total\r\n"
              "Bu Tini,000000000700,2026-11-22,CASH,,Cash,,1250.5\r\n");
    EXPECT_THAT(report.Text(), testing::Not(testing::HasSubstr("For:"))); // nothing was noted
}

TEST_F(Output, AStoppedOrFailingFileLeavesNothingBehind) {
    std::ofstream(folder / "kept.csv") << "what was there";
    const Report report(ReadDefinition(Lines, "Lines.rpt"), RowsOf(Data), FactsOf());
    const auto stop = [](long, long) { return false; };
    EXPECT_FALSE(report.WriteCsv(folder / "kept.csv", stop));
    EXPECT_FALSE(report.WriteXlsx(folder / "kept.csv", stop));
    EXPECT_EQ(FileText(folder / "kept.csv"), "what was there");
    std::filesystem::remove(folder / "kept.csv");
    EXPECT_THROW(report.WriteCsv(folder / "no" / "such.csv"), ado::DataError);
    EXPECT_THROW(report.WriteXlsx(folder / "no" / "such.xlsx"), ado::DataError);
    EXPECT_TRUE(FolderIsEmpty());
}

TEST_F(Output, ASpreadsheetHoldsNumbersAndDatesAsSuch) {
    const Report report(ReadDefinition(Lines, "Lines.rpt"), RowsOf(Data + std::string("B2|||2.125\n")),
                        FactsOf());
    EXPECT_TRUE(report.WriteXlsx(folder / "rows.xlsx"));
    // The file is a zip archive; unpacked by the system's own tool.
    const std::string unpack = "cd '" + folder.string() + "' && unzip -q rows.xlsx xl/worksheets/sheet1.xml";
    ASSERT_EQ(std::system(unpack.c_str()), 0) << "is unzip there?";
    const std::string sheet = FileText(folder / "xl" / "worksheets" / "sheet1.xml");
    EXPECT_THAT(sheet, testing::ContainsRegex("<c r=\"D2\"[^>]*><v>1234567.5</v>"));
    EXPECT_THAT(sheet, testing::ContainsRegex("<c r=\"B2\"[^>]*><v>46053</v>")); // 31 January 2026
    EXPECT_THAT(sheet, testing::HasSubstr("He said"));
    // Whole amounts, those with cents and small quantities each show what they are.
    const auto style = [&](const std::string& cell) {
        const std::size_t at = sheet.find("<c r=\"" + cell + "\"");
        return at == std::string::npos ? "" : sheet.substr(at + cell.size() + 7, 5);
    };
    EXPECT_NE(style("D2"), style("D4"));
    EXPECT_NE(style("D5"), style("D2"));
    EXPECT_NE(style("D5"), style("D4"));
    EXPECT_EQ(style("D2"), style("D3"));
}
