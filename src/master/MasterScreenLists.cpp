// The search panel and the permanent list of a master screen.

#include "master/MasterScreen.h"

namespace varnik {

void MasterScreen::Has(MasterSearch& search) {
    search_ = &search;
    search.SetUp(*row_.search);
    std::vector<forms::GridColumn> columns;
    for (int i = 0; const auto& [caption, width] : row_.search->columns)
        columns.push_back({std::string(caption),
                           i++ == row_.search->amount ? forms::Align::Right : forms::Align::Left, width});
    search.grdCari.SetColumns(std::move(columns));
    search.cmdExecute.onClick = [this] { ExecuteSearch(); };
    search.cmdTutup.onClick = [this] { TakeFromSearch(); };
    if (row_.search->activationTakes) search.grdCari.onActivate = [this] { TakeFromSearch(); };
}

void MasterScreen::ExecuteSearch() {
    const std::string statement = search_->Statement(*row_.search, Number(search_->txtValue));
    ado::RowList rows;
    Resume([&] { rows = ReadList(services_, statement, connection_); });
    search_->grdCari.SetSource(rows.Count(), [this, rows](int row) {
        std::string line;
        Resume([&] {
            int column = 0;
            for (const Value& value : rows.Row(row)) {
                if (column > 0) line += '\t';
                line += column == row_.search->amount ? Masked(Number(value)) : TextOf(value);
                ++column;
            }
        });
        return line;
    });
}

void MasterScreen::TakeFromSearch() {
    search_->frmCari.SetVisible(false);
    if (search_->grdCari.Row() < 0) return; // nothing was found: the record on screen stays
    code_->SetText(search_->grdCari.Cell(search_->grdCari.Row(), 0));
    LeaveCode();
}

void MasterScreen::Has(MasterList& list) {
    list_ = &list;
    std::vector<forms::GridColumn> columns;
    for (const auto& [caption, width] : row_.list->columns)
        columns.push_back({std::string(caption), forms::Align::Left, width});
    list.grdCari.SetColumns(std::move(columns));
    if (row_.list->activated < 0) return;
    list.grdCari.onActivate = [this] {
        code_->SetText(list_->grdCari.Cell(list_->grdCari.Row(), row_.list->activated));
        LeaveCode();
    };
}

void MasterScreen::FillSearchGrid() {
    if (!list_) return;
    const std::size_t columns = row_.list->columns.size();
    std::string before;
    bool first = true;
    list_->grdCari.SetItems(Items(row_.list->statement, [&](ado::Recordset& rows) {
        std::string line = TextOf(rows[0]);
        const std::string code = Upper(Trim(line));
        const bool repeated = row_.list->repeatsBlank && !first && code == before;
        before = code;
        first = false;
        if (repeated) return std::string(columns - 1, '\t');
        for (int column = 1; column < static_cast<int>(columns); ++column)
            line += '\t' + TextOf(rows[column]);
        return line;
    }));
}

} // namespace varnik
