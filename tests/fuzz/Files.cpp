// Files that people write or move about: report definitions and the registry.

#include "platform/ado/Ado.h"
#include "platform/registry/Registry.h"
#include "reports/engine/Definition.h"
#include "reports/engine/Report.h"
#include "tests/fuzz/Targets.h"

#include <cmath>
#include <fstream>
#include <unistd.h>

namespace varnik::fuzz {

namespace {

reports::Rows FewRows() {
    reports::Rows rows({"NoInvoice", "TglInvoice", "NamaBrg", "Qty", "Harga", "Total", "JenisProduk"});
    for (const std::vector<Value>& row : std::vector<std::vector<Value>>{
             {"000000000100", DateTime{20779, 0}, "Rice", 2.0, 55000.0, 110000.0, "A"},
             {"000000000100", DateTime{20780, 0}, "O'Brien \xE2\x82\xAC", -1, 0.5, 1e15, "A"},
             {"000000000200", Value(), Value(), Value(), Value(), Value(), "B"}})
        rows.Add(row);
    return rows;
}

} // namespace

void FuzzFormula(std::string_view input) {
    static const reports::Rows rows = FewRows();
    try {
        reports::Expression formula(input);
        formula.Bind(rows);
        for (std::size_t row = 0; row < 3; ++row) formula.Evaluate(rows, row);
    } catch (const std::invalid_argument&) {
    }
    try {
        const reports::Template text(input);
        text.Names();
        text.Fill([](const reports::Template::Place& place) { return place.name; });
    } catch (const std::invalid_argument&) {
    }
}

void FuzzDefinition(std::string_view input) {
    try {
        reports::Definition definition = reports::ReadDefinition(std::string(input), "x.rpt");
        reports::Facts facts;
        facts.file = "x.rpt";
        facts.company = {"Shop", "One", "Two", "Three"};
        facts.now = DateTime{20779, 0};
        const reports::Report report(std::move(definition), FewRows(), std::move(facts));
        Require(report.PageCount() >= 1, "a report without a page");
        Require(report.PageCount() < 1000, "a report without end");
        for (const int page : {1, report.PageCount()}) {
            const reports::Page built = report.BuildPage(page);
            for (const reports::TextRun& run : built.runs)
                Require(std::isfinite(run.area.x) && std::isfinite(run.area.width) && std::isfinite(run.size),
                        "a text without a place");
        }
        report.Text(1);
        report.Find("o", {});
    } catch (const ado::DataError&) {
    }
}

void FuzzRegistry(std::string_view input) {
    static const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("varnik-fuzz-" + std::to_string(getpid()) + ".reg");
    std::ofstream(file, std::ios::binary | std::ios::trunc) << input;
    {
        registry::Registry registry(file);
        registry.KeyExists(input);
        registry.QueryText("SOFTWARE\\ODBC\\ODBC.INI\\Varnik", "DBQ");
        registry.ValueNames("SOFTWARE");
        // What is set is there after the next start, whatever stood in the file.
        const std::string value(input.substr(0, 40));
        if (registry.Set("Test\\Key", "Value", value)) {
            const registry::Registry again(file);
            Require(again.QueryText("Test\\Key", "Value") == value, "a value that is not kept");
        }
    }
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
}

} // namespace varnik::fuzz
