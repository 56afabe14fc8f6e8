#include "common/DateTime.h"
#include "common/Regional.h"
#include "reports/engine/Layout.h"
#include "reports/engine/Output.h"
#include "reports/engine/Report.h"

#include <cerrno>
#include <cstring>
#include <fstream>

namespace varnik::reports {

namespace {

std::string Quoted(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"') quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

std::string Plain(const Value& value) {
    if (value.IsText()) return Quoted(value.Text());
    if (value.IsDouble()) return SqlNumber(value.Double());
    if (value.IsInteger()) return std::to_string(value.Integer());
    if (value.IsBool()) return value.Bool() ? "Yes" : "No";
    if (value.IsDate()) return ToIso(value.Date());
    return {};
}

} // namespace

bool Report::WriteCsv(const std::filesystem::path& file, const Progress& progress) const {
    const Table& table = layout_->Content();
    Output output(file);
    std::ofstream stream(output.Path(), std::ios::binary);
    const auto writeLine = [&](const auto& cells, const auto& textOf) {
        const char* separator = "";
        for (const auto& cell : cells) {
            stream << separator << textOf(cell);
            separator = ",";
        }
        stream << "\r\n";
    };
    writeLine(table.LineHeadings(), Quoted);
    const std::size_t lines = table.LineCount();
    for (std::size_t line = 0; stream && line < lines; ++line) {
        if (progress && line % 256 == 0 && !progress(static_cast<long>(line), static_cast<long>(lines)))
            return false;
        writeLine(table.LineValues(line), Plain);
    }
    stream.close();
    if (!stream) output.Fail(std::strerror(errno));
    output.Keep();
    return true;
}

} // namespace varnik::reports
