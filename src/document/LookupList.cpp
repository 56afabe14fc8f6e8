#include "document/LookupList.h"

#include "common/Numbers.h"
#include "common/Text.h"
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

void LookupList::Open(std::vector<std::string> rows, forms::Control& back,
                      std::function<void(const std::string&)> take) {
    SetItems(std::move(rows));
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

std::vector<std::string> CodesAndNames(ado::Recordset& rows, const Regional& regional) {
    std::vector<std::string> list;
    for (; !rows.Eof(); rows.MoveNext())
        list.push_back(NullToText(rows[0], regional) + '\t' + NullToText(rows[1], regional));
    return list;
}

} // namespace varnik::document
