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

Rows Read(const std::string& sql, ado::Connection& connection) {
    ado::Recordset recordset(sql, connection, ado::CursorType::Static);
    std::vector<std::string> names;
    for (int column = 0; column < recordset.FieldCount(); ++column)
        names.push_back(recordset.FieldName(column));
    Rows rows(std::move(names));
    std::vector<Value> values(static_cast<std::size_t>(recordset.FieldCount()));
    for (; !recordset.Eof(); recordset.MoveNext()) {
        for (int column = 0; column < recordset.FieldCount(); ++column)
            values[static_cast<std::size_t>(column)] = recordset[column].Value();
        rows.Add(values);
    }
    return rows;
}

std::optional<Rows> TryRead(const std::string& sql, ado::Connection& connection) {
    try {
        return Read(sql, connection);
    } catch (const ado::DataError&) {
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
Rows RunStatement(const Definition& definition, ado::Connection& connection, Facts& facts) {
    const std::string& asked = facts.request.SQLQuery;
    if (Trim(asked).empty() && definition.query.empty())
        throw ado::DataError(BrokenDefinition, "The report \"" + definition.file +
                                                   "\" has no query of its own and was given no statement.");
    if (!Trim(asked).empty()) {
        try {
            facts.statement = asked;
            return Read(asked, connection);
        } catch (const ado::DataError& fault) {
            if (!CannotBeCompiled(fault) || !LiteralsClosed(asked)) throw;
            const auto runs = [&](const std::string& sql) { return TryRead(sql, connection).has_value(); };
            if (const auto filled = WithoutMissingColumns(asked, runs))
                if (auto rows = TryRead(*filled, connection)) {
                    facts.statement = *filled;
                    return std::move(*rows);
                }
            if (definition.query.empty()) throw;
        }
    }
    facts.statement = ForDocument(definition.query, asked, definition.file);
    return Read(facts.statement, connection);
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
    Rows rows = RunStatement(definition, connection, facts);
    connection.Close();
    return std::make_unique<Report>(std::move(definition), std::move(rows), std::move(facts));
}

} // namespace varnik::reports
