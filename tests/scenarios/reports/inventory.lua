-- The stock reports: their requests, and that the card of a product ends with what is on hand.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
insert("JenisProduk", {KodeJenisProduk = "001", JenisProduk = "Bahan"})
insert("JenisProduk", {KodeJenisProduk = "02", JenisProduk = "Alat"})
product{KodeBrg = "A", NamaBrg = "Semen", JenisBrg = "001", HargaJual = 100, SatuanBeli = "PALET", PecahanBeli = 40, SatuanJual = "DUS",
        PecahanJual = 12}
product{KodeBrg = "B", NamaBrg = "Palu", JenisBrg = "02", HargaJual = 50, SatuanBeli = "PCS", PecahanBeli = 1}
product{KodeBrg = "S", NamaBrg = "Antar", JenisBrg = "", HargaJual = 70, Jasa = true, Pecahan = 0, PecahanBeli = 0, PecahanJual = 0,
        Satuan = "", SatuanBeli = "", SatuanJual = ""}
supplier{KodeSup = "S1"}
customer{KodeCus = "0000000001"}
-- Bought by the pallet, sold by the dozen and the piece, given back both ways.
open "T04"
local bought = buy("S1", {{"A", "2", "4000"}, {"B", "3", "20"}})
open "T01"
local sold = sale("0000000001", {{"A", "2", nil, nil, "DUS"}, {"B", "1"}})
open "T03"
click "bttnNew"
enter("TxtNoInvoice", sold)
row("OrderGrid", 1)
enter("txtQty", "1")
click "bttnAddLine"
click "bttnSave"
use "Invoice"
delete_invoice(sale("0000000001", {{"A", "1", nil, nil, "DUS"}}))
messages()
open "L13"

local balance = "SELECT  Produk.KodeBrg, Produk.NamaBrg, Produk.JenisBrg, Produk.Satuan, Produk.OnHand, Produk.HPPRata,    " ..
    "JenisProduk.JenisProduk  FROM  Produk Produk LEFT OUTER JOIN JenisProduk JenisProduk ON     Produk.JenisBrg = " ..
    "JenisProduk.KodeJenisProduk  "
local function of(type) return balance .. "Where Produk.JenisBrg = '" .. type .. "' Order By Produk.JenisBrg, Produk.KodeBrg " end

scenario "Dates show with the stock card alone; without a kind nothing happens"
expect({caption(), caption "LblJenis", caption "LblDt1", caption "LblDt2"}, {"Inventory", "Category", "From Date", "Up To"})
expect(items "Combo1", {"001 / Bahan", "02 / Alat"})
click "OKButton"
expect(report(), nil)
for option, shown in pairs{opLap1 = false, opLap2 = true, opLap3 = false} do
    click(option)
    for _, control in ipairs{"LblDt1", "DTPicker1", "LblDt2", "DTPicker2"} do expect(visible(control), shown) end
end

scenario "Kind, filter and the request"
for _, case in ipairs{
    -- kind, filter, statement, file, window and printed title, rows
    {"opLap1", "", balance .. "Order By Produk.JenisBrg, Produk.KodeBrg ", "Persediaan.rpt", "Inventory Balance ", "Inventory Balance", 3},
    {"opLap1", "001 / Bahan", of "001", "Persediaan.rpt", "Inventory Balance ", "Inventory Balance", 1},
    {"opLap1", "02 / Alat", of "02 ", "Persediaan.rpt", "Inventory Balance ", "Inventory Balance", 0}, -- the first three characters
    {"opLap1", "9/x", of "9/x", "Persediaan.rpt", "Inventory Balance ", "Inventory Balance", 0},
    {"opLap3", "001 / Bahan", "", "Persediaan2.rpt", "Price List", "Price List", 3},
    {"opLap2", "001 / Bahan", "SELECT Persediaan.ID, Persediaan.Tanggal, Persediaan.KodeBrg, Persediaan.Memo, Persediaan.NamaBrg, " ..
     "Persediaan.JenisBrg, Persediaan.Pecahan, Persediaan.Qty1, Persediaan.Qty2, Persediaan.Saldo, IIf(Persediaan.NoJurnal = '11', " ..
     "Persediaan.Qty1 * Persediaan.Pecahan, Persediaan.Qty1) As Masuk From  Persediaan Persediaan Where Tanggal Between " ..
     "Datevalue('11/01/2026') and datevalue('11/22/2026')", "Stok.rpt", "Inventory Book ", "Inventory Book", 8},
} do
    local kind, filter, statement, file, window, heading, count = table.unpack(case)
    click(kind)
    enter("Combo1", filter)
    click "OKButton"
    local r = report()
    expect(r.asked, statement)
    expect({r.file:lower(), r.title, r.heading, r.rows, r.state, r.connect}, {file:lower(), window, heading, count, 2, ""})
    expect(r.parameters, kind == "opLap2" and {[0] = "Judul;Periode 11/01/2026 To 11/22/2026;True"} or {})
    expect({r.formulas[14], r.formulas[15], r.formulas[19]}, {nil, "Judul1 ='Varnik Small Business'", nil})
    if kind ~= "opLap2" then r:close() end
end

scenario "A product's card: opening and movements in base units make up what is on hand"
for code, name in pairs{A = "Semen", B = "Palu"} do
    local opening, closing =
        report():text():match(code .. "  " .. name .. "\n%s+Opening balance%s+(%S+)\n.-Closing balance[^\n]-(%S+)\n")
    expect(opening, "0")
    expect(tonumber(closing), value("Select OnHand From Produk Where KodeBrg = '" .. code .. "'"))
end
expect({report():text():match "Closing balance%s+(%S+)%s+(%S+)%s+(%S+)\n"}, {"92", "24", "68"})

scenario "Prices of all three units, a service by the piece, nothing without its category"
sql "Update Produk Set HargaJual = 100 Where KodeBrg = 'A'" -- the sales by the dozen have set another
click "opLap3"
click "OKButton"
local printed = report():text()
expect({printed:match "A%s+Semen%s+DUS%s+12%s+(%S+)%s+PCS%s+1%s+(%S+)%s+PALET%s+40%s+(%S+)"}, {"1,200", "100", "4,000"})
expect({printed:match "No category\n%s+S%s+Antar%s+(%S+)"}, {"70"})

scenario "A period that ends before it begins gives an empty card"
click "opLap2"
date("DTPicker2", "2026-10-31")
click "OKButton"
expect({report().rows, report():text():match "No data" ~= nil}, {0, true})
