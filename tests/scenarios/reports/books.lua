-- The three ledger books: the statements they ask for, and that a book's closing balance is what the posting
-- of documents made of the master's SaldoAkhir. The machine writes days first; books_month_first.lua has the
-- other order.
regional{date = "dd/mm/yyyy"}
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
product{KodeBrg = "A", NamaBrg = "Semen", HargaJual = 100, SatuanBeli = "PCS", PecahanBeli = 1}
customer{KodeCus = "0000000001", NamaCus = "CV Bangun", SaldoAwal = 5000, SaldoAkhir = 5000}
customer{KodeCus = "0000000002", NamaCus = "Toko Sinar"}
supplier{KodeSup = "S1", NamaSup = "PT Semen", SaldoAwal = 700, SaldoAkhir = 700}
account{RekID = "901", NamaBank = "Bank Nusa", SaldoAwal = 5000, SaldoAkhir = 5000}
account{RekID = "1", NamaBank = "Kas Besar", DefaultKas = true, SaldoAwal = 20000, SaldoAkhir = 20000}

-- Two months of documents, entered on their screens.
local function receive(invoice, amount)
    use "BayarInvoice"
    click "bttnNew"
    choose("TxtCaraBayar", "CASH")
    choose("TxtRekening", "1")
    enter("TxtNoInvoice", invoice)
    enter("TxtJumlah", amount)
    click "bttnAddLine"
    click "bttnSave"
end
local function pay(purchase_number, amount)
    use "BayarFaktur"
    click "bttnNew"
    enter("txtNoBukti", text "txtNoBukti")
    enter("TxtCaraBayar", "CASH")
    enter("TxtRekening", "901")
    enter("TxtNoFaktur", purchase_number)
    enter("TxtJumlah", amount)
    click "bttnAddLine"
    click "bttnSave"
end
local function month(day)
    today(day)
    use "Faktur"
    local bought = buy("S1", {{"A", "50", "60"}})
    use "Invoice"
    local sold = sale("0000000001", {{"A", "8"}})
    sale("0000000002", {{"A", "1"}})
    receive(sold, "300")
    pay(bought, "1000")
    use "InvoiceRetur"
    click "bttnNew"
    enter("TxtNoInvoice", sold)
    row("OrderGrid", 1)
    enter("txtQty", "2")
    click "bttnAddLine"
    click "bttnSave"
end
for _, key in ipairs{"T01", "T02", "T03", "T04", "T05"} do open(key) end
month "2026-10-10"
month "2026-11-22"
expect(message(), nil)

local function print_book(name, account_code, of, year)
    use(name)
    enter("Combo1", account_code)
    enter("Text1", of)
    enter("Text2", year or "2026")
    click "OKButton"
    return report()
end
local function saldo(of) return value("Select SaldoAkhir From " .. of) end
local function thousands(number) return (("%d"):format(number):gsub("(%d)(%d%d%d)$", "%1,%2")) end
local where = {
    BukuBank = "SELECT  NamaBank,RekID, NoRek, Tanggal, NoBukti, Debit, Kredit  From    QueryBank Where month(Tanggal)= 11" ..
        " And Year (Tanggal) = 2026 And RekID = '1'",
    BukuPiutang = "SELECT    Customer.KodeCus, Customer.NamaCus,    QueryPiutang.NoJurnal, QueryPiutang.Tanggal, " ..
        "QueryPiutang.NoBukti, QueryPiutang.Debit, QueryPiutang.Kredit From    Customer LEFT OUTER JOIN QueryPiutang ON" ..
        "        Customer.KodeCus = QueryPiutang.KodeCus Where month(QueryPiutang.Tanggal)= 11 And Year " ..
        "(QueryPiutang.Tanggal) = 2026 And Customer.KodeCus = '0000000001'  Order By QueryPiutang.Tanggal",
    BukuHutang = "SELECT    Supplier.KodeSup, Supplier.NamaSup,    QueryHutang.NoJurnal, QueryHutang.Tanggal, " ..
        "QueryHutang.NoBukti, QueryHutang.Debit, QueryHutang.Kredit From    Supplier LEFT OUTER JOIN QueryHutang ON" ..
        "        Supplier.KodeSup = QueryHutang.KodeSup Where month(QueryHutang.Tanggal)= 11 And Year " ..
        "(QueryHutang.Tanggal) = 2026 And Supplier.KodeSup = 'S1'",
}

scenario "Accounts stand in the list with their code in ten places; month and year take digits alone"
for key, expected in pairs{L16 = "1          / Kas Besar", L17 = "S1         / PT Semen", L18 = "0000000001 / CV Bangun"} do
    open(key)
    expect(items "Combo1"[1], expected)
    type("Text1", "1x1-")
    expect({text "Text1", text "Text2"}, {"11", ""})
end

scenario "The month of an account: request, rows, and a closing balance that is the master's"
for _, case in ipairs{
    -- book, account, its balance, window and report title, rows, opening balance
    {"BukuBank", "1          / Kas Besar", "Bank Where RekID = '1'", "Cash And Bank Book", "Cash And Bank Book", 1, 20300},
    {"BukuBank", "901", "Bank Where RekID = '901'", "Cash And Bank Book", "Cash And Bank Book", 1, 4000},
    {"BukuPiutang", "0000000001 / CV Bangun", "Customer Where KodeCus = '0000000001'", "Customer Payments History ",
     "Customer Payments History", 3, 5300},
    {"BukuHutang", "S1", "Supplier Where KodeSup = 'S1'", "Supplier Payment History", "Supplier Payment History", 2, 2700},
} do
    local name, account_code, master, window, title, count, opening = table.unpack(case)
    local r = print_book(name, account_code, "11")
    local closing = "SaldoAkhir;" .. thousands(saldo(master)) .. ";True"
    expect({r.file, r.title, r.heading, r.rows, r.state, r.connect}, {name .. ".rpt", window, title, count, 2, "DSN=VarNik"})
    expect(r.asked, (where[name]:gsub("RekID = '1'", "RekID = '" .. account_code:match "%w+" .. "'")))
    -- The bank book's two balances go to one parameter; the closing one stays.
    expect(r.parameters, name == "BukuBank" and {[0] = closing} or {[0] = "SaldoAwal;" .. thousands(opening) .. ";True", closing})
    expect({r.formulas[14], r.formulas[15], r.formulas[19]}, {nil, "Judul1 ='Varnik Small Business'", nil})
    local printed = r:text()
    expect(printed:match "Opening balance%s+(%S+)", thousands(opening))
    expect(printed:match "Closing balance.-(%S+)\n", thousands(saldo(master)))
    expect(printed:match "November 2026", "November 2026")
    r:close()
end

scenario "A month without movement: the account, and closing equals opening"
local r = print_book("BukuPiutang", "0000000001", "9")
expect({r.rows, r.parameters}, {0, {[0] = "SaldoAwal;5,000;True", "SaldoAkhir;5,000;True"}})
expect({r:text():match "0000000001", r:text():match "September 2026", r:text():match "No data"}, {"0000000001", "September 2026", "No data"})
r:close()

scenario "No month, no year, or month 13: the first sum cannot be taken"
local open_reports = #reports()
for _, name in ipairs{"BukuBank", "BukuPiutang", "BukuHutang"} do
    for _, typed in ipairs{{"", "2026"}, {"11", ""}, {"13", "2026"}} do
        print_book(name, name == "BukuBank" and "1" or "S1", typed[1], typed[2])
        expect(message(), '"01/ ' .. typed[1] .. "/ " .. typed[2] .. '" is not a date.')
    end
end
expect(#reports(), open_reports)
