// From a request to a report: the definition behind the file name, the statement's rows, the named texts.

#include "common/Text.h"
#include "reports/engine/Definition.h"
#include "reports/engine/Report.h"
#include "reports/engine/RequestTexts.h"
#include "reports/engine/Rows.h"
#include "reports/engine/Statement.h"

namespace varnik::reports {

namespace {

// The request names folder and file in one text, with backslashes between them.
std::filesystem::path ReportFolder(const std::string& reportFileName, std::string& file) {
    const std::size_t last = reportFileName.find_last_of("\\/");
    file = last == std::string::npos ? reportFileName : reportFileName.substr(last + 1);
    std::string folder = last == std::string::npos ? "." : reportFileName.substr(0, last);
    std::replace(folder.begin(), folder.end(), '\\', '/');
    return folder;
}

// Where the rows come from, and who may stop the reading.
struct Source {
    ado::Connection& connection;
    const ado::GoOn& goOn;
};

Rows Read(const std::string& sql, const Source& source) {
    Rows rows;
    ado::ReadRows(
        sql, source.connection, [&](std::vector<std::string> names) { rows = Rows(std::move(names)); },
        [&](const std::vector<Value>& row) { rows.Add(row); }, source.goOn);
    return rows;
}

std::optional<Rows> TryRead(const std::string& sql, const Source& source) {
    try {
        return Read(sql, source);
    } catch (const ado::DataError& fault) {
        if (fault.Number() == ado::Stopped) throw;
        return {};
    }
}

// Whether it is the text itself that cannot be run, and not the data or the machine.
bool CannotBeCompiled(const ado::DataError& fault) {
    return fault.Number() == ado::SyntaxFault || fault.Number() == ado::UnknownTable ||
           fault.Number() == ado::UnknownColumn;
}

// Runs the request's statement. When it cannot be run, it is tried with empty columns in place of those
// that its query does not have; then the definition's stored query stands in, for the same document.
Rows RunStatement(const Definition& definition, const Source& source, Facts& facts) {
    const std::string& asked = facts.request.SQLQuery;
    if (Trim(asked).empty() && definition.query.empty())
        throw ado::DataError(BrokenDefinition, "The report \"" + definition.file +
                                                   "\" has no query of its own and was given no statement.");
    if (!Trim(asked).empty()) {
        try {
            facts.statement = asked;
            return Read(asked, source);
        } catch (const ado::DataError& fault) {
            if (!CannotBeCompiled(fault) || !LiteralsClosed(asked)) throw;
            const auto runs = [&](const std::string& sql) { return TryRead(sql, source).has_value(); };
            if (const auto filled = WithoutMissingColumns(asked, runs))
                if (auto rows = TryRead(*filled, source)) {
                    facts.statement = *filled;
                    return std::move(*rows);
                }
            if (definition.query.empty()) throw;
        }
    }
    facts.statement = ForDocument(definition.query, asked, definition.file);
    return Read(facts.statement, source);
}

// The head of the sheet: the title formulas of the request, or the company as it is for one that sets none.
std::array<std::string, 4> CompanyTexts(const ReportRequest& request, const Session& session) {
    std::array<std::string, 4> texts;
    bool set = false;
    for (const auto& [name, text] : ReadFormulas(request))
        for (std::size_t line = 0; line < texts.size(); ++line)
            if (EqualsNoCase(name, "Judul" + std::to_string(line + 1))) {
                texts[line] = text;
                set = true;
            }
    if (set) return texts;
    return {session.CompanyName, session.CompanyLine1, session.CompanyLine2, session.CompanyLine3};
}

} // namespace

std::unique_ptr<Report> OpenReport(const ReportRequest& request, Services& services) {
    Facts facts;
    facts.request = request;
    const std::filesystem::path folder = ReportFolder(request.ReportFileName, facts.file);
    Definition definition = LoadDefinition(folder, facts.file);
    facts.file = definition.file;
    facts.company = CompanyTexts(request, services.session);
    facts.parameters = ReadParameters(request);
    facts.now = services.desktop.Now();
    facts.regional = services.regional;
    facts.connect = request.Connect.empty() ? services.session.ConnectionString : request.Connect;
    ado::Connection connection(services.data, facts.connect);
    const std::unique_ptr<Waiting> waiting = services.desktop.Wait("Reading the report ...");
    const ado::GoOn goOn = [&] { return waiting->GoOn(); };
    Rows rows = RunStatement(definition, {connection, goOn}, facts);
    connection.Close();
    return std::make_unique<Report>(std::move(definition), std::move(rows), std::move(facts));
}

} // namespace varnik::reports
