// What every screen does with a key that no handler dealt with.

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"
#include "platform/forms/Screen.h"

#include <algorithm>
#include <optional>

namespace varnik::forms {

namespace {

constexpr int rowsOfAPage = 10;

// Where a row number goes under a key; nothing when the key moves no rows.
std::optional<int> MovedRow(KeyCode code, int row, int first, int last) {
    switch (code) {
    case KeyCode::Up:
        row -= 1;
        break;
    case KeyCode::Down:
        row += 1;
        break;
    case KeyCode::PageUp:
        row -= rowsOfAPage;
        break;
    case KeyCode::PageDown:
        row += rowsOfAPage;
        break;
    case KeyCode::Home:
        row = first;
        break;
    case KeyCode::End:
        row = last;
        break;
    default:
        return std::nullopt;
    }
    return std::max(first, std::min(row, last));
}

bool TakesShortcut(const Control& control) {
    switch (control.GetKind()) {
    case Kind::Menu:
    case Kind::MenuItem:
    case Kind::StatusBar:
    case Kind::Timer:
        return false;
    default:
        return control.IsUsable();
    }
}

// "&Save" answers to Alt+S, "Fish && Chips" to nothing.
bool HasShortcut(const Control& control, const Key& key) {
    const std::string& caption = control.Caption();
    for (auto mark = caption.find('&'); mark != std::string::npos && mark + 1 < caption.size();
         mark = caption.find('&', mark + 2))
        if (caption[mark + 1] != '&') return key.IsAlt(caption[mark + 1]);
    return false;
}

bool IsPressed(const Control& control) {
    const Kind kind = control.GetKind();
    return kind == Kind::Button || kind == Kind::CheckBox || kind == Kind::OptionButton;
}

} // namespace

bool Screen::DefaultAction(const Key& key) {
    if (key.code == KeyCode::Tab && !key.ctrl && !key.alt) {
        MoveNext(key.shift);
        return true;
    }
    return ActivateKey(key) || Shortcut(key) || ListKey(key);
}

bool Screen::ActivateKey(const Key& key) {
    if (key.Is(KeyCode::Escape)) {
        if (!cancel_ || !cancel_->IsUsable()) return false;
        Press(*cancel_);
        return true;
    }
    const bool space = key.Is(KeyCode::Character) && key.character == U' ';
    if (focused_ && space && IsPressed(*focused_)) {
        Click(*focused_);
        return true;
    }
    if (!key.Is(KeyCode::Enter)) return false;
    if (focused_ && focused_->GetKind() == Kind::Button) {
        Click(*focused_);
    } else if (auto* list = dynamic_cast<ListGrid*>(focused_)) {
        list->ActivateRow(list->Row());
    } else if (focused_ && focused_->GetKind() == Kind::Tree) {
        return false; // the face knows which node stands under the cursor
    } else if (default_ && default_->IsUsable()) {
        Click(*default_);
    } else {
        MoveNext();
    }
    return true;
}

bool Screen::Shortcut(const Key& key) {
    if (key.code != KeyCode::Character || !key.alt || key.ctrl) return false;
    // Several of one letter take turns: the search starts behind the control that has the focus.
    const auto start = std::ranges::find(controls_, focused_);
    std::vector<Control*> order(start == controls_.end() ? controls_.begin() : start + 1, controls_.end());
    if (start != controls_.end()) order.insert(order.end(), controls_.begin(), start + 1);
    for (Control* control : order) {
        if (!TakesShortcut(*control) || !HasShortcut(*control, key)) continue;
        const bool field = control->CanFocus() && !IsPressed(*control);
        if (field) {
            MoveFocus(*control);
        } else if (IsPressed(*control) || control->onClick) {
            Click(*control);
        } else if (Control* const next = Next(control, false, false)) {
            MoveFocus(*next);
        }
        return true;
    }
    return false;
}

bool Screen::ListKey(const Key& key) {
    if (!focused_ || key.alt || key.ctrl) return false;
    const bool back = key.code == KeyCode::Up || key.code == KeyCode::Left;
    const bool arrow = back || key.code == KeyCode::Down || key.code == KeyCode::Right;
    if (auto* grid = dynamic_cast<Grid*>(focused_)) {
        const auto row = MovedRow(key.code, grid->Row(), std::min(1, grid->Rows() - 1), grid->Rows() - 1);
        if (row && *row != grid->Row()) grid->SelectRow(*row);
        return row.has_value();
    }
    if (auto* list = dynamic_cast<ListGrid*>(focused_)) {
        const bool space = key.code == KeyCode::Character && key.character == U' ';
        if (space && list->CheckColumn() >= 0) {
            list->ToggleCheck(list->Row());
            return true;
        }
        const auto row = MovedRow(key.code, list->Row(), std::min(0, list->Rows() - 1), list->Rows() - 1);
        if (row && *row != list->Row()) list->SelectRow(*row);
        return row.has_value();
    }
    if (auto* combo = dynamic_cast<ComboBox*>(focused_)) {
        if (key.code != KeyCode::Up && key.code != KeyCode::Down) return false;
        const int last = static_cast<int>(combo->Items().size()) - 1;
        const int item =
            std::clamp(combo->ListIndex() + (back ? -1 : 1), std::min(0, last), std::max(0, last));
        if (item != combo->ListIndex()) combo->Pick(item);
        return true;
    }
    if (auto* option = dynamic_cast<OptionButton*>(focused_); option && arrow) {
        MoveInGroup(*option, back);
        return true;
    }
    if (arrow && IsPressed(*focused_)) {
        MoveNext(back);
        return true;
    }
    return false;
}

void Screen::MoveInGroup(OptionButton& option, bool backwards) {
    Control* next = &option;
    do next = Next(next, backwards, false);
    while (next && next != &option &&
           (next->GetKind() != Kind::OptionButton || next->Container() != option.Container()));
    if (next) Click(*next);
}

} // namespace varnik::forms
