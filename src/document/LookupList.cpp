#include "document/LookupList.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "platform/desktop/Failure.h"
#include "platform/forms/Screen.h"

namespace varnik::document {

LookupList::LookupList(forms::Screen& screen) : ListGrid(screen, "GridCari") {
    SetColumns({{"CODE", forms::Align::Left, 12}, {"DESCRIPTION", forms::Align::Left, 40}});
    SetVisible(false);
    onActivate = [this] { Pick(); };
    onClick = [this] { Pick(); };
    onLeave = [this] { SetVisible(false); };
    onKeyDown = [this](forms::Key& key) {
        if (!key.Is(forms::KeyCode::Escape)) return;
        key.handled = true;
        if (back_) Owner().SetFocus(*back_);
    };
}

void LookupList::Open(const ado::RowList& rows, Line line, forms::Control& back, Take take) {
    SetSource(rows.Count(), [rows, line = std::move(line)](int index) {
        std::string text;
        Resume([&] {
            const std::vector<Value> row = rows.Row(index);
            if (!row.empty()) text = line(row);
        });
        return text;
    });
    Show(back, std::move(take));
}

void LookupList::Open(const ado::RowList& rows, const Regional& regional, forms::Control& back, Take take) {
    const Line line = [&regional](const std::vector<Value>& row) {
        return NullToText(row[0], regional) + '\t' + NullToText(row[1], regional);
    };
    Open(rows, line, back, std::move(take));
}

void LookupList::Show(forms::Control& back, Take take) {
    back_ = &back;
    take_ = std::move(take);
    // Shown before the focus moves: the field it opens for sees that it is not left for good.
    SetVisible(true);
    Owner().SetFocus(*this);
}

void LookupList::Pick() {
    if (Row() < 0) return;
    const std::string code = Trim(Cell(Row(), 0));
    if (back_) Owner().SetFocus(*back_);
    SetVisible(false);
    if (take_) take_(code);
}

} // namespace varnik::document
