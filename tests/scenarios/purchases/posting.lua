-- What a purchase moves, and what its deletion gives back and what it leaves.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
supplier{KodeSup = "S1", NamaSup = "PT Satu", SaldoAkhir = 500}
open "T04"

local function stock(code)
    return sql("Select OnHand, QGudang, HPPRata, HPPAwal, HPPAkhir, HargaBeli From Produk Where KodeBrg = '" .. code .. "'")[1]
end
local function ledger(number)
    return sql("Select NoJurnal, KodeBrg, Qty1, Harga1, QtySisa, Qty2, Harga2, Saldo From Persediaan Where NoRef = '" .. number .. "'")
end

scenario "The first purchase sets the opening cost, the next moves the average, unrounded"
product{KodeBrg = "A", SatuanBeli = "PCS", PecahanBeli = 1}
buy("S1", {{"A", "3", "100"}})
expect(stock "A", {3, 3, 100, 100, 100, 100})
buy("S1", {{"A", "4", "251"}})
expect(stock "A", {7, 7, (3 * 100 + 4 * 251) / 7, 100, 251, 251})

scenario "Negative stock is not clamped and pulls the average with it"
product{KodeBrg = "N", SatuanBeli = "PCS", PecahanBeli = 1, OnHand = -4, QGudang = -4, HPPRata = 50}
local number = buy("S1", {{"N", "10", "80"}})
expect(stock "N", {6, 6, (-4 * 50 + 800) / 6, 80, 80, 80})
expect(ledger(number), {{"11", "N", 10, 80, 10, 0, 0, 6}})

scenario "Units of the product that are blank are filled, and the cost is that of a base unit after the discount"
product{KodeBrg = "U", SatuanBeli = "", PecahanBeli = 0, Satuan = "", Pecahan = 0, SatuanJual = "DUS", PecahanJual = 12}
buy("S1", {{"U", "2", "1200", "25", "DUS"}})
expect(stock "U", {24, 24, 75, 75, 75, 75})
expect(sql "Select SatuanBeli, PecahanBeli, Satuan, Pecahan From Produk Where KodeBrg = 'U'", {{"DUS", 12, "DUS", 12}})

scenario "A line without base units costs on its quantity and moves no stock"
product{KodeBrg = "Z", SatuanBeli = "SET", PecahanBeli = 0}
answer "abort" -- the saved lines divide by the base quantity when they are shown
number = buy("S1", {{"Z", "2", "300"}})
expect(messages()[1].buttons, "abort retry ignore")
expect(stock "Z", {0, 0, 300, 300, 300, 300})
expect(ledger(number), {{"11", "Z", 2, 300, 0, 0, 0, 0}})

scenario "A service takes its last price; a product that is gone stays a bare line"
product{KodeBrg = "S", Jasa = true, SatuanBeli = "KALI", PecahanBeli = 1}
product{KodeBrg = "GONE", SatuanBeli = "PCS", PecahanBeli = 1}
new_purchase "S1"
number = text "TxtNoFaktur"
purchase_line("S", "2", "75")
purchase_line("GONE", "3", "10")
sql "Delete From Produk Where KodeBrg = 'GONE'"
click "bttnSave"
expect(stock "S", {0, 0, 0, 0, 0, 75})
expect(ledger(number), {})
expect(sql("Select KodeBrg, QtySisa From FakturDetail Where NoFaktur = '" .. number .. "'"), {{"S", 2}, {"GONE", 3}})

scenario "A purchase and its deletion: exactly this remains"
product{KodeBrg = "R", NamaBrg = "Kawat", SatuanBeli = "ROL", PecahanBeli = 10, Satuan = "", Pecahan = 0, OnHand = 20,
        QGudang = 20, HPPRata = 60, HPPAwal = 0, HPPAkhir = 55, HargaBeli = 55}
local before = books()
local last = #before.Produk
number = buy("S1", {{"R", "2", "1000"}, {"S", "1", "90"}})
expect(stock "R", {40, 40, 80, 100, 100, 100})
delete_purchase(number)
messages()
expect(differences(before, books()), {
    -- The statement that would lower the supplier's balance does not take effect.
    "Supplier.1.16: " .. before.Supplier[1][16] .. " -> " .. before.Supplier[1][16] + 2090,
    -- Last prices, the opening cost and the unit named by the purchase stay.
    "Produk." .. last - 1 .. ".20: 75 -> 90",
    "Produk." .. last .. ".4:  -> ROL", "Produk." .. last .. ".5: 0 -> 10",
    "Produk." .. last .. ".14: 0 -> 100", "Produk." .. last .. ".15: 55 -> 100", "Produk." .. last .. ".20: 55 -> 100",
    "Persediaan 2",
})
expect(stock "R", {20, 20, 60, 100, 100, 100})
expect(ledger(number), {{"11", "R", 2, 100, 0, 0, 0, 40}, {"12", "R", -20, 100, 0, 0, 0, 20}})
expect(value("Select Memo From Persediaan Where NoJurnal = '12'"), "Purchases (DELETED) Po No. " .. number .. " Sup. S1 PT Satu")
expect({caption "bttnSave", visible "FrameBawah", text "TxtKodeSup"}, {"&Save", true, ""})

scenario "The only stock goes, and its average with it"
product{KodeBrg = "ONE", SatuanBeli = "PCS", PecahanBeli = 1}
delete_purchase(buy("S1", {{"ONE", "5", "10"}}))
expect(stock "ONE", {0, 0, 0, 10, 10, 10})

scenario "A purchase that was paid, and sold from, is deleted all the same; its traces point nowhere"
number = buy("S1", {{"ONE", "5", "10"}})
sql("Insert Into FakturBayar (NoBKK, TglBKK, NoFaktur, KodeSup, Memo, Jumlah, CaraBayar) Values ('1', #11/22/2026#, '" .. number .. "', 'S1', '', 50, 'CASH')")
sql("Update FakturDetail Set QtySisa = 1 Where NoFaktur = '" .. number .. "'")
sql("Update Persediaan Set QtySisa = 1 Where NoRef = '" .. number .. "'")
sql "Update Produk Set OnHand = 1, QGudang = 1 Where KodeBrg = 'ONE'"
sql("Insert Into PersediaanJual (NoInvoice, NoPO, Tanggal, KodeBrg, Qty, Harga) Values ('I', '" .. number .. "', #11/22/2026#, 'ONE', 4, 10)")
delete_purchase(number)
messages()
expect(value("Select QtySisa From Persediaan Where NoJurnal = '11' And KodeBrg = 'ONE' And NoRef = '" .. number .. "'"), -4)
expect({stock "ONE", #sql "Select * From FakturBayar", #sql "Select * From PersediaanJual"}, {{-4, -4, 0, 10, 10, 10}, 1, 1})

scenario "A deletion takes the line without base units, whose cost it cannot tell when the quantity is nothing"
number = buy("S1", {{"A", "1", "10"}})
sql("Update FakturDetail Set Qty = 0 Where NoFaktur = '" .. number .. "'")
answer "abort"
delete_purchase(number)
messages()
expect(#sql("Select * From FakturDetail Where NoFaktur = '" .. number .. "'"), 0)

scenario "An average that divides by nothing asks: abort leaves what was written, ignore goes on, retry tries again"
local function stopped_at_zero(what)
    sql "Update Produk Set OnHand = -5, QGudang = -5, HPPRata = 3 Where KodeBrg = 'A'"
    number = new_purchase "S1"
    purchase_line("A", "5", "10")
    purchase_line("N", "1", "10")
    local owed = value "Select SaldoAkhir From Supplier"
    answer(table.unpack(what))
    click "bttnSave"
    local first = messages()[1]
    expect({first.text, first.icon, first.buttons}, {"Division by zero", "critical", "abort retry ignore"})
    expect(value "Select SaldoAkhir From Supplier", owed + 60)
    return #sql("Select * From FakturDetail Where NoFaktur = '" .. number .. "'"), value "Select OnHand From Produk Where KodeBrg = 'A'"
end
expect({stopped_at_zero{"abort"}}, {0, -5})
expect(#sql("Select * From Faktur Where NoFaktur = '" .. number .. "'"), 1)
expect({stopped_at_zero{"retry", "ignore"}}, {2, 0})

scenario "A purchase that another has deleted meanwhile"
click "bttnDel"
enter("TxtNoFaktur", number)
sql("Delete From Faktur Where NoFaktur = '" .. number .. "'")
answer "yes"
click "bttnSave"
messages()
expect(#sql("Select * From FakturDetail Where NoFaktur = '" .. number .. "'"), 2)
