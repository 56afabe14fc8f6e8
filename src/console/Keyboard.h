#pragma once
// Hands on a keyboard: keys go to the screen as they do on the desktop, and what a field edits with changes
// its text at a caret. Entering a field selects its whole text.

#include "platform/forms/Controls.h"
#include "platform/forms/Screen.h"

#include <string>
#include <string_view>
#include <vector>

namespace varnik::console {

// "C001{Tab}{Alt+N}" as keys; ScriptError for a key that there is not.
std::vector<forms::Key> ReadKeys(std::string_view text);
// Every character as it stands.
std::vector<forms::Key> PlainKeys(std::string_view text);

class Keyboard {
public:
    // A key down, its effect, the key up. ScriptError when a character goes into a field that takes none.
    void Press(forms::Screen& screen, const forms::Key& key);
    void SelectAll(forms::TextControl& field);  // when it has the focus
    void CaretToEnd(forms::TextControl& field); // nothing stays selected

    // Hooks of the desktop.
    void FocusMoved(forms::Screen& screen);
    void ScreenGone(forms::Screen& screen);

private:
    // Caret and selection of the field that has the focus, in characters.
    struct Caret {
        forms::TextControl* field = nullptr;
        std::u32string text; // as it stood after the last key
        std::size_t at = 0, anchor = 0;
        std::size_t From() const { return at < anchor ? at : anchor; }
        std::size_t To() const { return at < anchor ? anchor : at; }
    };
    void Attach(forms::TextControl& field);
    void Edit(forms::Screen& screen, forms::TextControl& field, const forms::Key& key);
    void Insert(forms::Screen& screen, forms::TextControl& field, char32_t character);
    void Replace(std::size_t from, std::size_t to, std::u32string_view with);
    void MoveCaret(const forms::Key& key);

    Caret caret_;
};

} // namespace varnik::console
