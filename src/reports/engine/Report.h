#pragma once
// A report that has been run: its rows are read, its page count is known, and its pages are built when
// they are asked for. The desktop previews, prints and saves it, the console reads its text.

#include "platform/desktop/ReportRequest.h"
#include "platform/desktop/Services.h"
#include "reports/engine/Page.h"

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace varnik::reports {

// The numbers of the engine's own errors (ado::DataError).
inline constexpr long MissingDefinition = 2001; // no such file in the report folder
inline constexpr long BrokenDefinition = 2002; // the file cannot be read; the description names file and line
inline constexpr long BrokenFormula = 2003;    // "Judul1 ='Toko O'Brien'"
inline constexpr long NoDocument = 2004;       // a document report without the document's number
inline constexpr long CannotWrite = 2005;      // an output file cannot be written

struct Definition;
class Rows;
class Layout;

// What a report shows besides its rows.
struct Facts {
    ReportRequest request;                         // as the screen gave it
    std::string file;                              // of the definition: "Invoice.rpt"
    std::string connect;                           // the connection string used
    std::string statement;                         // the statement that was run in the end
    std::array<std::string, 4> company;            // Judul1 to Judul4
    std::map<std::string, std::string> parameters; // by name
    DateTime now;
    Regional regional;
};

// A place where a text was found.
struct Hit {
    int page = 0; // counted from 1
    int run = 0;  // index into Page::runs
    bool operator==(const Hit&) const = default;
};

// Called between pieces of long work with the part done; false stops the work.
using Progress = std::function<bool(long done, long total)>;

class Report {
public:
    Report(Definition definition, Rows rows, Facts facts);
    ~Report();

    const Facts& About() const;
    std::string WindowTitle() const; // the request's, else the report's own title
    std::string Title() const;       // as printed: parameter Judul, the request's title, the definition's
    long RowCount() const;
    int PageCount() const;            // at least 1
    double PageWidth() const;         // mm
    double PageHeight() const;        // mm
    Page BuildPage(int number) const; // 1 to PageCount()

    // The pages as fixed-width text; all pages are parted by a form feed.
    std::string Text() const;
    std::string Text(int page) const;
    // The next (or previous) text run in which the text begins, without regard to case, from the place after
    // (before) `from` on, going round the end once. Nothing when it is nowhere or the work was stopped.
    std::optional<Hit> Find(const std::string& text, std::optional<Hit> from = {}, bool forward = true,
                            const Progress& progress = {}) const;

    // Headings and rows with RFC 4180 quoting, UTF-8: numbers plain with a full stop, dates as ISO.
    bool WriteCsv(const std::filesystem::path& file, const Progress& progress = {}) const;
    // The same as a spreadsheet: numbers and dates as such, no page furniture.
    // Both throw DataError when the file cannot be written, and leave no half file when stopped (false).
    bool WriteXlsx(const std::filesystem::path& file, const Progress& progress = {}) const;

private:
    std::unique_ptr<const Layout> layout_;
};

// Runs a request. Long reading the person may stop (DataError Stopped). DataError when the definition is
// missing or broken, a formula is broken, or neither the request's statement nor the definition's own can be
// run.
std::unique_ptr<Report> OpenReport(const ReportRequest& request, Services& services);

} // namespace varnik::reports
