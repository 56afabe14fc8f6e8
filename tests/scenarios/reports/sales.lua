-- The sales reports: what each kind shows on the dialog, and what it asks for.
dofile(arg[0]:match ".*/" .. "../support/shop.lua")
insert("JenisProduk", {KodeJenisProduk = "DRY", JenisProduk = "DRY GOODS"})
customer{KodeCus = " C1", NamaCus = "Toko Maju"}
customer{KodeCus = "0000000002", NamaCus = "Warung Tini"}
open "L01"

local Customers = {"0000000002 / Warung Tini", "C1         / Toko Maju"}
table.sort(Customers)
local Types = {"DRY / DRY GOODS"}
local Period = "Datevalue('11/01/2026') and datevalue('11/22/2026')"
local Dates = "Date From 11/01/2026 To 11/22/2026"
local Late = "Ending date must have to be more from date of early ..."

-- Label, dates shown, Summary and Detail shown, list.
local function dialog()
    local list = items "Combo1"
    table.sort(list)
    return {caption "LblJenis", visible "DTPicker1" and visible "Label1" and visible "DTPicker2" and visible "Label2",
            visible "Option1", visible "Option2", list}
end
local function asked()
    local r = report()
    return {r.asked, r.file, r.title, r.connect, r.parameters}
end

scenario "Nothing is chosen: nothing is launched, and the month stands up to today"
expect({caption(), text "DTPicker1", text "DTPicker2", visible "DT1"}, {"Reports", "11/01/2026", "11/22/2026", false})
click "OKButton"
expect({#reports(), message()}, {0, nil})

scenario "Aged receivables ask no dates, and Detail as it was left says whether the customer counts"
click "opLap1"
expect(dialog(), {"Customer", false, false, false, Customers})
choose("Combo1", "C1")
click "OKButton"
local Open = "  SELECT  Customer.KodeCus, Customer.NamaCus,    Invoice.NoInvoice , Invoice.TglInvoice, Invoice.Saldo From  Customer Customer LEFT JOIN Invoice Invoice ON Customer.KodeCus = Invoice.KodeCus "
expect(asked(), {Open, "Agging.rpt", "Aged Receivables", "", {[0] = "Judul;Aged Receivables  NOVEMBER 2026;True"}})
click "opLap3"
click "Option2"
click "opLap1"
choose("Combo1", "C1")
for _, month in ipairs {{"2026-05-31", "MEI"}, {"2026-08-01", "AGUST"}} do
    now(month[1] .. " 10:00:00")
    click "OKButton"
    expect(report().parameters, {[0] = "Judul;Aged Receivables  " .. month[2] .. " 2026;True"})
end
expect(report().asked, Open .. "WHERE Customer.KodeCus = 'C1' ")
today "2026-11-22"

scenario "By product category, whole and for one type; the third parameter is the form"
click "opLap3"
enter("Combo1", "C1")
date("DTPicker1", "2026-01-01")
click "opLap2"
expect(dialog(), {"Category Product", true, true, true, Types})
expect({text "Combo1", text "DTPicker1"}, {"", "11/01/2026"})
local Columns = " SELECT KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg From QryPenjualanDetail  Where "
local function category(where, form)
    return {Columns .. where .. "TglInvoice between " .. Period .. "Order by KodeBrg, TglInvoice", "LapJual1.rpt",
            "Sales Reports ( Product Category) ", "DSN=VarNik",
            {[0] = "Judul;Sales Reports ( Product Category);True", "SubJudul;" .. Dates .. ";True", [3] = "Detail;" .. form .. ";True"}}
end
click "OKButton"
expect(asked(), category("", "D"))
choose("Combo1", "DRY")
click "Option1"
click "OKButton"
expect(asked(), category("JenisBrg = 'DRY'  and ", "S"))
expect({report().state, report().formulas}, {2, {
    [15] = "Judul1 ='Varnik Small Business'", [16] = "Judul2 ='True Varnik Ledger Suite'",
    [17] = "Judul3 ='Sendara-Indonesia'", [18] = "Judul4 ='========================================='"}})

scenario "By customer; cost and margin come with a filter alone"
click "opLap3"
expect(dialog(), {"Customer", true, true, true, Customers})
local By = " SELECT KodeCus,NamaCus,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,"
local function by_customer(columns, where, order, form)
    return {By .. columns .. " From QryPenjualanDetail  Where " .. where .. "TglInvoice between " .. Period .. order,
            "LapJual2.rpt", "Sales Reports ( Customer )", "DSN=VarNik",
            {[0] = "Judul;Sales Reports ( Customer );True", "SubJudul;" .. Dates .. ";True", "Detail;" .. form .. ";True"}}
end
click "OKButton"
expect(asked(), by_customer("JenisProduk,JenisBrg", " ", "  Order By kodebrg, KodeCus, tglInvoice", "S"))
expect(report().heading, "Sales Reports ( Customer )")
enter("Combo1", "C1") -- a text without a "/" is the code
click "Option2"
click "OKButton"
expect(asked(), by_customer("JenisProduk,JenisBrg, THPP, THPPRATA, MARGIN", "KodeCus= 'C1'  and ", " Order By kodebrg, KodeCus, tglInvoice", "D"))

scenario "Invoice balances have no forms; what was typed into the filter stays"
click "opLap4"
expect(dialog(), {"Customer", true, false, false, Customers})
expect(text "Combo1", "C1")
local Balance = " SELECT KodeCus,NamaCus,NoInvoice,TglInvoice,Total,Bayar,Saldo From    QryInvCustomer  Where "
click "OKButton"
expect(asked(), {Balance .. "KodeCus= 'C1' And TglInvoice between " .. Period, "LapInvoice.rpt", "Invoice Balance", "DSN=VarNik", {[0] = "Judul;" .. Dates .. ";True"}})
clear "Combo1"
click "OKButton"
expect({report().asked, report().rows}, {Balance .. "TglInvoice between " .. Period, 0})

scenario "Returns keep the list, the label and the dates of the kind before, and show Detail again"
click "opLap2"
click "opLap4"
click "opLap2"
choose("Combo1", "DRY")
date("DTPicker1", "2026-11-22")
click "opLap5"
expect(dialog(), {"Category Product", true, true, true, Types})
expect({text "Combo1", text "DTPicker1"}, {"DRY / DRY GOODS", "11/22/2026"})
click "opLap1"
click "opLap5"
expect(dialog(), {"Customer", false, false, true, Customers})
click "opLap3"
click "opLap5"
local Back = " SELECT KodeCus,NamaCus,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total2,%s From QryInvoiceRetur  Where %sTglInvoice between "
local function returned(ket, where, order)
    return {Back:format(ket, where) .. Period .. order, "LapReturJual2.rpt", "Sales Returns Reports ( Customer )", "DSN=VarNik",
            {[0] = "Judul;Sales Returns History;True", "SubJudul;" .. Dates .. ";True", "Detail;D;True"}}
end
click "OKButton"
expect(asked(), returned("Ket2", " ", "  Order By kodebrg, KodeCus, tglInvoice"))
choose("Combo1", "C1")
click "OKButton"
expect(asked(), returned("ket2 ", "KodeCus= 'C1'  and ", " Order By kodebrg, KodeCus, tglInvoice"))

scenario "A period may be one day long and not shorter, where dates count"
local before = #reports()
date("DTPicker1", "2026-11-22")
date("DTPicker2", "2026-11-21")
for _, kind in ipairs {"opLap5", "opLap4"} do
    click(kind)
    click "OKButton"
    expect_message(Late)
end
click "opLap1"
click "OKButton"
expect(#reports(), before + 1)
click "opLap4"
date("DTPicker2", "2026-11-22")
click "OKButton"
expect({#reports(), message()}, {before + 2, nil})

scenario "A failure is told in a box, and the dialog goes on"
enter("Combo1", "O'Brien")
click "OKButton"
local box = messages()[1]
expect({#reports(), box.buttons, box.icon}, {before + 2, "ok", "none"})
clear "Combo1"
click "OKButton"
expect({#reports(), message()}, {before + 3, nil})
click "CancelButton"
expect(current(), "frmMainCode")
