dofile(arg[0]:match ".*/" .. "../support/shop.lua")
product{KodeBrg = "0000000001", HargaJual = 1000}
customer{KodeCus = "0000000001", NamaCus = "Toko Maju", nJTP = 30}
customer{KodeCus = "0000000002", NamaCus = "Toko Mundur", nJTP = 7}
customer{KodeCus = "0000000003", NamaCus = "Toko Mundur", nJTP = 8}
open "T01"

scenario "Numbers: blank, taken, typed by hand"
local first = sale("0000000001", {{"0000000001", "1"}})
click "bttnNew"
local second = text "TxtNoInvoice"
clear "TxtNoInvoice"
keys "{Enter}"
expect_message "Invoice number must not blank ..."
expect(focused(), "TxtNoInvoice")
-- Typing a number that exists shows its invoice at once, leaving the field ends the entry.
type("TxtNoInvoice", first)
expect(text "TxtKodeCus", "0000000001")
expect(visible "FrameAtas", true)
keys "{Enter}"
expect_message "Invoice with this number is found ..."
expect(visible "FrameBawah", true)
click "bttnNew"
expect(text "TxtNoInvoice", second)
enter("TxtNoInvoice", "000000004100")
expect(focused(), "TxtTglInvoice")
enter("TxtKodeCus", "0000000001")
line("0000000001", "1")
click "bttnSave"
click "bttnNew"
expect(text "TxtNoInvoice", "000000004200")
click "bttnCancel"

scenario "A save waits for the number and for a customer that nobody knows"
click "bttnNew"
clear "TxtNoInvoice"
click "bttnSave"
expect_message "Invoice number must not blank ..."
expect(visible "FrameAtas", true)
enter("TxtNoInvoice", "000000004300")
focus "TxtKodeCus"
keys "typo"
click "bttnSave"
expect(focused(), "TxtKodeCus")
expect(sql "Select NoInvoice From Invoice Where NoInvoice = '000000004300' Or NoInvoice = ''", {})
click "bttnSave"
expect(sql "Select KodeCus From Invoice Where NoInvoice = '000000004300'", {{"TYPO"}})
expect(sql "Select NamaCus, Alamat_1 From Customer Where KodeCus = 'TYPO'", {{"", nil}})

scenario "Numbers in deleting: one that is not there ends it"
click "bttnDel"
expect(caption "bttnSave", "&Delete")
expect(focused(), "TxtNoInvoice")
enter("TxtNoInvoice", "NONE")
expect_message "Invoice with this number is not found ..."
expect(caption "bttnSave", "&Save")
expect(visible "FrameBawah", true)
click "bttnDel"
enter("TxtNoInvoice", first)
expect(text "txtJumTotal", "1,000")
expect(caption "bttnSave", "&Delete")
click "bttnCancel"
expect(caption "bttnSave", "&Save")

scenario "The counter takes a comma from a thousand on, and starts again behind it"
for _, case in ipairs{{"000000099900", "000001,00000"}, {"000001,00000", "000000000200"}} do
    click "bttnNew"
    enter("TxtNoInvoice", case[1])
    enter("TxtKodeCus", "0000000001")
    line("0000000001", "1")
    click "bttnSave"
    click "bttnNew"
    expect(text "TxtNoInvoice", case[2])
    click "bttnCancel"
end

scenario "Due dates"
click "bttnNew"
enter("TxtNoInvoice", "000000007700")
for _, case in ipairs{
    {"", "Due date is not valid..."},
    {"soon", "Date format is not valid\r\nExample : 11/22/2026"},
    {"02/30/2026", "Date format is not valid\r\nExample : 11/22/2026"},
} do
    if case[1] == "" then clear "TxtJTP" keys "{Enter}" else enter("TxtJTP", case[1]) end
    expect_message(case[2])
    expect(focused(), "TxtJTP")
end
enter("TxtJTP", "12/24/2026")
expect(focused(), "TxtPPN")
-- A due date that was made wrong later is met by the save.
date("TxtTglInvoice", "2026-11-20")
enter("TxtKodeCus", "0000000001")
expect(text "TxtJTP", "12/20/2026")
line("0000000001", "1")

scenario "Customers by name: one of that name, several, none"
click "bttnCancel"
click "bttnNew"
enter("TxtNamaCus", "Toko Maju")
expect(text "TxtKodeCus", "0000000001")
expect(text "TxtJTP", "12/22/2026")
click "bttnCancel"
click "bttnNew"
enter("TxtNamaCus", "undur")
expect(focused(), "GridCari")
expect(rows "GridCari", 2)
expect(cell("GridCari", 1, 1), "Toko Mundur")
keys "{Down}{Enter}"
expect(text "TxtKodeCus", "0000000003")
expect(text "TxtJTP", "11/30/2026")
click "bttnCancel"
click "bttnNew"
enter("TxtNamaCus", "Nobody")
expect(visible "GridCari", false)
expect(text "TxtKodeCus", "")
-- No name at all lists everybody, for who goes on by the keyboard; who clicks elsewhere is left alone.
clear "TxtNamaCus"
focus "TxtNamaCus"
keys "{Enter}"
expect({focused(), rows "GridCari"}, {"GridCari", value "Select Count(*) From Customer"})
keys "{Esc}"
expect({visible "GridCari", focused()}, {false, "TxtKodeCus"})
focus "TxtNamaCus"
click "bttnCancel"
expect(visible "GridCari", false)

scenario "Rights are tested in the button, silently"
sql "UPDATE T_USER SET TAMBAH = False, HAPUS = False"
stop()
start()
login("varnik", "kemiri")
open "T01"
click "bttnNew"
expect(visible "FrameAtas", false)
click "bttnDel"
expect(visible "FrameAtas", false)
click "bttnBayar"
expect(message(), nil)
