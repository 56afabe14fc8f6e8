#include "console/Keyboard.h"

#include "common/Text.h"
#include "console/Script.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varnik::console {

using forms::Key;
using forms::KeyCode;

namespace {

std::u32string Wide(std::string_view text) {
    std::u32string wide;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t character = length == 1 ? lead : lead & (0xFFU >> (length + 1));
        for (std::size_t k = 1; k < length && i + k < text.size(); ++k)
            character = character << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3FU);
        wide += character;
        i += length;
    }
    return wide;
}

std::string Narrow(std::u32string_view text) {
    std::string narrow;
    const auto tail = [&](char32_t c, int shift) {
        narrow += static_cast<char>(0x80U | (c >> shift & 0x3FU));
    };
    for (char32_t c : text) {
        if (c < 0x80) {
            narrow += static_cast<char>(c);
        } else if (c < 0x800) {
            narrow += static_cast<char>(0xC0U | c >> 6);
            tail(c, 0);
        } else if (c < 0x10000) {
            narrow += static_cast<char>(0xE0U | c >> 12);
            tail(c, 6), tail(c, 0);
        } else {
            narrow += static_cast<char>(0xF0U | c >> 18);
            tail(c, 12), tail(c, 6), tail(c, 0);
        }
    }
    return narrow;
}

constexpr std::array<std::pair<std::string_view, KeyCode>, 28> keyNames = {{{"Enter", KeyCode::Enter},
                                                                            {"Tab", KeyCode::Tab},
                                                                            {"Esc", KeyCode::Escape},
                                                                            {"Escape", KeyCode::Escape},
                                                                            {"Del", KeyCode::Delete},
                                                                            {"Delete", KeyCode::Delete},
                                                                            {"Backspace", KeyCode::Backspace},
                                                                            {"Insert", KeyCode::Insert},
                                                                            {"Home", KeyCode::Home},
                                                                            {"End", KeyCode::End},
                                                                            {"Up", KeyCode::Up},
                                                                            {"Down", KeyCode::Down},
                                                                            {"Left", KeyCode::Left},
                                                                            {"Right", KeyCode::Right},
                                                                            {"PageUp", KeyCode::PageUp},
                                                                            {"PageDown", KeyCode::PageDown},
                                                                            {"F1", KeyCode::F1},
                                                                            {"F2", KeyCode::F2},
                                                                            {"F3", KeyCode::F3},
                                                                            {"F4", KeyCode::F4},
                                                                            {"F5", KeyCode::F5},
                                                                            {"F6", KeyCode::F6},
                                                                            {"F7", KeyCode::F7},
                                                                            {"F8", KeyCode::F8},
                                                                            {"F9", KeyCode::F9},
                                                                            {"F10", KeyCode::F10},
                                                                            {"F11", KeyCode::F11},
                                                                            {"F12", KeyCode::F12}}};

// What stands between the braces: "Enter", "Alt+N", "Ctrl+Shift+Home".
Key NamedKey(const std::string_view whole) {
    Key key;
    std::string_view name = whole;
    const auto take = [&](std::string_view prefix, bool& flag) {
        if (!name.starts_with(prefix) || name.size() == prefix.size()) return false;
        name.remove_prefix(prefix.size());
        return flag = true;
    };
    while (take("Alt+", key.alt) || take("Ctrl+", key.ctrl) || take("Shift+", key.shift)) {
    }
    for (const auto& [known, code] : keyNames)
        if (EqualsNoCase(known, name)) {
            key.code = code;
            return key;
        }
    const std::u32string letter = Wide(name);
    if (letter.size() != 1) throw ScriptError{"there is no key {" + std::string(whole) + "}"};
    key.character = letter[0];
    return key;
}

} // namespace

std::vector<Key> PlainKeys(std::string_view text) {
    std::vector<Key> keys;
    for (char32_t character : Wide(text)) keys.push_back({.character = character});
    return keys;
}

std::vector<Key> ReadKeys(std::string_view text) {
    std::vector<Key> keys;
    while (!text.empty()) {
        const auto open = text.find('{');
        std::ranges::copy(PlainKeys(text.substr(0, open)), std::back_inserter(keys));
        if (open == std::string_view::npos) break;
        const auto close = text.find('}', open + 2); // "{{}" and "{}}" are the braces themselves
        if (close == std::string_view::npos) throw ScriptError{"a \"{\" without its \"}\""};
        keys.push_back(NamedKey(text.substr(open + 1, close - open - 1)));
        text.remove_prefix(close + 1);
    }
    return keys;
}

void Keyboard::Press(forms::Screen& screen, const Key& key) {
    if (!screen.PressKey(key) && !screen.Closed())
        if (auto* field = dynamic_cast<forms::TextControl*>(screen.Focused())) Edit(screen, *field, key);
    screen.ReleaseKey(key);
}

// Takes up the field as it stands: another field, or a text set by code, has the caret at its end.
void Keyboard::Attach(forms::TextControl& field) {
    std::u32string text = Wide(field.Text());
    if (caret_.field == &field && caret_.text == text) return;
    const std::size_t end = text.size();
    caret_ = {&field, std::move(text), end, end};
}

void Keyboard::SelectAll(forms::TextControl& field) {
    if (field.Owner().Focused() != &field) return;
    caret_ = {&field, Wide(field.Text()), 0, 0};
    caret_.at = caret_.text.size();
}

void Keyboard::CaretToEnd(forms::TextControl& field) {
    Attach(field);
    if (caret_.at != caret_.anchor) caret_.at = caret_.text.size();
    caret_.anchor = caret_.at;
}

void Keyboard::FocusMoved(forms::Screen& screen) {
    if (auto* field = dynamic_cast<forms::TextControl*>(screen.Focused()))
        SelectAll(*field);
    else
        caret_ = {};
}

void Keyboard::ScreenGone(forms::Screen& screen) {
    if (caret_.field && &caret_.field->Owner() == &screen) caret_ = {};
}

void Keyboard::Edit(forms::Screen& screen, forms::TextControl& field, const Key& key) {
    Attach(field);
    const std::size_t from = caret_.From(), to = caret_.To();
    if (key.code == KeyCode::Character && !key.ctrl && !key.alt)
        Insert(screen, field, key.character);
    else if (key.code == KeyCode::Character && key.ctrl && (key.character == U'a' || key.character == U'A'))
        SelectAll(field);
    else if (key.code == KeyCode::Backspace && !field.Locked())
        Replace(from == to && from > 0 ? from - 1 : from, to, {});
    else if (key.code == KeyCode::Delete && !field.Locked())
        Replace(from, from == to && to < caret_.text.size() ? to + 1 : to, {});
    else
        MoveCaret(key);
}

void Keyboard::Insert(forms::Screen& screen, forms::TextControl& field, char32_t character) {
    const auto* combo = dynamic_cast<forms::ComboBox*>(&field);
    if (field.Locked()) throw ScriptError{field.Name() + " is locked"};
    if (combo && combo->ListOnly())
        throw ScriptError{field.Name() + " takes no typing: choose from its list"};
    character = screen.FilterCharacter(character);
    if (character == 0 || screen.Focused() != &field) return;
    Attach(field); // the filter may have set another text
    const std::size_t room = static_cast<std::size_t>(field.MaxLength());
    if (room > 0 && caret_.text.size() - (caret_.To() - caret_.From()) >= room) return; // the field is full
    Replace(caret_.From(), caret_.To(), {&character, 1});
}

void Keyboard::Replace(std::size_t from, std::size_t to, std::u32string_view with) {
    forms::TextControl& field = *caret_.field;
    caret_.text.replace(from, to - from, with);
    caret_.at = caret_.anchor = from + with.size();
    field.Type(Narrow(caret_.text));
}

void Keyboard::MoveCaret(const Key& key) {
    const bool collapses = caret_.at != caret_.anchor && !key.shift;
    switch (key.code) {
    case KeyCode::Home:
        caret_.at = 0;
        break;
    case KeyCode::End:
        caret_.at = caret_.text.size();
        break;
    case KeyCode::Left:
        caret_.at = collapses ? caret_.From() : caret_.at - (caret_.at > 0 ? 1 : 0);
        break;
    case KeyCode::Right:
        caret_.at = collapses ? caret_.To() : std::min(caret_.at + 1, caret_.text.size());
        break;
    default:
        return;
    }
    if (!key.shift) caret_.anchor = caret_.at;
}

} // namespace varnik::console
