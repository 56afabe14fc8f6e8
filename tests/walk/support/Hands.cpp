#include "tests/walk/support/Hands.h"

#include "platform/forms/Screen.h"

namespace varnik::walk {

forms::Key AnyKeyOf(Chance& chance) {
    forms::Key key;
    key.code = static_cast<forms::KeyCode>(chance.Below(static_cast<int>(forms::KeyCode::F12) + 1));
    if (key.code == forms::KeyCode::Character) key.character = static_cast<char32_t>(U' ' + chance.Below(95));
    key.shift = chance.Percent(10);
    key.ctrl = chance.Percent(10);
    key.alt = chance.Percent(key.code == forms::KeyCode::Character ? 60 : 5);
    return key;
}

std::string NameOf(const forms::Key& key) {
    return std::string("key ") + (key.ctrl ? "Ctrl+" : "") + (key.alt ? "Alt+" : "") +
           (key.shift ? "Shift+" : "") +
           (key.code == forms::KeyCode::Character ? std::string(1, static_cast<char>(key.character))
                                                  : "#" + std::to_string(static_cast<int>(key.code)));
}

TableHand AnyTableHandOf(Chance& chance, forms::Control& table) {
    auto* const list = dynamic_cast<forms::ListGrid*>(&table);
    auto* const grid = dynamic_cast<forms::Grid*>(&table);
    const int rows = list ? list->Rows() : grid->Rows();
    const int row = chance.Below(rows + 2) - 1;
    const std::string number = " row " + std::to_string(row);
    const auto click = [&table, list, grid, row] {
        table.Owner().MoveFocus(table);
        if (list)
            list->SelectRow(row);
        else
            grid->SelectRow(row);
        table.Owner().Click(table);
    };
    switch (chance.Below(4)) {
    case 0:
        return {"double click on" + number, [&table, click] {
                    click();
                    table.Owner().DoubleClick(table);
                }};
    case 1:
        if (list) return {"activates" + number, [list, row] { list->ActivateRow(row); }};
        break;
    case 2:
        if (list) return {"ticks" + number, [list, row] { list->ToggleCheck(row); }};
        break;
    default:
        break;
    }
    return {"click on" + number, click};
}

} // namespace varnik::walk
