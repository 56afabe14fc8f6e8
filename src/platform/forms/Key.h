#pragma once
// A key as a person presses it, the same for the desktop and the console.

#include <string>

namespace varnik::forms {

enum class KeyCode {
    Character,
    Enter,
    Tab,
    Escape,
    Backspace,
    Delete,
    Insert,
    Home,
    End,
    Up,
    Down,
    Left,
    Right,
    PageUp,
    PageDown,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12
};

struct Key {
    KeyCode code = KeyCode::Character;
    char32_t character = 0; // for Character; the letter as typed
    bool shift = false, ctrl = false, alt = false;
    bool handled = false; // a handler sets it, and nothing else comes of the key

    bool Is(KeyCode which) const { return code == which && !ctrl && !alt; }
    bool IsAlt(char letter) const; // Alt with that letter, in either case
};

// A character on its way into a field. A handler may change it, or discard it by setting 0.
struct KeyPress {
    char32_t character = 0;
    void Discard() { character = 0; }
    void ToUpper();
};

} // namespace varnik::forms
