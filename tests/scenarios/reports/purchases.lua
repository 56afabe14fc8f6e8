-- The purchases reports: the twin of the sales reports, and where it goes its own way.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
insert("JenisProduk", {KodeJenisProduk = "DRY", JenisProduk = "DRY GOODS"})
supplier{KodeSup = "S1", NamaSup = "PT Satu"}
open "L04"

local Suppliers, Types = {"S1         / PT Satu"}, {"DRY / DRY GOODS"}
local Period = "Datevalue('11/01/2026') and datevalue('11/22/2026')"
local Dates = "Date From 11/01/2026 To 11/22/2026"

-- The label over the filter and that of the second date, whether dates and forms show, list.
local function dialog()
    return {caption "LblJenis", caption "Label2", visible "DTPicker2", visible "Option1", visible "Option2", items "Combo1"}
end
local function asked()
    local r = report()
    return {r.asked, r.file, r.title, r.heading, r.connect, r.parameters}
end
-- Prints without a filter and with one; the filter is gone afterwards.
local function both(choice)
    clear "Combo1"
    click "OKButton"
    local whole = asked()
    choose("Combo1", choice)
    click "OKButton"
    local one = asked()
    clear "Combo1"
    return whole, one
end

scenario "The labels stray, the lists do not; the dates go back to the month on every kind but the last"
expect({caption(), caption "LblTipe", caption "Label2"}, {"Reports", "Purchases Repotrs Type", "Up To"})
click "opLap2"
date("DTPicker1", "2026-10-01")
click "opLap5"
expect({text "DTPicker1", dialog()}, {"10/01/2026", {"Category Product", "Up To", true, true, true, Types}})
for _, kind in ipairs {
    {"opLap1", {"Customer", "Up To", false, false, false, Suppliers}},
    {"opLap2", {"Category Product", "Up To", true, true, true, Types}},
    {"opLap4", {"Category Product", "Supplier", true, false, false, Suppliers}},
    {"opLap3", {"Customer", "Supplier", true, true, true, Suppliers}},
} do
    click(kind[1])
    expect({text "DTPicker1", dialog()}, {"11/01/2026", kind[2]})
    if visible "DTPicker1" then date("DTPicker1", "2026-10-01") end
    if kind[1] == "opLap1" then
        click "opLap5"
        expect(visible "Option2", true)
    end
end

scenario "Aged payables follow the filter alone, whatever Detail says; the month follows the title at once"
click "opLap1"
local Open = "SELECT  Supplier.KodeSup, Supplier.NamaSup,    Faktur.NoFaktur, Faktur.TglFaktur, Faktur.Saldo From  Supplier Supplier LEFT JOIN Faktur Faktur ON Supplier.KodeSup = Faktur.KodeSup "
local whole, one = both "S1"
local rest = {"Agging2.rpt", "Aged Payables", "Aged PayablesNOVEMBER 2026", "", {[0] = "Judul;Aged PayablesNOVEMBER 2026;True"}}
expect(whole, {Open, table.unpack(rest)})
expect(one, {"  " .. Open .. "WHERE Faktur.KodeSup = 'S1' ", table.unpack(rest)})

-- Kind, file, title, heading, parameters, statement with its condition and end for the whole and for one.
local Detail = "SELECT KodeSup,NamaSup,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,"
for _, kind in ipairs {
    {"opLap2", "DRY", "LapBeli1.rpt", "Purchases Reports ( Product Category) ", "Purchases Reports ( Product Category)", 3,
     " SELECT KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg From QryPembelianDetail ",
     " SELECT KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg From QryPembelianDetail ",
     "JenisBrg = 'DRY' ", " Order By KodeBrg, TglFaktur"},
    {"opLap3", "S1", "LapBeli2.rpt", "Purchases Reports ( Supplier )", "Purchases Reports ( Supplier )", 2,
     " " .. Detail .. "Total,JenisProduk,JenisBrg From QryPembelianDetail ",
     " " .. Detail .. "Total,JenisProduk,JenisBrg From QryPembelianDetail ", "KodeSup= 'S1' ", " Order by KodeSup, tglfaktur"},
    {"opLap5", "S1", "LapReturBeli2.rpt", "Purchases Returns Reports ( Supplier )", "Purchases Returns Reports", 2,
     " " .. Detail .. "Total2,JenisProduk,JenisBrg From QryPoRetur ",
     " " .. Detail .. "Total2,JenisProduk,JenisBrg From QryPORetur ", "KodeSup= 'S1' ", " Order by KodeSup, tglfaktur"},
} do
    local option, choice, file, title, judul, index, all, filtered, condition, order = table.unpack(kind)
    scenario(title)
    click(option)
    for _, detail in ipairs {"S", "D"} do
        click(detail == "S" and "Option1" or "Option2")
        local parameters = {[0] = "Judul;" .. judul .. ";True", "SubJudul;" .. Dates .. ";True", [index] = "Detail;" .. detail .. ";True"}
        local everything, chosen = both(choice)
        expect(everything, {all .. " Where TglFaktur between " .. Period .. order, file, title, judul, "DSN=VarNik", parameters})
        expect(chosen, {filtered .. " Where " .. condition .. " and TglFaktur between " .. Period .. order, file, title, judul, "DSN=VarNik", parameters})
    end
end

scenario "Balances put the filter behind the period"
click "opLap4"
local Balance = " SELECT KodeSup,NamaSup,NoFaktur,TglFaktur,Total,Bayar,Saldo From    QryInvSupplier  Where TglFaktur between " .. Period
local everything, chosen = both "S1"
rest = {"LapFaktur.rpt", "Purchases Invoice Balance", "Purchases Invoice Balance", "DSN=VarNik", {[0] = "Judul;" .. Dates .. ";True"}}
expect(everything, {Balance, table.unpack(rest)})
expect(chosen, {Balance .. "  And  KodeSup= 'S1'", table.unpack(rest)})

scenario "A period that ends before it begins is refused where dates count"
local before = #reports()
for _, kind in ipairs {"opLap2", "opLap3", "opLap4", "opLap5"} do
    click(kind)
    date("DTPicker2", "2026-10-31")
    click "OKButton"
    expect_message "Ending date must have to be more from date of early ..."
end
click "opLap1"
click "OKButton"
expect(#reports(), before + 1)
