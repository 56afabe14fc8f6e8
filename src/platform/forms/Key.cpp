#include "platform/forms/Key.h"

namespace varnik::forms {

namespace {

// Of the letters that a keyboard of western Europe gives; others stay.
char32_t Capital(char32_t letter) {
    const bool plain = letter >= U'a' && letter <= U'z';
    const bool accented = letter >= U'\u00E0' && letter <= U'\u00FE' && letter != U'\u00F7';
    return plain || accented ? letter - 32 : letter;
}

} // namespace

bool Key::IsAlt(char letter) const {
    return code == KeyCode::Character && alt && !ctrl &&
           Capital(character) == Capital(static_cast<unsigned char>(letter));
}

void KeyPress::ToUpper() { character = Capital(character); }

} // namespace varnik::forms
