-- A ledger book on a machine that writes months first. The first of the month is asked for with the day in
-- front all the same: for May it reads as 5 January, and what lies between stays out of the opening balance.
regional{date = "mm/dd/yyyy"}
dofile(arg[0]:match ".*/" .. "../support/shop.lua")
customer{KodeCus = "0000000001", SaldoAwal = 1000}
for number, date in pairs{["000000000100"] = "#1/2/2026#", ["000000000200"] = "#3/1/2026#", ["000000000300"] = "#5/9/2026#"} do
    insert("Invoice", {NoInvoice = number, TglInvoice = date, TglJtp = date, KodeCus = "0000000001", Bruto = 0, Disc = 0,
                       Netto = 0, Total = 100, nPPN = 0, PPN = 0, Bayar = 0, Saldo = 100, NoUser = "00"})
end
open "L18"
local function parameters(month)
    choose("Combo1", "0000000001")
    enter("Text1", month)
    enter("Text2", "2026")
    click "OKButton"
    return report().parameters
end

scenario "The opening balance of May leaves out March"
expect(parameters "5", {[0] = "SaldoAwal;1,100;True", "SaldoAkhir;1,200;True"})
scenario "January is the same day in both orders"
expect(parameters "1", {[0] = "SaldoAwal;1,000;True", "SaldoAkhir;1,100;True"})
scenario "Month 13 is 13 January: no failure, and no rows"
expect(parameters "13", {[0] = "SaldoAwal;1,100;True", "SaldoAkhir;1,100;True"})
expect(report().rows, 0)
