#include "platform/registry/Registry.h"

#include "common/Text.h"

#include <charconv>
#include <fstream>
#include <random>

namespace varnik::registry {
namespace {

constexpr std::string_view HexDigits = "0123456789abcdef";

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            (quoted += '\\') += c;
        else if (code < 32 || code == 127)
            ((quoted += "\\x") += HexDigits[code >> 4]) += HexDigits[code & 15];
        else
            quoted += c;
    }
    return quoted + '"';
}

// Reads a quoted text off the front of the line; nothing when there is none.
std::optional<std::string> TakeQuoted(std::string_view& line) {
    if (line.empty() || line[0] != '"') return std::nullopt;
    std::string text;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '"') {
            line.remove_prefix(i + 1);
            return text;
        }
        if (line[i] != '\\') {
            text += line[i];
            continue;
        }
        const std::string_view rest = line.substr(i + 1);
        const auto high = rest.size() > 2 ? HexDigits.find(rest[1]) : std::string_view::npos;
        const auto low = rest.size() > 2 ? HexDigits.find(rest[2]) : std::string_view::npos;
        if (!rest.empty() && rest[0] != 'x') {
            text += rest[0];
            i += 1;
        } else if (high != std::string_view::npos && low != std::string_view::npos) {
            text += static_cast<char>(static_cast<unsigned char>(high * 16 + low));
            i += 3;
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<Data> ReadData(std::string_view text) {
    if (auto quoted = TakeQuoted(text)) return Data{*quoted};
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return Data{number};
}

bool IsAtOrBelow(std::string_view key, std::string_view ancestor) {
    return key.size() >= ancestor.size() && EqualsNoCase(key.substr(0, ancestor.size()), ancestor) &&
           (key.size() == ancestor.size() || key[ancestor.size()] == '\\');
}

} // namespace

bool NoCaseLess::operator()(std::string_view a, std::string_view b) const { return Upper(a) < Upper(b); }

Registry::Registry(std::filesystem::path file) : file_(std::move(file)) {
    std::ifstream stream(file_, std::ios::binary);
    Values* values = nullptr;
    for (std::string text; std::getline(stream, text);) {
        if (text.ends_with('\r')) text.pop_back();
        std::string_view line = text;
        if (line.size() > 2 && line.front() == '[' && line.back() == ']') {
            values = &keys_[std::string(line.substr(1, line.size() - 2))];
            continue;
        }
        const auto name = TakeQuoted(line);
        if (!name || !values || !line.starts_with('=')) continue;
        if (auto data = ReadData(line.substr(1))) values->insert_or_assign(*name, std::move(*data));
    }
}

bool Registry::KeyExists(std::string_view key) const {
    return std::any_of(keys_.begin(), keys_.end(),
                       [&](const auto& entry) { return IsAtOrBelow(entry.first, key); });
}

std::optional<Data> Registry::Query(std::string_view key, std::string_view value) const {
    const auto values = keys_.find(key);
    if (values == keys_.end()) return std::nullopt;
    const auto data = values->second.find(value);
    return data == values->second.end() ? std::nullopt : std::optional(data->second);
}

std::optional<std::string> Registry::QueryText(std::string_view key, std::string_view value) const {
    const auto data = Query(key, value);
    const auto* text = data ? std::get_if<std::string>(&*data) : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

std::vector<std::string> Registry::ValueNames(std::string_view key) const {
    std::vector<std::string> names;
    if (const auto found = keys_.find(key); found != keys_.end())
        for (const auto& [name, data] : found->second) names.push_back(name);
    return names;
}

bool Registry::Set(std::string_view key, std::string_view value, Data data) {
    return Set({{std::string(key), std::string(value), std::move(data)}});
}

bool Registry::Set(const std::vector<Entry>& entries) {
    bool fresh = false;
    for (const Entry& entry : entries) {
        if (Query(entry.key, entry.value) == entry.data) continue;
        keys_[entry.key].insert_or_assign(entry.value, entry.data);
        fresh = true;
    }
    std::error_code ignored;
    return (!fresh && !unwritten_ && std::filesystem::exists(file_, ignored)) || Write();
}

bool Registry::DeleteKey(std::string_view key) {
    return std::erase_if(keys_, [&](const auto& entry) { return IsAtOrBelow(entry.first, key); }) > 0 &&
           Write();
}

bool Registry::DeleteValue(std::string_view key, std::string_view value) {
    const auto values = keys_.find(key);
    if (values == keys_.end()) return false;
    const auto data = values->second.find(value);
    if (data == values->second.end()) return false;
    values->second.erase(data);
    return Write();
}

bool Registry::Write() {
    unwritten_ = !WriteFile();
    return !unwritten_;
}

bool Registry::WriteFile() const {
    // A name of its own, so that two stations that start together on one folder do not mix their files.
    std::filesystem::path fresh = file_;
    fresh += "." + std::to_string(std::random_device()()) + ".new";
    std::error_code error;
    {
        std::ofstream stream(fresh, std::ios::binary | std::ios::trunc);
        for (const auto& [key, values] : keys_) {
            stream << '[' << key << "]\n";
            for (const auto& [name, data] : values) {
                stream << Quoted(name) << '=';
                if (const auto* text = std::get_if<std::string>(&data))
                    stream << Quoted(*text) << '\n';
                else
                    stream << std::get<std::uint32_t>(data) << '\n';
            }
            stream << '\n';
        }
        stream.close();
        if (stream) {
            std::filesystem::rename(fresh, file_, error);
            if (!error) return true;
        }
    }
    std::filesystem::remove(fresh, error);
    return false;
}

} // namespace varnik::registry
