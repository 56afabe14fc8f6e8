#include "reports/engine/RequestTexts.h"

#include "common/Text.h"
#include "platform/ado/Ado.h"
#include "reports/engine/Report.h"

namespace varnik::reports {

std::map<std::string, std::string> ReadFormulas(const ReportRequest& request) {
    std::map<std::string, std::string> formulas;
    for (const auto& [index, formula] : request.Formulas) {
        const std::size_t equals = formula.find('=');
        const std::string name = Trim(formula.substr(0, equals));
        const std::string text = equals == std::string::npos ? "" : Trim(formula.substr(equals + 1));
        const bool closed = text.size() >= 2 && text.front() == '\'' && text.back() == '\'';
        if (name.empty() || !closed || text.find('\'', 1) != text.size() - 1)
            throw ado::DataError(BrokenFormula,
                                 "The formula \"" + formula + "\" of the report cannot be read." +
                                     (closed ? " A text in it may not hold an apostrophe." : ""));
        formulas[name] = text.substr(1, text.size() - 2);
    }
    return formulas;
}

std::map<std::string, std::string> ReadParameters(const ReportRequest& request) {
    std::map<std::string, std::string> parameters;
    for (const auto& [index, parameter] : request.ParameterFields) {
        const std::size_t first = parameter.find(';'), last = parameter.rfind(';');
        if (first == std::string::npos) continue;
        const std::size_t end = last > first ? last : parameter.size();
        parameters[Trim(parameter.substr(0, first))] = parameter.substr(first + 1, end - first - 1);
    }
    return parameters;
}

} // namespace varnik::reports
