#include "common/Files.h"

#include "common/Text.h"

namespace varnik {

std::filesystem::path MatchPath(std::string_view text) {
    std::u8string name(text.begin(), text.end());
    std::replace(name.begin(), name.end(), u8'\\', u8'/');
    const std::filesystem::path wanted(name);
    std::error_code ignored;
    if (std::filesystem::exists(wanted, ignored)) return wanted;
    std::filesystem::path found = wanted.root_path();
    for (const auto& part : wanted.relative_path()) {
        std::filesystem::path next = found / part;
        if (!std::filesystem::exists(next, ignored))
            for (const auto& entry : std::filesystem::directory_iterator(
                     found.empty() ? std::filesystem::path(".") : found, ignored))
                if (EqualsNoCase(PathText(entry.path().filename()), PathText(part))) {
                    next = found / entry.path().filename();
                    break;
                }
        found = std::move(next);
    }
    return found;
}

std::string PathText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace varnik
