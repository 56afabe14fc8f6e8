#include "platform/forms/Control.h"
#include "platform/forms/Controls.h"
#include "platform/forms/Screen.h"

namespace varnik::forms {

Control::Control(Screen& screen, Kind kind, std::string name, std::string caption)
    : screen_(screen), kind_(kind), name_(std::move(name)), caption_(std::move(caption)) {
    screen.Register(*this);
}

void Control::SetCaption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    Changed();
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Changed();
    if (!enabled) screen_.ControlGone();
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Changed();
    if (!visible) screen_.ControlGone();
}

void Control::SetToolTip(std::string text) {
    toolTip_ = std::move(text);
    Changed();
}

void Control::SetMasked(bool masked) {
    masked_ = masked;
    Changed();
}

void Control::SetFontSize(int points) {
    fontSize_ = points;
    Changed();
}

bool Control::IsShown() const { return visible_ && (!container_ || container_->IsShown()); }

bool Control::IsUsable() const {
    for (const Control* control = this; control; control = control->container_)
        if (!control->visible_ || !control->enabled_) return false;
    return true;
}

bool Control::CanFocus() const {
    switch (kind_) {
    case Kind::Button:
    case Kind::TextBox:
    case Kind::ComboBox:
    case Kind::CheckBox:
    case Kind::OptionButton:
    case Kind::DatePicker:
    case Kind::Grid:
    case Kind::ListGrid:
    case Kind::Tree:
        return IsUsable();
    default:
        return false;
    }
}

void Control::RaiseChange() {
    if (onChange) onChange();
}

void Control::Person(const std::function<void()>& act) {
    if (!screen_.Closed() && IsUsable()) screen_.Raise(act);
}

} // namespace varnik::forms
