dofile(arg[0]:match ".*/" .. "../support/shop.lua")
product{KodeBrg = "0000000001", HargaJual = 1000}
customer{KodeCus = "0000000001", NamaCus = "Toko Maju"}
open "T01"

scenario "A quote in a field finds nothing and harms nothing"
click "bttnNew"
local number = text "TxtNoInvoice"
enter("TxtKodeCus", "O'NEIL")
expect(focused(), "TxtKodeCus")
enter("TxtKodeCus", "0000000001")
enter("txtKodeBrg", "it's")
expect(focused(), "bttnSearch")
enter("TxtDiskripsi", "1/2' pipe")
click "bttnSearch"
expect(rows "GridCari", 0)
keys "{Esc}"
expect(message(), nil)
enter("txtKodeBrg", "0000000001")
enter("TxtDiskripsi", "1/2' pipe")
enter("txtCusPO", "PO '7'")
click "bttnAddLine"
click "bttnSave"
expect(sql "Select CusPO From Invoice", {{"PO '7'"}})
expect(sql "Select Diskripsi From InvoiceDetail", {{"1/2' pipe"}})
expect(message(), nil)

scenario "A quote in a number breaks its statement: the save says so and nothing is written"
click "bttnNew"
enter("TxtNoInvoice", "O'1")
enter("TxtKodeCus", "0000000001")
line("0000000001", "1")
answer "abort"
click "bttnSave"
expect(messages()[1].text:sub(1, 7), "Err No ")
expect(value "Select Count(*) From Invoice", 1)
expect(value "Select SaldoAkhir From Customer", 1000)

scenario "Letters where a number belongs count as nothing"
new_invoice("0000000001", "ten")
line("0000000001", "1")
expect(text "TxtJumPPN", "0")
click "bttnSave"
expect(sql "Select nPPN, PPN, Netto From Invoice Where NoInvoice = '000000000200'", {{0, 0, 1000}})

scenario "Texts longer than their column cannot be typed"
click "bttnNew"
for field, length in pairs{TxtNoInvoice = 12, txtCusPO = 30, TxtNamaCus = 50, TxtAlamat1 = 50} do
    enter(field, string.rep("9", length + 5))
    expect(#text(field), length)
end
click "bttnCancel"

scenario "A due date made wrong is met by the save, which stays in the entry"
new_invoice "0000000001"
line("0000000001", "1")
type("TxtJTP", "x")
click "bttnSave"
expect(message(), "Date format is not valid\r\nExample : 11/22/2026")
expect_message "Format of date not valid \r\nUsing format : 11/22/2026"
expect(visible "FrameAtas", true)
enter("TxtJTP", "11/30/2026")
click "bttnSave"
expect(value "Select Count(*) From Invoice", 3)

scenario "Nothing but a number: an invoice without lines and without a customer is posted as it stands"
click "bttnNew"
click "bttnSave"
expect(sql "Select KodeCus, Total, Terbilang From Invoice Where NoInvoice = '000000000400'", {{"", 0, "zero!"}})
