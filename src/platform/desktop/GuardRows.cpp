#include "platform/desktop/Failure.h"

namespace varnik {

void Guard::Put(ado::Recordset& rows, std::initializer_list<Cell> cells) {
    for (const Cell& cell : cells) Step([&] { rows[cell.column] = cell.value(); });
}

void Guard::AddRow(ado::Recordset& rows, std::initializer_list<Cell> cells) {
    Step([&] { rows.AddNew(); });
    PutRow(rows, cells);
}

void Guard::PutRow(ado::Recordset& rows, std::initializer_list<Cell> cells) {
    Put(rows, cells);
    Update(rows);
}

void Guard::Update(ado::Recordset& rows) {
    bool leftOut = false;
    do {
        bool saved = false;
        Step([&] {
            rows.Update();
            saved = true;
        });
        leftOut = !saved && rows.IsOpen() && rows.LeaveOutRefused();
    } while (leftOut);
}

} // namespace varnik
