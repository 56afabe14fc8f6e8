#pragma once
// The data source "Varnik": an entry of the registry by which "DSN=Varnik" comes to mean a database file.
// It is written at every start, so one that was pointed elsewhere goes back to the program's own database.

#include "platform/desktop/Services.h"
#include "platform/registry/Registry.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace varnik::data {

// Data/Varnik.mdb under the program's folder, in the case that it stands there.
std::filesystem::path DatabaseFile(const std::filesystem::path& programFolder);

// The program brings its driver along; it is registered once, on the first start.
void RegisterBuiltInDriver(registry::Registry& registry);
// False when no driver is registered; the path may come back empty.
bool FindAccessDriver(const registry::Registry& registry, std::string& driverPath);
// True when all was written. An empty path means the program's own database.
bool WriteDataSource(registry::Registry& registry, const std::filesystem::path& programFolder,
                     const std::string& name, const std::string& path, const std::string& driverPath);
// Finds the driver and writes the data source, with a message when either fails. True when it stands.
bool CreateDataSource(Services& services, const std::string& path = "");

std::vector<std::string> DataSourceNames(const registry::Registry& registry);

// The file behind "DSN=name" or "Provider=...; Data Source = path"; DataError for a name that is not
// registered and a text that is neither.
std::filesystem::path ResolveConnection(const registry::Registry& registry,
                                        std::string_view connectionString);
// What connections need to know: the schema and this resolver. Both arguments outlive it.
ado::Environment MakeEnvironment(const Regional& regional, const registry::Registry& registry);

// Adds, changes and removes data sources by request: 1 add, 2 change, 3 remove, and 4 to 6 the same for
// all users of the machine, which is no difference here.
class clsOdbc {
public:
    explicit clsOdbc(Services& services) : services_(services) {}

    std::string ODBC_DRIVER_NAME;
    std::string ODBC_ATTRIBUTES; // "DSN=name", "DBQ=path", ... separated by null characters or "|"

    // Driver 1 is the database file's, 2 a server's, 0 the one that is set; empty attributes mean those
    // that are set. "" when it went through, else the text of the error.
    std::string ExecuteDSN(int request, int driverNumber = 0, const std::string& attributes = "");

private:
    bool Configure(int request);
    Services& services_;
};

} // namespace varnik::data
