#include "platform/forms/Controls.h"

#include "common/Text.h"
#include "platform/forms/Screen.h"

#include <algorithm>

namespace varnik::forms {

void Label::SetBorder(bool border) {
    if (border_ == border) return;
    border_ = border;
    Changed();
}

void TextControl::SetText(std::string text) {
    if (text_ == text) return;
    text_ = std::move(text);
    Changed();
    RaiseChange();
}

void TextControl::Type(std::string text) {
    if (locked_) return;
    if (maxLength_ > 0) text = Left(text, maxLength_);
    Person([&] { SetText(std::move(text)); });
}

void TextControl::SetLocked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    Changed();
}

void ComboBox::SetItems(std::vector<std::string> items) {
    items_ = std::move(items);
    ++contents_;
    Changed();
}

void ComboBox::AddItem(std::string item) {
    items_.push_back(std::move(item));
    ++contents_;
    Changed();
}

void ComboBox::Clear() {
    items_.clear();
    ++contents_;
    Changed();
    SetText("");
}

int ComboBox::ListIndex() const {
    const auto found = std::find(items_.begin(), items_.end(), Text());
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ComboBox::Pick(int index) {
    if (Locked() || index < 0 || index >= static_cast<int>(items_.size())) return;
    Person([&] {
        SetText(items_[static_cast<std::size_t>(index)]);
        if (onClick) onClick();
    });
}

void CheckBox::SetChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    Changed();
    if (onClick) onClick();
}

void CheckBox::SetLocked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    Changed();
}

void OptionButton::SetChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    if (checked)
        for (Control* other : Owner().Controls())
            if (auto* option = dynamic_cast<OptionButton*>(other);
                option && option != this && option->Container() == Container() && option->checked_) {
                option->checked_ = false;
                option->Changed();
            }
    Changed();
    if (checked && onClick) onClick();
}

void DatePicker::SetDate(DateTime date) {
    if (date_ == date) return;
    date_ = date;
    Changed();
    RaiseChange();
}

void DatePicker::Pick(DateTime date) {
    Person([&] { SetDate(date); });
}

void Frame::Hold(std::initializer_list<Control*> controls) {
    for (Control* control : controls) {
        control->container_ = this;
        held_.push_back(control);
    }
}

void Tree::Add(TreeNode node) {
    nodes_.push_back(std::move(node));
    Changed();
}

const TreeNode* Tree::Find(std::string_view key) const {
    const auto found = std::ranges::find(nodes_, key, &TreeNode::key);
    return found == nodes_.end() ? nullptr : &*found;
}

void Tree::NodeClick(const std::string& key) {
    Person([&] {
        if (onNodeClick) onNodeClick(key);
    });
}

const std::string& StatusBar::Panel(int number) const {
    return panels_.at(static_cast<std::size_t>(number - 1));
}

void StatusBar::SetPanel(int number, std::string text) {
    std::string& panel = panels_.at(static_cast<std::size_t>(number - 1));
    if (panel == text) return;
    panel = std::move(text);
    Changed();
}

void Timer::Tick() {
    if (onTick && Enabled() && !Owner().Closed()) Owner().Act(onTick);
}

MenuItem::MenuItem(Menu& menu, std::string name, std::string caption)
    : Control(menu.Owner(), Kind::MenuItem, std::move(name), std::move(caption)) {
    menu.items_.push_back(this);
}

void MenuItem::SetChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    Changed();
}

} // namespace varnik::forms
