#include "common/DateTime.h"
#include "common/Text.h"
#include "reports/engine/Layout.h"
#include "reports/engine/Output.h"
#include "reports/engine/Report.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <xlsxwriter.h>

namespace varnik::reports {

namespace {

constexpr std::int32_t SpreadsheetEpoch = -25569; // day 0 of spreadsheets, 30 December 1899
constexpr std::size_t MostRows = LXW_ROW_MAX - 1; // a sheet's rows without the headings
constexpr double SecondsOfDay = 86400;

std::string DateFormat(const Regional& regional) {
    switch (regional.order) {
    case DateOrder::DayMonthYear:
        return "dd/mm/yyyy";
    case DateOrder::YearMonthDay:
        return "yyyy-mm-dd";
    case DateOrder::YearDayMonth:
        return "yyyy/dd/mm";
    case DateOrder::MonthDayYear:
        break;
    }
    return "mm/dd/yyyy";
}

struct Formats {
    lxw_format *heading, *figures, *decimals, *fractions, *date;
};

lxw_format* NumberFormat(lxw_workbook* book, const std::string& mask) {
    lxw_format* format = workbook_add_format(book);
    format_set_num_format(format, mask.c_str());
    return format;
}

void WriteCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const Value& value,
               const Formats& formats) {
    if (value.IsText()) {
        worksheet_write_string(sheet, row, column, value.Text().c_str(), nullptr);
    } else if (value.IsBool()) {
        worksheet_write_boolean(sheet, row, column, value.Bool(), nullptr);
    } else if (value.IsDate()) {
        const double day = value.Date().day - SpreadsheetEpoch + value.Date().second / SecondsOfDay;
        worksheet_write_number(sheet, row, column, day, formats.date);
    } else if (!value.IsNull()) {
        const double number = value.IsDouble() ? value.Double() : static_cast<double>(value.Integer());
        constexpr double Unseen = 0.0005; // what three decimals do not show
        const auto isMadeOf = [number](double parts) {
            return std::abs(number - std::round(number * parts) / parts) < Unseen;
        };
        worksheet_write_number(sheet, row, column, number,
                               isMadeOf(1)     ? formats.figures
                               : isMadeOf(100) ? formats.decimals
                                               : formats.fractions);
    }
}

// A sheet's name has at most 31 characters and none of []:*?/\ in it.
std::string SheetName(std::string title) {
    for (char& character : title)
        if (std::string_view("[]:*?/\\'").find(character) != std::string_view::npos) character = ' ';
    title = Trim(Left(title, 31));
    return title.empty() ? "Report" : title;
}

} // namespace

bool Report::WriteXlsx(const std::filesystem::path& file, const Progress& progress) const {
    const Table& table = layout_->Content();
    const std::size_t lines = table.LineCount();
    Output output(file);
    if (lines > MostRows)
        output.Fail("a sheet takes " + std::to_string(MostRows) + " rows, the report has " +
                    std::to_string(lines) + "; save it as CSV");

    // The library tells a missing folder on the error stream alone.
    if (!std::ofstream(output.Path())) output.Fail(std::strerror(errno));

    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE; // row by row, whatever their number
    lxw_workbook* book = workbook_new_opt(output.Path().string().c_str(), &options);
    if (book == nullptr) output.Fail("there is no memory left");
    lxw_worksheet* sheet = workbook_add_worksheet(book, SheetName(Title()).c_str());
    Formats formats{workbook_add_format(book), NumberFormat(book, "#,##0"), NumberFormat(book, "#,##0.00"),
                    NumberFormat(book, "#,##0.00#"), NumberFormat(book, DateFormat(About().regional))};
    format_set_bold(formats.heading);
    format_set_bottom(formats.heading, LXW_BORDER_THIN);
    format_set_bg_color(formats.heading, 0xE8EEF4);

    const std::vector<std::string> headings = table.LineHeadings();
    const std::size_t groupColumns = headings.size() - table.Slots().size();
    constexpr double MmPerCharacter = 1.9;
    for (std::size_t i = 0; i < headings.size(); ++i) {
        const auto column = static_cast<lxw_col_t>(i);
        const double width = i < groupColumns
                                 ? 24
                                 : std::max(10.0, table.Slots()[i - groupColumns].width / MmPerCharacter + 2);
        worksheet_set_column(sheet, column, column, width, nullptr);
        worksheet_write_string(sheet, 0, column, headings[i].c_str(), formats.heading);
    }
    worksheet_freeze_panes(sheet, 1, 0);
    bool stopped = false;
    for (std::size_t line = 0; line < lines && !stopped; ++line) {
        if (progress && line % 256 == 0)
            stopped = !progress(static_cast<long>(line), static_cast<long>(lines));
        lxw_col_t column = 0;
        for (const Value& value : table.LineValues(line))
            WriteCell(sheet, static_cast<lxw_row_t>(line + 1), column++, value, formats);
    }
    if (lines > 0 && !headings.empty())
        worksheet_autofilter(sheet, 0, 0, static_cast<lxw_row_t>(lines),
                             static_cast<lxw_col_t>(headings.size() - 1));
    const lxw_error failure = workbook_close(book);
    if (stopped) return false;
    if (failure != LXW_NO_ERROR) output.Fail(lxw_strerror(failure));
    output.Keep();
    return true;
}

} // namespace varnik::reports
