#pragma once
// Keys and values as the desktop platform's registry keeps them, in one readable file of the program's
// folder. Key and value names are compared without regard to case; keys are joined by backslashes.
//
//     [SOFTWARE\ODBC\ODBC.INI\Varnik]
//     "DBQ"="/home/shop/Varnik/Data/Varnik.mdb"
//     "DriverId"=25

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace varnik::registry {

using Data = std::variant<std::string, std::uint32_t>;

struct NoCaseLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

struct Entry {
    std::string key, value;
    Data data;
};

class Registry {
public:
    // Reads the file when it is there. A file that cannot be read counts as empty.
    explicit Registry(std::filesystem::path file);

    // Whether the key, or one below it, is there.
    bool KeyExists(std::string_view key) const;
    std::optional<Data> Query(std::string_view key, std::string_view value) const;
    std::optional<std::string> QueryText(std::string_view key, std::string_view value) const;
    std::vector<std::string> ValueNames(std::string_view key) const; // in order; none for no such key
    // Creates the key when it is missing and writes the file at once, whole or not at all; false when
    // the file cannot be written. What stands there already is not written again.
    bool Set(std::string_view key, std::string_view value, Data data);
    // Several values in one writing.
    bool Set(const std::vector<Entry>& entries);
    // With all keys below it; false when there is none or the file cannot be written.
    bool DeleteKey(std::string_view key);
    bool DeleteValue(std::string_view key, std::string_view value);

private:
    using Values = std::map<std::string, Data, NoCaseLess>;

    bool Write();
    bool WriteFile() const;

    std::filesystem::path file_;
    bool unwritten_ = false; // what stands here could not be written
    std::map<std::string, Values, NoCaseLess> keys_;
};

} // namespace varnik::registry
