#include "bench/Measures.h"

#include "bench/Recorder.h"
#include "platform/ado/Ado.h"
#include "reports/engine/Report.h"
#include "ui/preview/WriteReport.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>

namespace varnik::bench {

namespace {

// What the definition's own query asks for, about a document that is there; "" for one that runs by itself as
// it stands. Nothing for a definition without a query, which is a dialog's to fill.
std::optional<std::string> StatementOf(const std::filesystem::path& definition, Till& till) {
    std::ifstream file(definition);
    std::string line, query;
    bool own = false;
    while (std::getline(file, line)) {
        own = own || line.starts_with("query = ");
        // One that spans lines is about no document.
        if (line.starts_with("query = \"") && !line.ends_with("\"\"\""))
            query = line.substr(9, line.rfind('"') - 9);
    }
    if (!own) return {};
    for (const auto& [mark, statement] :
         {std::pair{"{NoInvoice}", "Select NoInvoice From InvoiceDetail Where Qty > 5"},
          {"{ReturID}", "Select ReturID From InvoiceRetur"},
          {"{NoBKM}", "Select NoBKM From InvoiceBayar"},
          {"{NoBKK}", "Select NoBKK From FakturBayar"}})
        if (const auto at = query.find(mark); at != std::string::npos)
            query.replace(at, std::string_view(mark).size(), "'" + till.Asked(statement) + "'");
    if (const auto at = query.find("{NoFaktur}"); at != std::string::npos) {
        const bool back = definition.stem() == "PORetur";
        query.replace(
            at, 10,
            "'" + till.Asked(back ? "Select NoFaktur From FakturRetur" : "Select NoFaktur From Faktur") +
                "'");
    }
    return query;
}

std::unique_ptr<reports::Report> OpenAt1(const ReportRequest& request, Till& till) {
    auto report = reports::OpenReport(request, till.Access());
    if (report->BuildPage(1).runs.empty()) throw std::runtime_error("an empty page");
    return report;
}

// A list of sales of five columns, as the yardstick for long reports.
constexpr const char* ListOfSales = R"(title = "Sales"
[[column]]
heading = "Number"
field = "NoInvoice"
[[column]]
heading = "Customer"
field = "NamaCus"
flex = true
[[column]]
heading = "Date"
field = "TglInvoice"
[[column]]
heading = "Total"
field = "Total"
total = true
[[column]]
heading = "Balance"
field = "Saldo"
total = true
)";

// One report to its first page beside its statements in a bare loop, and to PDF.
void Add(std::vector<Measure>& all, const std::string& name, const std::string& size, Till& till,
         const std::function<void()>& prepare, const std::function<std::unique_ptr<reports::Report>()>& open,
         bool pdf) {
    auto replay = std::make_shared<std::unique_ptr<Replay>>();
    all.push_back({"first page of " + name, size,
                   [=] {
                       prepare();
                       return Seconds([&] { open(); });
                   },
                   [=] {
                       if (!*replay) {
                           prepare();
                           *replay = std::make_unique<Replay>(StatementsOf([&] { open(); }));
                       }
                       return Seconds([&] { (*replay)->Run(); });
                   },
                   1});
    if (!pdf) return;
    all.push_back({"PDF of " + name,
                   size,
                   [=, &till] {
                       prepare();
                       const std::filesystem::path to = till.Desk().folder / "report.pdf";
                       return Seconds([&] { ui::WritePdf(*open(), to); });
                   },
                   {},
                   1});
}

} // namespace

void AddReportMeasures(std::vector<Measure>& all, Floor& floor, const std::string& size, bool pdf) {
    Till& till = floor.till;
    const std::filesystem::path own = till.Desk().folder / "Sales.rpt";
    std::ofstream(own) << ListOfSales;
    std::vector<std::filesystem::path> files{own};
    for (const auto& entry : std::filesystem::directory_iterator(VARNIK_SOURCE "/Report"))
        if (entry.path().extension() == ".rpt") files.push_back(entry.path());
    std::sort(files.begin() + 1, files.end());
    for (const std::filesystem::path& file : files) {
        ReportRequest request;
        request.ReportFileName = file.string();
        const std::optional<std::string> statement =
            file == own ? std::optional<std::string>(
                              "SELECT KodeCus,NamaCus,NoInvoice,TglInvoice,Total,Bayar,Saldo From "
                              "QryInvCustomer Where NoInvoice < '000003340000'")
                        : StatementOf(file, till);
        if (!statement) continue;
        request.SQLQuery = *statement;
        const auto open = [&till, request] { return OpenAt1(request, till); };
        Add(
            all, file == own ? "a list of 100,000 sales" : file.stem().string(), size, till, [] {}, open,
            pdf);
    }
    for (const auto& [key, entry] : till.Access().screens) {
        if (key.front() != 'L') continue;
        for (const std::string& kind : till.Kinds(key)) {
            const auto choose = [&till, key = key, kind] { till.Choose(key, kind); };
            const auto open = [&till, key = key] { return OpenAt1(till.Print(key), till); };
            Add(all, entry.name + (kind.empty() ? "" : ": " + till.CaptionOf(key, kind)), size, till, choose,
                open, pdf);
        }
        till.Close(key);
    }
}

} // namespace varnik::bench
