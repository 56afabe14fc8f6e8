dofile(arg[0]:match ".*/" .. "../support/receipts.lua")
product{KodeBrg = "0000000001", NamaBrg = "Semen", HargaJual = 100}
product{KodeBrg = "0000000002", NamaBrg = "Antar", HargaJual = 50, Jasa = true}
product{KodeBrg = "0000000003", NamaBrg = "Paku", HargaJual = 1000}
customer{KodeCus = "0000000001", NamaCus = "Toko Maju", Kota = "Bandung"}
customer{KodeCus = "0000000002", NamaCus = "Warung Tini"}
purchase("P00000000100", "0000000001", 2, 120)
purchase("P00000000200", "0000000001", 30, 2100)
purchase("P00000000300", "0000000003", 10, 6000)
open "T01"
local first = sale("0000000001", {{"0000000001", "7"}, {"0000000002", "1"}}, "10")
local dear = sale("0000000002", {{"0000000003", "3"}})
open "T03"
expect(caption(), "Seles Returns")

local function start(number)
    click "bttnNew"
    local id = text "TxtReturID"
    enter("TxtNoInvoice", number)
    return id
end
local function cut(line, quantity)
    row("OrderGrid", line)
    enter("txtQty", quantity)
    click "bttnAddLine"
end
local function blank(line)
    row("OrderGrid", line)
    if visible "txtQty" then click "cmdBatalLine" end
    row("OrderGrid", line)
    type("OrderGrid", "{Del}")
end
local function delete(id)
    click "bttnDel"
    enter("TxtReturID", id)
    click "bttnSave"
end

scenario "Three back of a sale that drew two and five: two rows of goods out, negative"
local before = books()
local id = start(first)
expect(id, "000000000100")
expect({text "TxtKodeCus", text "TxtNamaCus", text "TxtAlamat", text "TxtPPN", text "TxtTglInvoice"},
       {"0000000001", "Toko Maju", "Jl. Satu", "10", "11/22/2026"})
expect(grid_row(1), {"0000000001", "Semen", "7", "PCS", "100", "700", "0", "700", "1"})
expect(cell("OrderGrid", 0, 8), "QTY @")
expect(text "txtJumTotal", "750")
cut(1, "3")
expect({cell("OrderGrid", 1, 2), cell("OrderGrid", 1, 5), text "txtJumTotal"}, {"3", "300", "350"})
choose("Combo1", "RUSAK")
enter("txtket", "wet")
click "bttnSave"
expect(sql "Select NoJurnal, NoRef, Qty1, Qty2, Harga2, QtySisa, Saldo, NamaBrg, Memo From Persediaan Where NoJurnal = '41'",
       {{"41", id, 0, -2, 60, 0, 27, "Semen", "Sales Returns No " .. id},
        {"41", id, 0, -1, 70, 0, 28, "Semen", "Sales Returns No " .. id}})
expect(differences(before, books()), {
    "Customer 1.SaldoAkhir: 750 -> 400", "FakturDetail 1.QtySisa: 0 -> 2", "FakturDetail 2.QtySisa: 25 -> 26",
    "Invoice 1.Bayar: 0 -> 350", "Invoice 1.Saldo: 750 -> 400", "InvoiceDetail 1.QtyRetur: 0 -> 3",
    "InvoiceRetur +1", "InvoiceReturDetail +2", "Persediaan +2", "PersediaanJual 1.Qty: 2 -> 0",
    "PersediaanJual 2.Qty: 5 -> 4", "PersediaanRetur +2", "Produk 1.OnHand: 25 -> 28", "Produk 1.QGudang: 25 -> 28"})
expect(sql "Select KodeBrg, Qty, Qty2, Disc, Total, nDis, nPPN, HPP From InvoiceReturDetail",
       {{"0000000001", 3, 1, 0, 300, 0, 10, 190}, {"0000000002", 1, 1, 0, 50, 0, 10, 0}})
expect(sql "Select ReturID, NoInvoice, TglRetur, TglInvoice, KodeCus, Ket, Ket2, Total, Bayar, Saldo, NoUser, nPPN, TglCetak From InvoiceRetur",
       {{id, first, "2026-11-22", "2026-11-22", "0000000001", "wet", "RUSAK", 350, 0, 350, "00", 10, "11/22/2026"}})

scenario "On paper"
click "bttnPrint"
local paper = report():text()
for _, shown in ipairs{"SALES RETURN", id, first, "Toko Maju", "Bandung", "RUSAK", "Semen", "Antar", "350"} do
    expect(paper:find(shown, 1, true) ~= nil, true)
end
report():close()

scenario "The invoice counts as paid and can no longer be deleted"
use "Invoice"
delete_invoice(first)
expect_message "Payment for this invoice is not zero ..."
use "InvoiceRetur"

scenario "Its deletion: the invoice's balance is a truth value, what was returned stays counted, the order goes negative"
delete(id)
expect(message(), nil)
expect(differences(before, books()), {
    "Invoice 1.Saldo: 750 -> 0", "InvoiceDetail 1.QtyOrder: 0 -> -3", "InvoiceDetail 1.QtyRetur: 0 -> 3",
    "Persediaan +4"})
expect(sql "Select Qty1, Qty2, Harga2, Saldo, Memo From Persediaan Where NoJurnal = '42'",
       {{0, 2, 60, 26, "Sales Returns (DELETED) No. " .. id .. " Cus. Toko Maju"},
        {0, 1, 70, 25, "Sales Returns (DELETED) No. " .. id .. " Cus. Toko Maju"}})

scenario "From 1,000 on the separator breaks both statements of a deletion; the rest goes through"
before = books()
id = start(dear)
click "bttnSave"
expect(value "Select SaldoAkhir From Customer Where KodeCus = '0000000002'", 0)
answer("ignore", "ignore")
delete(id)
local boxes = messages()
expect({#boxes, boxes[1].buttons, boxes[1].title, boxes[1].icon}, {2, "abort retry ignore", "Varnik", "critical"})
expect(differences(before, books()), {
    "Customer 2.SaldoAkhir: 3000 -> 0", "Invoice 2.Bayar: 0 -> 3000", "Invoice 2.Saldo: 3000 -> 0",
    "InvoiceDetail 3.QtyOrder: 0 -> -3", "InvoiceDetail 3.QtyRetur: 0 -> 3", "Persediaan +2"})

scenario "Abort at the first of them keeps the return whole"
id = start(dear)
click "bttnSave"
before = books()
answer "abort"
delete(id)
messages()
expect(differences(before, books()), {})

scenario "More than was sold: the lots get what the sale drew, the stock rises by all of it"
local third = (function() use "Invoice"; local n = sale("0000000001", {{"0000000001", "4"}}); use "InvoiceRetur"; return n end)()
before = books()
id = start(third)
cut(1, "9")
click "bttnSave"
expect(sql("Select Qty From PersediaanRetur Where ReturID = '" .. id .. "'"), {{4}})
expect(value "Select OnHand From Produk Where KodeBrg = '0000000001'", 30)

scenario "A blanked row is left out, of the sums too; a discount is a percentage here"
local fourth = (function() use "Invoice"; local n = sale("0000000001", {{"0000000001", "2"}, {"0000000002", "2"}}); use "InvoiceRetur"; return n end)()
id = start(fourth)
blank(1)
expect(text "txtJumTotal", "100")
row("OrderGrid", 2)
enter("TxtDis", "10")
click "bttnAddLine"
expect({cell("OrderGrid", 2, 6), cell("OrderGrid", 2, 7), text "txtJumTotal"}, {"10", "90", "90"})
before = books()
click "bttnSave"
expect(differences(before, books()), {
    "Customer 1.SaldoAkhir: " .. before.Customer[1][2] .. " -> " .. before.Customer[1][2] - 90,
    "Invoice 4.Bayar: 0 -> 90", "Invoice 4.Saldo: 300 -> 210", "InvoiceRetur +1", "InvoiceReturDetail +1"})

scenario "What is missing is asked for, and numbers that stand or do not"
click "bttnNew"
clear "TxtTglRetur"
click "bttnSave"
expect_message "Enter  date of transaction with valid date\r\nUsing  dd-mm-yyyy format..."
enter("TxtTglRetur", "11/22/2026")
click "bttnSave"
expect_message "Invoice number must not blank ..."
enter("TxtReturID", id)
expect_message "The ID already exist .."
expect(focused(), "TxtReturID")
click "bttnCancel"
expect_message "The ID already exist .."
expect({text "TxtReturID", cell("OrderGrid", 1, 0), text "txtJumTotal"}, {id, "0000000002", "90"})

scenario "Both searches"
click "bttnNew"
click "bttnSearch"
choose("txtKreteria", "Customer Name")
enter("txtValue", "tini")
click "cmdExecute"
expect({rows "grdCari", cell("grdCari", 1, 2)}, {1, dear})
click "cmdTutup"
expect({text "TxtNoInvoice", cell("OrderGrid", 1, 1)}, {dear, "Paku"})
click "bttnCancel"
click "bttnFind"
for _, search in ipairs{{"Returns Id", id, 1}, {"Returns Date", "11/22/2026", 3}, {"Customer Code", "0000000002", 1}} do
    choose("TxtKreteria2", search[1])
    enter("txtValue2", search[2])
    click "bttnExecute2"
    expect(rows "grdCari2", search[3])
end
click "bttnTutup2"
expect(text "TxtNamaCus", "Warung Tini")
