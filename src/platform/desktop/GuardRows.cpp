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
    Step([&] { rows.Update(); });
}

} // namespace varnik
