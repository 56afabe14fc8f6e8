// What controls show. Reading does not bring a screen to the front.

#include "console/Script.h"
#include "console/Stage.h"

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"

namespace varnik::console {

namespace {

using forms::Control;

template <typename T>
T* As(Control& control) {
    return dynamic_cast<T*>(&control);
}

// A field's text, a date in the machine's form, a panel of a status bar, else the caption.
void Text(Stage& stage, Call& call) {
    Control& control = stage.Find(call.Text(1));
    if (const auto* field = As<forms::TextControl>(control))
        call.Give(field->Text());
    else if (const auto* picker = As<forms::DatePicker>(control))
        call.Give(ShortDate(picker->Date(), stage.host.regional));
    else if (const auto* bar = As<forms::StatusBar>(control))
        call.Give(bar->Panel(call.Whole(2)));
    else
        call.Give(control.Caption());
}

// Without a name, that of the current screen.
void Caption(Stage& stage, Call& call) {
    call.Give(call.Has(1) ? stage.Find(call.Text(1)).Caption() : stage.Current().Caption());
}

void Enabled(Stage& stage, Call& call) {
    const Control* control = &stage.Find(call.Text(1));
    while (control && control->Enabled()) control = control->Container();
    call.Give(control == nullptr);
}

void Visible(Stage& stage, Call& call) { call.Give(stage.Find(call.Text(1)).IsShown()); }

void Locked(Stage& stage, Call& call) {
    Control& control = stage.Find(call.Text(1));
    const auto* field = As<forms::TextControl>(control);
    const auto* check = As<forms::CheckBox>(control);
    call.Give((field && field->Locked()) || (check && check->Locked()));
}

void Checked(Stage& stage, Call& call) {
    Control& control = stage.Find(call.Text(1));
    if (const auto* check = As<forms::CheckBox>(control))
        call.Give(check->Checked());
    else if (const auto* option = As<forms::OptionButton>(control))
        call.Give(option->Checked());
    else if (const auto* item = As<forms::MenuItem>(control))
        call.Give(item->Checked());
    else
        throw ScriptError{control.Name() + " is nothing to check"};
}

// Of a drop-down list its texts, of the menu tree its keys.
void Items(Stage& stage, Call& call) {
    Control& control = stage.Find(call.Text(1));
    std::vector<std::string> items;
    if (const auto* combo = As<forms::ComboBox>(control))
        items = combo->Items();
    else if (const auto* tree = As<forms::Tree>(control))
        for (const forms::TreeNode& node : tree->Nodes()) items.push_back(node.key);
    else
        throw ScriptError{control.Name() + " has no items"};
    call.Give(items);
}

// ---- Grids: row 1 is the first below the headings, columns count from 0 ----

struct AnyGrid {
    explicit AnyGrid(Control& control) : grid(As<forms::Grid>(control)), list(As<forms::ListGrid>(control)) {
        if (!grid && !list) throw ScriptError{control.Name() + " is no grid"};
    }
    int Rows() const { return grid ? grid->Rows() - 1 : list->Rows(); }
    int Current() const { return grid ? grid->Row() : list->Row() + 1; }
    int Columns() const { return static_cast<int>(grid ? grid->Columns().size() : list->Columns().size()); }
    std::string Cell(int row, int column) const {
        if (grid) return grid->Cell(row, column);
        if (row > 0) return list->Cell(row - 1, column);
        return list->Columns()[static_cast<std::size_t>(column)].caption;
    }
    forms::Grid* grid;
    forms::ListGrid* list;
};

void Rows(Stage& stage, Call& call) { call.Give(AnyGrid(stage.Find(call.Text(1))).Rows()); }

void CurrentRow(Stage& stage, Call& call) { call.Give(AnyGrid(stage.Find(call.Text(1))).Current()); }

void Cell(Stage& stage, Call& call) {
    const std::string name = call.Text(1);
    const AnyGrid grid(stage.Find(name));
    const int row = call.Whole(2), column = call.Whole(3);
    if (row < 0 || row > grid.Rows() || column < 0 || column >= grid.Columns())
        throw ScriptError{name + " has rows 0 to " + std::to_string(grid.Rows()) + " and columns 0 to " +
                          std::to_string(grid.Columns() - 1)};
    call.Give(grid.Cell(row, column));
}

void Focused(Stage& stage, Call& call) {
    if (const Control* control = stage.Current().Focused())
        call.Give(control->Name());
    else
        call.GiveNil();
}

constexpr Word words[] = {{"text", Text},       {"caption", Caption}, {"enabled", Enabled},
                          {"visible", Visible}, {"locked", Locked},   {"checked", Checked},
                          {"items", Items},     {"rows", Rows},       {"currentrow", CurrentRow},
                          {"cell", Cell},       {"focused", Focused}};

} // namespace

std::span<const Word> ReadingWords() { return words; }

} // namespace varnik::console
