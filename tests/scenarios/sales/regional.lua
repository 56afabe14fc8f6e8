-- The machine's own signs: a full stop groups, a comma separates, the day comes first.
regional{date = "dd.mm.yyyy", decimal = ",", group = "."}
dofile(arg[0]:match ".*/" .. "../support/shop.lua")
product{KodeBrg = "0000000001", HargaJual = 1500}
customer{KodeCus = "0000000001", nJTP = 30}
purchase("P00000000100", "0000000001", 40, 10)
open "T01"

scenario "Figures and dates are read as they are shown"
local number = new_invoice("0000000001", "2,5")
expect(text "TxtJTP", "22.12.2026")
enter("TxtJTP", "31/12/26")
line("0000000001", "3", "1.500,50", "2,5")
expect(grid_row(1), {"0000000001", "Goods 0000000001", "3", "PCS", "1.501", "4.502", "113", "4.389", "1"})
click "bttnSave"
expect(sql "Select Bruto, Disc, Total, nPPN, TglJtp = DateValue('31.12.2026') From Invoice",
       {{4502, 113, 4389, 2.5, -1}})
expect(sql "Select Qty, Harga, HPP From InvoiceDetail", {{3, 1501, 0.75}})
expect(value "Select Harga2 From Persediaan Where NoJurnal = '31'", 0.25)

scenario "What was saved comes back as it was entered"
click "bttnNew"
click "bttnCancel"
click "bttnFind"
choose("txtKreteria", "Invoice Date")
enter("txtValue", "22.11.2026")
click "cmdExecute"
expect(rows "grdCari", 1)
expect(cell("grdCari", 1, 3), "22.11.2026")
expect(cell("grdCari", 1, 6), "4.389")
doubleclick("grdCari", 1)
expect(text "TxtJTP", "31.12.2026")
expect(text "TxtPPN", "2,5")
expect(text "txtJumTotal", "4.389")
delete_invoice(number)
expect(value "Select QtySisa From FakturDetail", 40)

scenario "The counter keeps its comma on every machine"
click "bttnNew"
enter("TxtNoInvoice", "000000099900")
enter("TxtKodeCus", "0000000001")
line("0000000001", "1")
click "bttnSave"
click "bttnNew"
expect(text "TxtNoInvoice", "000001,00000")
enter("TxtJTP", "soon")
expect_message "Date format is not valid\r\nExample : 22.11.2026"
