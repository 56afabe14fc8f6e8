// Hands on controls: clicks, keys, picks.

#include "console/Script.h"
#include "console/Stage.h"

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"

#include <algorithm>

namespace varnik::console {

namespace {

using forms::Kind;

template <typename T>
T& As(forms::Control& control, const char* kind) {
    if (auto* as = dynamic_cast<T*>(&control)) return *as;
    throw ScriptError{control.Name() + " is no " + kind};
}

// Keys go to whatever screen has come to the front meanwhile, as on a keyboard.
void Press(Stage& stage, const std::vector<forms::Key>& keys) {
    for (const forms::Key& key : keys) stage.desktop.Keys().Press(stage.Current(), key);
}

// An empty text deletes what is selected.
void TypeOver(Stage& stage, forms::TextControl& field, const std::string& text) {
    if (field.Locked()) throw ScriptError{field.Name() + " is locked"};
    stage.desktop.Keys().SelectAll(field);
    Press(stage, text.empty() ? ReadKeys("{Del}") : PlainKeys(text));
}

void PickDate(Stage& stage, const std::string& name, const std::string& text) {
    auto& picker = As<forms::DatePicker>(stage.Reach(name), "date picker");
    auto date = FromIso(text);
    if (!date) date = ParseDate(text, stage.host.regional);
    if (!date) throw ScriptError{"\"" + text + "\" is no date"};
    picker.Pick(*date);
}

void Mouse(forms::Control& control, const std::function<void()>& handler) {
    if (handler && !control.Owner().Closed()) control.Owner().Act(handler);
}

void Click(Stage& stage, Call& call) {
    forms::Control& control = stage.Use(call.Text(1));
    switch (control.GetKind()) {
    case Kind::Button:
    case Kind::CheckBox:
    case Kind::OptionButton:
        control.Owner().Click(control);
        break;
    case Kind::Label:
    case Kind::Image:
        Mouse(control, control.onMouseDown);
        control.Owner().Click(control);
        Mouse(control, control.onMouseUp);
        break;
    default:
        throw ScriptError{control.Name() + " is nothing to click: see focus, row, choose"};
    }
}

void Enter(Stage& stage, Call& call) {
    const std::string name = call.Text(1), text = call.Text(2);
    forms::Control& control = stage.Reach(name);
    if (control.GetKind() == Kind::DatePicker)
        PickDate(stage, name, text);
    else
        TypeOver(stage, As<forms::TextControl>(control, "field"), text);
    Press(stage, ReadKeys("{Enter}"));
}

void Type(Stage& stage, Call& call) {
    forms::Control& control = stage.Reach(call.Text(1));
    if (auto* field = dynamic_cast<forms::TextControl*>(&control)) stage.desktop.Keys().CaretToEnd(*field);
    Press(stage, ReadKeys(call.Text(2)));
}

void Clear(Stage& stage, Call& call) {
    TypeOver(stage, As<forms::TextControl>(stage.Reach(call.Text(1)), "field"), "");
}

void Focus(Stage& stage, Call& call) {
    forms::Control& control = stage.Use(call.Text(1));
    if (!control.CanFocus()) throw ScriptError{control.Name() + " does not take the focus"};
    control.Owner().MoveFocus(control); // where the leaving puts it is for the script to ask
}

void Choose(Stage& stage, Call& call) {
    const std::string text = call.Text(2);
    auto& combo = As<forms::ComboBox>(stage.Reach(call.Text(1)), "drop-down list");
    if (combo.Locked()) throw ScriptError{combo.Name() + " is locked"};
    const auto& items = combo.Items();
    auto item = std::ranges::find(items, text);
    if (item == items.end())
        item = std::ranges::find_if(items, [&](const std::string& each) { return each.starts_with(text); });
    if (item == items.end()) throw ScriptError{combo.Name() + " has no item \"" + text + "\""};
    combo.Pick(static_cast<int>(item - items.begin()));
}

void Check(Stage& stage, Call& call) {
    forms::Control& control = stage.Use(call.Text(1));
    const bool wanted = call.Truth(2);
    bool checked = false;
    if (auto* option = dynamic_cast<forms::OptionButton*>(&control)) {
        if (!wanted) throw ScriptError{"an option goes off when another of its group goes on"};
        checked = option->Checked();
    } else {
        auto& box = As<forms::CheckBox>(control, "check box");
        if (box.Locked()) throw ScriptError{box.Name() + " is locked"};
        checked = box.Checked();
    }
    if (checked != wanted) control.Owner().Click(control);
}

void Date(Stage& stage, Call& call) { PickDate(stage, call.Text(1), call.Text(2)); }

// A press on a row: the field before is left, the row becomes the current one, the list is clicked.
forms::Control& ClickRow(Stage& stage, Call& call) {
    forms::Control& control = stage.Use(call.Text(1));
    const int row = call.Whole(2);
    auto* const list = dynamic_cast<forms::ListGrid*>(&control);
    auto* const grid = list ? nullptr : &As<forms::Grid>(control, "grid");
    const int first = list ? 1 : 0, last = list ? list->Rows() : grid->Rows() - 1;
    if (row < first || row > last)
        throw ScriptError{control.Name() + " has no row " + std::to_string(row) + ", its last is " +
                          std::to_string(last)};
    control.Owner().MoveFocus(control);
    if (list)
        list->SelectRow(row - 1);
    else
        grid->SelectRow(row);
    control.Owner().Click(control);
    return control;
}

void Row(Stage& stage, Call& call) { ClickRow(stage, call); }

void DoubleClick(Stage& stage, Call& call) {
    forms::Control& control = ClickRow(stage, call);
    control.Owner().DoubleClick(control); // nothing when the first press has closed the list
}

void Tick(Stage& stage, Call& call) {
    for (int n = call.Whole(1); n > 0; --n)
        for (forms::Screen* screen : stage.desktop.Screens())
            for (forms::Control* control : screen->Controls())
                if (auto* timer = dynamic_cast<forms::Timer*>(control)) timer->Tick();
}

void Resize(Stage& stage, Call& call) {
    if (call.Number(1) <= 0 || call.Number(2) <= 0) throw ScriptError{"a size is above 0"};
    forms::Screen& screen = stage.Current();
    screen.Act([&] { screen.Resized(); });
}

constexpr Word words[] = {{"click", Click}, {"enter", Enter},   {"type", Type},
                          {"clear", Clear}, {"focus", Focus},   {"choose", Choose},
                          {"check", Check}, {"date", Date},     {"row", Row},
                          {"tick", Tick},   {"resize", Resize}, {"doubleclick", DoubleClick}};

} // namespace

std::span<const Word> ControlWords() { return words; }

} // namespace varnik::console
