#pragma once
// frmCari: the panel that finds documents by one of a few criteria. The statement is joined from what the
// screen selects and the chosen condition around the typed value, as it is typed.

#include "platform/desktop/Services.h"
#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnik::document {

struct SearchChoice {
    std::string_view caption;
    std::string_view before, after; // what stands around the value in the statement
};

// What tells the panels apart.
struct SearchLayout {
    std::string_view select;
    std::span<const SearchChoice> choices;
    std::vector<forms::GridColumn> columns; // the right-aligned ones are amounts
    std::string_view mask = "#,##0";        // of the amounts
    bool failsAloud = false;                // a statement that fails shows its failure
    // What the list of criteria offers, where it has words of its own; those that are no choice find all.
    std::span<const std::string_view> offered = {};
};

struct SearchNames {
    std::string_view frame = "frmCari", criterion = "txtKreteria", value = "txtValue", execute = "cmdExecute",
                     take = "cmdTutup", grid = "grdCari";
};

// The second panel of a screen, for its own documents where the first looks for those that they refer to.
inline constexpr SearchNames SecondSearch{"FrmCari2",     "TxtKreteria2", "txtValue2",
                                          "bttnExecute2", "bttnTutup2",   "grdCari2"};

class SearchPanel {
public:
    SearchPanel(forms::Screen& screen, SearchLayout layout, const SearchNames& names = {});

    void Open();
    void Close() { frame_.SetVisible(false); }
    // Runs the chosen search. A statement that fails (a date that is none, a quote) lists nothing, and goes
    // to the screen's report where the layout says so. One that the person stops leaves the list as it was.
    void Execute(ado::Connection& connection, Services& services);
    // A column of the chosen row, "" when there is none.
    std::string Chosen(int column) const { return grid_.Cell(grid_.Row(), column); }

    std::function<void()> onExecute; // the screen calls Execute with its connection
    std::function<void()> onTake;    // the chosen row is taken, by button or double click

private:
    std::string Statement() const;
    std::string Line(const std::vector<Value>& row, const Regional& regional) const;

    SearchLayout layout_;
    forms::Frame frame_;
    forms::ComboBox criterion_;
    forms::TextBox value_;
    forms::Button execute_, take_;
    forms::ListGrid grid_;
};

} // namespace varnik::document
