#include "platform/ado/Errors.h"

namespace varnik::ado {
namespace {

// "Customer.NamaCus" out of the engine's detail, which may name several columns of a key.
std::string FirstName(const std::string& detail) { return detail.substr(0, detail.find(',')); }

int SizeOf(const std::string& name, const jet::Catalog& catalog) {
    const std::size_t point = name.find('.');
    if (point == std::string::npos) return 0;
    const jet::Table* table = catalog.FindTable(std::string_view(name).substr(0, point));
    const jet::Column* column =
        table ? jet::FindColumn(*table, std::string_view(name).substr(point + 1)) : nullptr;
    return column ? column->size : 0;
}

} // namespace

DataError Explain(const EngineError& error, const std::filesystem::path& file, const jet::Catalog& catalog) {
    const std::string name = "\"" + file.filename().string() + "\"";
    const std::string& detail = error.detail;
    switch (error.fault) {
    case Fault::Required:
        return {ConstraintFault, FirstName(detail) + " must be filled in."};
    case Fault::TooLong: {
        const int size = SizeOf(detail, catalog);
        const std::string limit = size > 0 ? " (at most " + std::to_string(size) + " characters)" : "";
        return {ConstraintFault, "The text is too long for " + detail + limit + "."};
    }
    case Fault::Duplicate:
        return {ConstraintFault,
                "There is already a row with this " + FirstName(detail) + "; it must be unique."};
    case Fault::NoTable:
        return {UnknownTable, "There is no table or query named \"" + detail + "\"."};
    case Fault::NoColumn: {
        const std::size_t lacks = detail.find(" has no column named ");
        if (lacks != std::string::npos)
            return {UnknownColumn, "The " + detail.substr(0, lacks) + " has no column \"" +
                                       detail.substr(lacks + 21) + "\"."};
        return {UnknownColumn, "There is no column named \"" + detail + "\"."};
    }
    case Fault::ValueCount:
        return {SyntaxFault, "The number of values differs from the number of columns: " + detail + "."};
    case Fault::Syntax:
        return {SyntaxFault, "The statement cannot be read: " + detail + "."};
    case Fault::ReadOnly:
        return {EngineFault,
                "The database " + name + " cannot be written to: the file or its folder is read-only."};
    case Fault::Busy:
        return {EngineFault, "The database " + name + " is in use by another workstation. Try again."};
    case Fault::Full:
        return {EngineFault, "The disk is full: nothing more can be written to the database " + name + "."};
    case Fault::NotDatabase:
        return {EngineFault, "The file " + name + " is not a database."};
    case Fault::Damaged:
        return {EngineFault, "The database " + name + " is damaged or cut off. Restore a backup."};
    case Fault::CannotOpen:
        if (detail == "missing") return {EngineFault, "The database " + name + " was not found."};
        if (detail == "exists") return {EngineFault, "The file " + name + " exists already."};
        return {EngineFault,
                "The database " + name + " cannot be opened: there is no access to the file or its folder."};
    case Fault::Interrupted:
        return {Stopped, "The reading was stopped."};
    case Fault::Input:
        return {EngineFault, "Reading or writing the database " + name + " failed: " + detail + "."};
    case Fault::Other:
        break;
    }
    return {EngineFault, "The database " + name + " reports: " + detail + "."};
}

} // namespace varnik::ado
