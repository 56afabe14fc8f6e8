#include "data/DataSource.h"

#include "common/Files.h"
#include "common/Text.h"
#include "data/Schema.h"

#include <array>

namespace varnik::data {
namespace {

constexpr std::string_view DriverName = "Microsoft Access Driver (*.mdb)";
constexpr std::string_view DriverKey = "SOFTWARE\\ODBC\\ODBCINST.INI\\Microsoft Access Driver (*.mdb)";
constexpr std::string_view SourcesKey = "SOFTWARE\\ODBC\\ODBC.INI\\ODBC Data Sources";

std::string KeyOf(std::string_view name) { return "SOFTWARE\\ODBC\\ODBC.INI\\" + std::string(name); }

// The value of "key=value" when the text is one of this key; blanks around the key and the sign are passed
// over.
std::optional<std::string> ValueOf(std::string_view text, std::string_view key) {
    const auto sign = text.find('=');
    if (sign == std::string_view::npos || !EqualsNoCase(Trim(text.substr(0, sign)), key)) return std::nullopt;
    return Trim(text.substr(sign + 1));
}

} // namespace

std::filesystem::path DatabaseFile(const std::filesystem::path& programFolder) {
    return MatchPath(PathText(programFolder / "Data" / "Varnik.mdb"));
}

void RegisterBuiltInDriver(registry::Registry& registry) { registry.Set(DriverKey, "Driver", "built-in"); }

bool FindAccessDriver(const registry::Registry& registry, std::string& driverPath) {
    if (!registry.KeyExists(DriverKey)) return false;
    driverPath = Trim(registry.QueryText(DriverKey, "Driver").value_or(""));
    return true;
}

bool WriteDataSource(registry::Registry& registry, const std::filesystem::path& programFolder,
                     const std::string& name, const std::string& path, const std::string& driverPath) {
    const std::string file = path.empty() ? PathText(DatabaseFile(programFolder)) : path;
    const std::string key = KeyOf(name), engine = key + "\\Engines\\Jet";
    return registry.Set({
        {key, "UID", ""},
        {key, "DBQ", file},
        {key, "Driver", driverPath},
        {key, "FIL", "MS Access;"},
        {key, "DriverId", 25u},
        {key, "SafeTransactions", 0u},
        {engine, "ImplicitCommitSync", ""},
        {engine, "UserCommitSync", "Yes"},
        {engine, "MaxBufferSize", 2048u},
        {engine, "PageTimeout", 5u},
        {engine, "Threads", 3u},
        {std::string(SourcesKey), name, std::string(DriverName)},
    });
}

bool CreateDataSource(Services& services, const std::string& path) {
    std::string driver;
    if (!FindAccessDriver(services.registry, driver)) {
        services.desktop.MessageBox({.text = "You must Install Access ODBC Drivers before use this program.",
                                     .icon = Icon::Critical,
                                     .buttons = Buttons::OkCancel});
        return false;
    }
    if (driver.empty()) {
        services.desktop.MessageBox({.text = "Can't find access ODBC driver."});
        return false;
    }
    if (!WriteDataSource(services.registry, services.desktop.ProgramFolder(), "Varnik", path, driver)) {
        services.desktop.MessageBox({.text = "Can't create database ODBC."});
        return false;
    }
    return true;
}

std::vector<std::string> DataSourceNames(const registry::Registry& registry) {
    return registry.ValueNames(SourcesKey);
}

std::filesystem::path ResolveConnection(const registry::Registry& registry,
                                        std::string_view connectionString) {
    for (std::string_view rest = connectionString; !rest.empty();) {
        // A path is the last part and may hold a semicolon.
        if (const auto path = ValueOf(rest, "Data Source")) return MatchPath(*path);
        const auto end = rest.find(';');
        if (const auto name = ValueOf(rest.substr(0, end), "DSN")) {
            if (const auto file = registry.QueryText(KeyOf(*name), "DBQ")) return MatchPath(*file);
            throw ado::DataError(ado::EngineFault, "There is no data source named \"" + *name + "\".");
        }
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    throw ado::DataError(ado::EngineFault, "\"" + std::string(connectionString) + "\" names no data source.");
}

ado::Environment MakeEnvironment(const Regional& regional, const registry::Registry& registry) {
    ado::Environment environment;
    environment.catalog = Catalog();
    environment.regional = &regional;
    environment.resolve = [&registry](std::string_view text) { return ResolveConnection(registry, text); };
    return environment;
}

std::string clsOdbc::ExecuteDSN(int request, int driverNumber, const std::string& attributes) {
    static constexpr std::array<std::string_view, 3> Drivers = {"", DriverName, "SQL Server"};
    const std::string lineBreak(CrLf);
    if (request < 1 || request > 6) return "Invalid DSN type";
    if (driverNumber < 0 || driverNumber >= static_cast<int>(Drivers.size()))
        return "You need specific a correct driver" + lineBreak + "Unknow Driver";
    if (driverNumber != 0) ODBC_DRIVER_NAME = Drivers[static_cast<std::size_t>(driverNumber)];
    if (ODBC_DRIVER_NAME.empty()) return "You need first initialize ODBC_DRIVER_NAME";
    if (!attributes.empty()) ODBC_ATTRIBUTES = attributes;
    if (ODBC_ATTRIBUTES.empty()) return "You need first initialize ODBC_ATTRIBUTES";
    return Configure(request) ? "" : "Error: " + lineBreak + "Invalid attributes" + lineBreak;
}

bool clsOdbc::Configure(int request) {
    std::string name, path, driver;
    std::string list = ODBC_ATTRIBUTES;
    std::replace(list.begin(), list.end(), '|', '\0');
    for (const std::string& attribute : Split(list, '\0')) {
        if (const auto dsn = ValueOf(attribute, "DSN")) name = *dsn;
        if (const auto dbq = ValueOf(attribute, "DBQ")) path = *dbq;
    }
    registry::Registry& registry = services_.registry;
    if (name.empty() || name.find('\\') != std::string::npos) return false;
    const bool known = registry.KeyExists(KeyOf(name));
    const int action = (request - 1) % 3; // add, change, remove
    if (action == 2)
        return known && registry.DeleteKey(KeyOf(name)) && registry.DeleteValue(SourcesKey, name);
    if (action == 1 && !known) return false;
    return EqualsNoCase(ODBC_DRIVER_NAME, DriverName) && FindAccessDriver(registry, driver) &&
           WriteDataSource(registry, services_.desktop.ProgramFolder(), name, path, driver);
}

} // namespace varnik::data
