#include "stock/Ledger.h"

#include "common/Text.h"

namespace varnik::stock {

Goods GoodsOf(Guard& step, const std::string& code, ado::Recordset& product) {
    Goods goods;
    goods.KodeBrg = code;
    step.Step([&] { goods.NamaBrg = product["NamaBrg"]; });
    step.Step([&] { goods.JenisBrg = product["JenisBrg"]; });
    step.Step([&] { goods.Satuan = product["Satuan"]; });
    step.Step([&] { goods.Pecahan = product["Pecahan"]; });
    return goods;
}

void AddMovement(Guard& step, ado::Recordset& ledger, const Movement& row) {
    constexpr int MemoWidth = 100, NameWidth = 50;
    const Value& name = row.goods.NamaBrg;
    step.AddRow(ledger, {{"NoJurnal", row.NoJurnal},
                         {"NoRef", row.NoRef},
                         {"Tanggal", row.Tanggal},
                         {"Memo", Left(row.Memo, MemoWidth)},
                         {"KodeBrg", row.goods.KodeBrg},
                         {"NamaBrg", name.IsText() ? Value(Left(name.Text(), NameWidth)) : name},
                         {"JenisBrg", row.goods.JenisBrg},
                         {"Satuan", row.goods.Satuan},
                         {"Pecahan", row.goods.Pecahan},
                         {"Qty1", row.Qty1},
                         {"Harga1", row.Harga1},
                         {"QtySisa", row.QtySisa},
                         {"Qty2", row.Qty2},
                         {"Harga2", row.Harga2},
                         {"Saldo", row.Saldo}});
}

void OpenFirstLedgerRow(Guard& step, ado::Connection& connection, const std::string& code,
                        ado::Recordset& ledger) {
    step.Step([&] {
        ledger.Open("Select * from Persediaan Where  KodeBrg = '" + code + "' and QtySisa > 0 ", connection);
    });
}

} // namespace varnik::stock
