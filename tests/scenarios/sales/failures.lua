dofile(arg[0]:match ".*/" .. "../support/shop.lua")
product{KodeBrg = "0000000001", HargaJual = 1000}
product{KodeBrg = "0000000002", HargaJual = 2000}
product{KodeBrg = "0000000003", HargaJual = 3000}
customer{KodeCus = "0000000001"}
purchase("P00000000100", "0000000001", 100, 60000)
open "T01"

local lines = {{"0000000001", "1"}, {"0000000002", "1", "0"}, {"0000000003", "1"}}
local function posted(number)
    return sql("Select KodeBrg, Total, nDIS From InvoiceDetail Where NoInvoice = '" .. number .. "'")
end

scenario "A line without a price: Abort keeps what was written, the lines from it on are missing"
answer "abort"
local number = sale("0000000001", lines)
local box = messages()[1]
expect(box.text:sub(1, 11), "Err No 11\r\n")
expect({box.title, box.icon, box.buttons}, {"Varnik", "critical", "abort retry ignore"})
expect(posted(number), {{"0000000001", 1000, 0}})
expect(value("Select Total From Invoice Where NoInvoice = '" .. number .. "'"), 4000)
expect(value "Select SaldoAkhir From Customer", 4000)
expect(visible "FrameBawah", true)

scenario "Ignore passes over the division and goes on"
answer "ignore"
number = sale("0000000001", lines)
messages()
expect(posted(number), {{"0000000001", 1000, 0}, {"0000000002", 0, 0}, {"0000000003", 3000, 0}})

scenario "Retry meets the same fault again"
answer("retry", "abort")
number = sale("0000000001", lines)
expect(#messages(), 2)
expect(#posted(number), 1)

scenario "A blanked row is a line, and fails like one without a price"
new_invoice "0000000001"
number = text "TxtNoInvoice"
line("0000000001", "1")
line("0000000003", "1")
row("OrderGrid", 1)
type("OrderGrid", "{Del}")
answer "ignore"
click "bttnSave"
expect(messages()[1].text:sub(1, 9), "Err No 11")
expect(posted(number), {{"", 0, 0}, {"0000000003", 3000, 0}})
-- The sums were left as they were.
expect(value("Select Total From Invoice Where NoInvoice = '" .. number .. "'"), 4000)

scenario "A price that does not fit its column, passed over: goods, lot and balance are moved all the same"
local had, owed = value "Select OnHand From Produk Where KodeBrg = '0000000001'", value "Select SaldoAkhir From Customer"
answer "ignore"
number = sale("0000000001", {{"0000000001", "2", "3000000000"}})
expect(messages()[1].text:match "The number is too large for Produk.HargaJual" ~= nil, true)
expect(sql "Select OnHand, HargaJual From Produk Where KodeBrg = '0000000001'", {{had - 2, 1000}})
expect(value("Select Qty From PersediaanJual Where NoInvoice = '" .. number .. "'"), 2)
expect(value "Select SaldoAkhir From Customer" > owed + 5999000000, true) -- to seven digits, as its column keeps it

scenario "A number that another has taken meanwhile fails before anything is written"
new_invoice "0000000001"
number = text "TxtNoInvoice"
line("0000000001", "1")
local balance = value "Select SaldoAkhir From Customer"
insert("Invoice", {NoInvoice = number, TglInvoice = "#11/22/2026#", TglJtp = "#11/22/2026#", KodeCus = "0000000001",
    Bruto = 1, Disc = 0, Netto = 1, Total = 1, nPPN = 0, PPN = 0, Bayar = 0, Saldo = 1, NoUser = "00"})
answer "abort"
click "bttnSave"
expect(messages()[1].text:sub(1, 7), "Err No ")
expect(value "Select SaldoAkhir From Customer", balance)
expect(posted(number), {})
