#include "platform/ado/RowStatements.h"

namespace varnik::ado {
namespace {

std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }
std::string Parameter(std::size_t number) { return "?" + std::to_string(number); }
std::string NameOf(const jet::Table& table, const WrittenColumn& column) {
    return Quoted(table.columns[column.index].name);
}
std::string Sum(const std::string& name, std::size_t parameter) {
    return "coalesce(" + name + ", 0) + " + Parameter(parameter);
}

} // namespace

std::string InsertStatement(const jet::Table& table) {
    std::string names, marks;
    for (const jet::Column& column : table.columns) {
        names.append(names.empty() ? "" : ",").append(Quoted(column.name));
        marks.append(marks.empty() ? "?" : ",?");
    }
    return "insert into " + Quoted(table.name) + " (" + names + ") values (" + marks + ")";
}

std::string UpdateStatement(const jet::Table& table, const std::vector<WrittenColumn>& columns, bool asRead) {
    std::string set, unchanged;
    std::size_t parameter = 0, read = columns.size() + 1;
    for (const WrittenColumn& column : columns) {
        const std::string name = NameOf(table, column);
        set.append(set.empty() ? "" : ",").append(name).append("=").append(Parameter(++parameter));
        if (asRead && column.adds) unchanged += " and " + name + " is " + Parameter(++read);
    }
    return "update " + Quoted(table.name) + " set " + set + " where rowid=" + Parameter(columns.size() + 1) +
           unchanged;
}

std::string AddStatement(const jet::Table& table, std::size_t number,
                         const std::vector<WrittenColumn>& columns) {
    std::string set, floor, answer;
    std::size_t parameter = 0;
    for (const WrittenColumn& column : columns) {
        const std::string name = NameOf(table, column);
        set.append(set.empty() ? "" : ",").append(name).append("=");
        ++parameter;
        if (!column.adds) {
            set += Parameter(parameter);
            continue;
        }
        const std::string sum = Sum(name, parameter);
        set += "AsStored(" + sum + "," + std::to_string(number) + "," + std::to_string(column.index) + ")";
        if (column.floor) floor += " and " + sum + " >= 0";
        answer.append(answer.empty() ? " returning " : ",").append(name);
    }
    return "update " + Quoted(table.name) + " set " + set + " where rowid=" + Parameter(columns.size() + 1) +
           floor + answer;
}

std::string DeleteStatement(const jet::Table& table) {
    return "delete from " + Quoted(table.name) + " where rowid=?1";
}

} // namespace varnik::ado
