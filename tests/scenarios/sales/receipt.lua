dofile(arg[0]:match ".*/" .. "../support/receipts.lua")
product{KodeBrg = "0000000001", HargaJual = 1000}
customer{KodeCus = "0000000001", NamaCus = "Toko Maju"}
customer{KodeCus = "0000000002", NamaCus = "Warung Tini"}
purchase("P00000000100", "0000000001", 1000, 600000)
account{RekID = "1", NamaBank = "Cash", DefaultKas = true}
account{RekID = "2", NamaBank = "Bank Nusa", NoRek = "123-456"}

-- Opened before the invoices stand: what is posted meanwhile is found all the same.
open "T02"
expect(caption(), "Customer Receipts - Varnik")
open "T01"
local first = sale("0000000001", {{"0000000001", "10"}})
local second = sale("0000000002", {{"0000000001", "20"}})
local third = sale("0000000001", {{"0000000001", "5"}})
use "BayarInvoice"

local function receipt(method, payments)
    click "bttnNew"
    local number = text "txtNoBukti"
    choose("TxtCaraBayar", method)
    choose("TxtRekening", "1")
    for _, each in ipairs(payments) do
        enter("TxtNoInvoice", each[1])
        if each[2] then enter("TxtJumlah", each[2]) end
        click "bttnAddLine"
    end
    return number
end
local function remove(number, sure)
    enter("txtNoBukti", number)
    answer(sure or "yes")
    click "bttnDel"
    local asked = message()
    expect(asked, "Are you sure you want delete receipt no " .. number)
end

scenario "Two invoices of two customers in one receipt"
local before = books()
local number = receipt("CASH", {{first}, {second, "15000"}})
expect(number, "000000000100")
expect(text "TxtMemo", "Receipt From Toko Maju Inv No." .. first .. " Inv No." .. second)
expect({cell("OrderGrid", 1, 0), cell("OrderGrid", 1, 1), cell("OrderGrid", 1, 2), cell("OrderGrid", 1, 3)},
       {first, "10,000.00", "0000000001", "Toko Maju"})
expect({cell("OrderGrid", 0, 0), cell("OrderGrid", 0, 1), cell("OrderGrid", 0, 2), cell("OrderGrid", 0, 3)},
       {"INV #", "AMOUNT", "CODE", "CUSTOMER NAME"})
expect(caption "lblJumBAYAR", "25,000.00")
expect({focused(), text "TxtNoInvoice", text "TxtJumlah"}, {"TxtNoInvoice", "", "0"})
enter("TxtNamaPenerima", "Budi")
click "bttnSave"
local posted = {
    "BKM +1", "Bank 1.SaldoAkhir: 0 -> 25000", "Customer 1.SaldoAkhir: 15000 -> 5000",
    "Customer 2.SaldoAkhir: 20000 -> 5000", "Invoice 1.Bayar: 0 -> 10000", "Invoice 1.Saldo: 10000 -> 0",
    "Invoice 2.Bayar: 0 -> 15000", "Invoice 2.Saldo: 20000 -> 5000", "InvoiceBayar +2"}
expect(differences(before, books()), posted)
expect(sql [[Select TglBKM, NoBKM, CaraBayar, Penerima, Penyetor, RekID, NamaBank, Debitur, NoCek, Jumlah, Terbilang,
             TglSetor, TglJTP, TglClear, Setor, Clear From BKM]],
       {{"2026-11-22", number, "CASH", "Budi", "Toko Maju", "1", "", "", "", 25000, "Twenty Five Thousand", "2026-11-22",
         "2026-11-22", "2026-11-22", false, false}})
expect(sql "Select NoInvoice, NoBKM, KodeCus, Jumlah, Memo From InvoiceBayar",
       {{first, number, "0000000001", 10000, "Receipt From Toko Maju Inv No." .. first .. " Inv No." .. second},
        {second, number, "0000000002", 15000, "Receipt From Toko Maju Inv No." .. first .. " Inv No." .. second}})
expect({visible "FrameBawah", enabled "bttnAddLine"}, {true, false})

scenario "On paper once, though it comes as a row for each customer"
click "bttnPrint"
local paper = report():text()
for _, shown in ipairs{"RECEIPT", number, "Toko Maju", "25,000", "Twenty Five Thousand", "1-1"} do
    expect(paper:find(shown, 1, true) ~= nil, true)
end
expect(report().pages, 1)
report():close()

scenario "Deleted: balances of invoices and account are back, what was paid is not, customers go down again"
remove(number)
expect(differences(before, books()), {
    "Customer 1.SaldoAkhir: 15000 -> -5000", "Customer 2.SaldoAkhir: 20000 -> -10000",
    "Invoice 1.Bayar: 0 -> 10000", "Invoice 2.Bayar: 0 -> 15000"})
expect({text "txtNoBukti", rows "OrderGrid"}, {"", 1})
use "Invoice"
delete_invoice(first)
expect_message "Payment for this invoice is not zero ..."
use "BayarInvoice"

scenario "Fractions: the balances move by whole numbers, a deletion gives back the fraction"
before = books()
number = receipt("CASH", {{third, "1000.50"}})
expect(caption "lblJumBAYAR", "1,000.50")
click "bttnSave"
expect(differences(before, books()), {
    "BKM +1", "Bank 1.SaldoAkhir: 0 -> 1001", "Customer 1.SaldoAkhir: -5000 -> -6001",
    "Invoice 3.Bayar: 0 -> 1001", "Invoice 3.Saldo: 5000 -> 3999", "InvoiceBayar +1"})
expect(sql "Select Jumlah, Terbilang From BKM", {{1000.5, "One Thousand One"}})
expect(value "Select Jumlah From InvoiceBayar", 1000.5)
remove(number)
expect(differences(before, books()), {
    "Bank 1.SaldoAkhir: 0 -> 0.5", "Customer 1.SaldoAkhir: -5000 -> -7001.5",
    "Invoice 3.Bayar: 0 -> 1001", "Invoice 3.Saldo: 5000 -> 4999.5"})

scenario "No leaves all as it is; what was paid in or has cleared stays"
number = receipt("CASH", {{second}})
click "bttnSave"
before = books()
remove(number, "no")
for _, mark in ipairs{"Setor", "Clear"} do
    sql("Update BKM Set " .. mark .. " = True")
    remove(number)
    expect_message "Unable to delete record ..."
    sql("Update BKM Set " .. mark .. " = False")
end
expect(differences(before, books()), {})
clear "txtNoBukti"
answer "yes"
click "bttnDel"
expect_message "Are you sure you want delete receipt no "
expect_message 'Unable to find record ..."'

scenario "A row of amount 0 writes nothing; one is changed where it stands and keeps its number"
before = books()
local rows_before = value "Select Count(*) From InvoiceBayar"
number = receipt("CASH", {{third, "0"}, {third, "100"}})
row("OrderGrid", 2)
expect({caption "bttnAddLine", text "TxtNoInvoice", text "TxtJumlah"}, {"&Up Date", third, "100.00"})
enter("TxtJumlah", "250")
click "bttnAddLine"
expect({caption "bttnAddLine", cell("OrderGrid", 2, 0), cell("OrderGrid", 2, 1), caption "lblJumBAYAR"},
       {"&Add", third, "250.00", "250.00"})
enter("TxtNoInvoice", third)
type("TxtJumlah", "{Home}{Shift+End}x")
click "bttnAddLine"
expect(rows "OrderGrid", 3)
click "bttnSave"
expect(value "Select Count(*) From InvoiceBayar" - rows_before, 1)

scenario "What is missing is asked for in this order, and nothing is written or lost"
before = books()
click "bttnNew"
click "bttnSave"
expect_message "Amount of payment still zero..."
enter("TxtNoInvoice", third)
click "bttnAddLine"
click "bttnSave"
expect_message "Payment type should not be empty ..."
choose("TxtCaraBayar", "CASH")
click "bttnSave"
expect_message "Cash or bank account should not be empty ..."
enter("TxtRekening", "7")
click "bttnSave"
expect_message "Unable to find record ..."
choose("TxtCaraBayar", "BG")
for _, field in ipairs{
    {"TxtNamaBank", "bank should not be empty ..."}, {"TxtNoCek", "Cheque number should not be empty ......"},
    {"TxtPemilik", "Ownner account should not be empty ..."},
} do
    click "bttnSave"
    expect_message(field[2])
    enter(field[1], "X-" .. field[1])
end
click "bttnSave"
expect_message 'Unable to find record ..."'
expect(visible "FrameAtas", true)
expect(differences(before, books()), {})
choose("TxtRekening", "2")
date("TxtTglJTP", "2026-12-22")
number = text "txtNoBukti"
click "bttnSave"
expect(sql("Select CaraBayar, RekID, NamaBank, NoCek, Debitur, TglJTP, TglClear, TglSetor From BKM Where NoBKM = '" .. number .. "'"),
       {{"BG", "2", "X-TxtNamaBank", "X-TxtNoCek", "X-TxtPemilik", "2026-12-22", "2026-12-22", "2026-11-22"}})
expect(value "Select SaldoAkhir From Bank Where RekID = '2'", 4750) -- a cheque is money at once, and 4749.50 is rounded

scenario "A number that stands is shown instead"
click "bttnNew"
enter("txtNoBukti", number)
expect_message "Receipt with this number already exist ..."
expect({visible "FrameBawah", text "TxtNamaPenerima", text "TxtCaraBayar", cell("OrderGrid", 1, 0)}, {true, "", "BG", third})
-- The lines are added as if typed: the memo names the invoice once more.
expect(text "TxtMemo", "Receipt From Toko Maju Inv No." .. third .. " Inv No." .. third)
expect(text "TxtRekening", "2 / Bank Nusa - 123-456")

scenario "Open invoices by each criterion; a closed one is not listed"
click "bttnNew"
local function found(criterion, what)
    choose("txtKreteria", criterion)
    enter("txtValue", what)
    click "cmdExecute"
    local numbers = {}
    for i = 1, rows "grdCari" do numbers[i] = cell("grdCari", i, 2) end
    return numbers
end
focus "TxtNoInvoice"
type("TxtNoInvoice", "{F5}")
expect(visible "frmCari", true)
expect(found("INVOICE NO", "0000"), {first})
expect(found("CUSTOMER NAME", "Tini"), {})
expect(found("CUSTOMER CODE", "1"), {first})
expect(found("INVOICE DATE", "11/22/2026"), {first})
expect(found("BALANCE", "10000"), {first})
doubleclick("grdCari", 1)
expect({visible "frmCari", text "TxtNoInvoice", text "TxtJumlah", text "TxtNamaCus"}, {false, first, "10,000.00", "Toko Maju"})
click "bttnCancel"

scenario "Receipts by each criterion: the date of payment is the date of the invoice"
sql("Update Invoice Set TglInvoice = #11/20/2026# Where NoInvoice = '" .. third .. "'")
click "bttnFind"
local function receipts(criterion, what)
    choose("TxtKreteria2", criterion)
    enter("txtValue2", what)
    click "bttnExecute2"
    return rows "grdCari2"
end
expect(receipts("RECEIPT NO", number), 1)
expect(receipts("PAYMENT DATE", "11/20/2026"), 2)
expect(receipts("PAYMENT DATE", "11/22/2026"), 1)
expect(receipts("INVOICE DATE", "11/20/2026"), 2)
expect(receipts("INVOICE NO", third), 2)
expect(receipts("CUSTOMER CODE", "0000000002"), 1)
expect(receipts("CUSTOMER NAME", "Tini"), 1)
expect({cell("grdCari2", 1, 6), cell("grdCari2", 1, 7)}, {"20,000", "1"})
click "bttnTutup2"
expect({visible "FrmCari2", text "TxtNamaCus", cell("OrderGrid", 1, 0)}, {false, "Warung Tini", second})
