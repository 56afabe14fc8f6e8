#pragma once
// Keys and values as the desktop platform's registry keeps them, in one readable file of the program's
// folder. Key and value names are compared without regard to case; keys are joined by backslashes.

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace varnik::registry {

using Data = std::variant<std::string, std::uint32_t>;

class Registry {
public:
    // Reads the file when it is there. A file that cannot be read counts as empty.
    explicit Registry(std::filesystem::path file);

    bool KeyExists(std::string_view key) const;
    std::optional<Data> Query(std::string_view key, std::string_view value) const;
    std::optional<std::string> QueryText(std::string_view key, std::string_view value) const;
    // Creates the key when it is missing and writes the file at once, whole or not at all; false when
    // the file cannot be written.
    bool Set(std::string_view key, std::string_view value, Data data);
    bool DeleteKey(std::string_view key);

private:
    std::filesystem::path file_;
    std::map<std::string, std::map<std::string, Data>> keys_;
};

} // namespace varnik::registry
