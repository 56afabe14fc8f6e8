#include "master/MasterList.h"

#include "common/Regional.h"
#include "common/Text.h"
#include "master/MasterScreen.h"

namespace varnik {

namespace {
constexpr int SearchRowHeight = 400;
} // namespace

MasterSearch::MasterSearch(MasterScreen& screen)
    : frmCari(screen, "frmCari"),
      txtKreteria(screen, "txtKreteria", "Search By"),
      txtValue(screen, "txtValue", "Value"),
      cmdExecute(screen, "cmdExecute", "E&xecute"),
      cmdTutup(screen, "cmdTutup", "C&lose"),
      grdCari(screen, "grdCari") {
    frmCari.Hold({&txtKreteria, &txtValue, &cmdExecute, &cmdTutup, &grdCari});
    frmCari.SetOverlay(true);
    frmCari.SetVisible(false);
    for (forms::Control* control : frmCari.Held())
        control->onKeyDown = [this](forms::Key& key) {
            if (!key.Is(forms::KeyCode::Escape)) return;
            key.handled = true;
            frmCari.SetVisible(false);
        };
    screen.Has(*this);
}

void MasterSearch::SetUp(const SearchRow& row) {
    for (std::string_view criterion : row.criteria) txtKreteria.AddItem(std::string(criterion));
    txtKreteria.SetText(std::string(row.criteria.front()));
    grdCari.SetRowHeight(SearchRowHeight);
}

void MasterSearch::Open() {
    frmCari.SetVisible(true);
    frmCari.Owner().SetFocus(txtValue);
}

std::string MasterSearch::Statement(const SearchRow& row, double valueAsNumber) const {
    const std::string criterion = Upper(Trim(txtKreteria.Text()));
    std::string statement(row.select);
    for (const SearchClause& clause : row.clauses) {
        // Some literals are in mixed case and so are never met; that is wanted.
        if (!clause.literal.empty() && clause.literal != criterion) continue;
        statement += clause.where;
        if (clause.number)
            statement.append(SqlNumber(valueAsNumber)).append(" ");
        else
            statement.append(txtValue.Text()).append("%' ");
        break;
    }
    return statement.append(row.order);
}

MasterList::MasterList(MasterScreen& screen) : grdCari(screen, "grdCari") { screen.Has(*this); }

} // namespace varnik
