-- The cost report: which payments it asks for, and that its total is what was paid.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
product{KodeBrg = "A", SatuanBeli = "PCS", PecahanBeli = 1}
supplier{KodeSup = "S1", NamaSup = "PT Satu"}
account{RekID = "901", NamaBank = "Kas", SaldoAkhir = 10000}
for code, name in pairs{["001"] = "Gaji", ["002"] = "Listrik"} do insert("JenisBiaya", {KodeJenisBiaya = code, JenisBiaya = name}) end
for _, cost in ipairs{{"B1", "Tukang", "001"}, {"B2", "Lembur", "001"}, {"B3", "Rekening", "002"}, {"B4", "Lain-lain"}} do
    insert("Biaya", {KodeBiaya = cost[1], Diskripsi = cost[2], KodeJenisBiaya = cost[3]})
end
for i, paid in ipairs{{"B1", 100.25, "#11/01/2026#"}, {"B1", 50, "#11/22/2026#"}, {"B2", 30, "#11/05/2026#"}, {"B3", 400, "#11/06/2026#"},
                      {"B4", 7, "#11/07/2026#"}, {"B3", 1000, "#10/31/2026#"}} do
    insert("BKK", {NoBKK = ("%010d05"):format(i), TglBKK = paid[3], TglJTP = paid[3], CaraBayar = "CASH", RekID = "901", Penerima = "Pak Tono",
                   Jumlah = paid[2], KodeBiaya = paid[1], JumlahBiaya = paid[2]})
end
-- What a supplier gets comes in through its own screen.
open "T04"
local bought = buy("S1", {{"A", "10", "100"}})
open "T05"
click "bttnNew"
enter("txtNoBukti", text "txtNoBukti")
enter("TxtCaraBayar", "CASH")
enter("TxtRekening", "901")
enter("TxtNoFaktur", bought)
enter("TxtJumlah", "250")
click "bttnAddLine"
click "bttnSave"
open "L21"

local columns = " SELECT   QryBKKUNION.NoBKK , QryBKKUNION.TglBKK, QryBKKUNION.Penerima, QryBKKUNION.KodeBiaya, " ..
    "QryBKKUNION.JumlahBiaya, QryBKKUNION.Diskripsi, QryBKKUNION.KodeJenisBiaya, QryBKKUNION.JenisBiaya  From   " ..
    "QryBKKUNION QryBKKUNION Where "
local november = " between Datevalue('11/01/2026') and datevalue('11/22/2026')"
local all = value "Select Sum(JumlahBiaya) From BKK Where TglBKK >= #11/01/2026# And KodeBiaya Like 'B%'" + value "Select Sum(Jumlah) From FakturBayar"

scenario "It opens on the current month up to today, with the cost types"
expect({caption(), caption "LblJenis"}, {"Cost History", "Category"})
expect({items "Combo1", text "Combo1"}, {{"001 / Gaji", "002 / Listrik"}, ""})

scenario "Kind, filter, statement, file and total"
for _, case in ipairs{
    -- option, filter, condition, file, rows, total
    {nil, "", "  TglBKK" .. november, "LapBKK2.rpt", 6, all},
    {"Option2", "", "  TglBKK" .. november, "LapBKK1.rpt", 6, all},
    {"Option1", "001 / Gaji", "KodeJenisBiaya = '001'  and TglBKK" .. november, "LapBKK2.rpt", 3, 180.25},
    {"Option2", "002", "KodeJenisBiaya = '002'  and TglBKK" .. november, "LapBKK1.rpt", 1, 400},
    {"Option2", "999 / PAYMENT", "KodeJenisBiaya = '999'  and TglBKK" .. november, "LapBKK1.rpt", 1, 250},
} do
    local option, filter, condition, file, count, total = table.unpack(case)
    if option then click(option) end
    enter("Combo1", filter)
    click "OKButton"
    local r = report()
    expect(r.asked, columns .. condition)
    expect({r.file, r.title, r.rows, r.state, r.connect}, {file, "Cost Report(Per Jenis) ", count, 2, "DSN=VarNik"})
    expect(r.parameters, {[0] = "Judul;Periode 11/01/2026 To 11/22/2026;True"})
    expect({r.formulas[14], r.formulas[15], r.formulas[18]}, {nil, "Judul1 ='Varnik Small Business'", "Judul4 ='" .. value "Select Ket3 From Company" .. "'"})
    expect(tonumber((r:text():match "\n%s+Total%s[%s%d]-(%S+)\n[^T]*$")), total)
    r:close()
end

scenario "A period that ends before it begins is refused; one day is a period"
local before = #reports()
date("DTPicker1", "2026-11-22")
date("DTPicker2", "2026-11-21")
click "OKButton"
expect_message "Date of final have to be more  big the than the date of early ..."
expect(#reports(), before)
date("DTPicker2", "2026-11-22")
clear "Combo1"
click "OKButton"
expect(report().rows, 2)
