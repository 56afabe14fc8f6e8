#include "reports/engine/Template.h"

#include "common/Text.h"

#include <stdexcept>

namespace varnik::reports {

namespace {

bool TakePrefix(std::string& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text = Trim(text.substr(prefix.size()));
    return true;
}

} // namespace

Template::Template(std::string_view text) {
    const auto fail = [&](const char* what) {
        throw std::invalid_argument("the text \"" + std::string(text) + "\" " + what);
    };
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t open = text.find('{', at);
        if (open != at) pieces_.push_back({std::string(text.substr(at, open - at)), {}, {}});
        if (open == std::string_view::npos) break;
        const std::size_t close = text.find('}', open);
        if (close == std::string_view::npos) fail("lacks a closing brace");
        Piece piece;
        for (const std::string& alternative : Split(text.substr(open + 1, close - open - 1), '|')) {
            Place place;
            place.name = Trim(alternative);
            if (place.name.size() > 2 && place.name.front() == '\'' && place.name.back() == '\'') {
                piece.instead = place.name.substr(1, place.name.size() - 2);
                continue;
            }
            if (const std::size_t colon = place.name.find(':'); colon != std::string::npos) {
                place.mask = place.name.substr(colon + 1);
                place.name = Trim(place.name.substr(0, colon));
            }
            place.words = TakePrefix(place.name, "words ");
            place.month = TakePrefix(place.name, "month ");
            place.sum = TakePrefix(place.name, "sum ");
            place.given = TakePrefix(place.name, "given ");
            if (place.name.empty()) fail("has braces without a name");
            piece.places.push_back(std::move(place));
        }
        pieces_.push_back(std::move(piece));
        at = close + 1;
    }
}

std::string Template::Fill(const std::function<std::string(const Place&)>& fill) const {
    std::string result;
    for (const Piece& piece : pieces_) {
        result += piece.text;
        std::string found = piece.instead;
        for (const Place& place : piece.places) {
            const std::string filled = fill(place);
            const bool nothing = place.given && (Trim(filled) == "0" || Trim(filled) == "-");
            if (filled.empty() || nothing) continue;
            found = filled;
            break;
        }
        result += found;
    }
    return Trim(result);
}

const Template::Place* Template::Only() const {
    const bool one = pieces_.size() == 1 && pieces_.front().places.size() == 1;
    return one && pieces_.front().instead.empty() ? &pieces_.front().places.front() : nullptr;
}

std::vector<std::string> Template::Names() const {
    std::vector<std::string> names;
    for (const Piece& piece : pieces_)
        for (const Place& place : piece.places) names.push_back(place.name);
    return names;
}

} // namespace varnik::reports
