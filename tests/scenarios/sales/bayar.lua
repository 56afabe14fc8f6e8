dofile(arg[0]:match ".*/" .. "../support/receipts.lua")
product{KodeBrg = "0000000001", HargaJual = 55000}
product{KodeBrg = "0000000002", HargaJual = 20000}
customer{KodeCus = "0000000001", NamaCus = "Toko Maju"}
purchase("P00000000100", "0000000001", 100, 4000000)
purchase("P00000000200", "0000000002", 100, 1000000)
account{RekID = "1", NamaBank = "Cash", DefaultKas = true}
account{RekID = "2", NamaBank = "Bank Nusa", NoRek = "123-456"}
open "T01"

scenario "Opened for the invoice on the screen, filled for who pays cash"
local number = sale("0000000001", {{"0000000001", "2"}})
click "bttnBayar"
expect(caption(), "Customer Receive")
expect(text "txtNoBukti", "000000000100")
expect(text "TxtCaraBayar", "CASH")
expect(items "TxtCaraBayar", {"CASH", "CHEQUE", "BG"})
expect(text "TxtRekening", "1 / Cash - 1-1")
expect(items "TxtRekening", {"1 / Cash - 1-1", "2 / Bank Nusa - 123-456"})
expect(text "TxtMemo", "Receipt For Inv No. " .. number .. " Cus Toko Maju /")
expect({text "TxtNoInvoice", text "TxtKodeCus", text "TxtNamaCus"}, {number, "0000000001", "Toko Maju"})
expect({text "TxtJumlah", text "txtDibayar", text "TxtSaldo"}, {"110,000", "110,000", "0"})

scenario "As proposed it pays the invoice off, and every ledger moves by the same amount"
local before = books()
enter("TxtNamaPenerima", "Tini")
click "bttnSave"
expect(differences(before, books()), {
    "BKM +1", "Bank 1.SaldoAkhir: 0 -> 110000", "Customer 1.SaldoAkhir: 110000 -> 0",
    "Invoice 1.Bayar: 0 -> 110000", "Invoice 1.Saldo: 110000 -> 0", "InvoiceBayar +1"})
expect(sql [[Select TglBKM, CaraBayar, Keterangan, Penerima, Penyetor, RekID, NamaBank, Debitur, NoCek, Jumlah,
             Terbilang, TglSetor, TglJtp, TglClear, Setor, Clear From BKM]],
       {{"2026-11-22", "CASH", "Receipt For Inv No. " .. number .. " Cus Toko Maju /", "Tini", "Toko Maju", "1", "Cash",
         "Toko Maju", "0", 110000, "One Hundred Ten Thousand", "2026-11-22", "2026-11-22", "2026-11-22", false, false}})
expect(sql "Select NoInvoice, NoBKM, KodeCus, CaraBayar, Jumlah From InvoiceBayar",
       {{number, "000000000100", "0000000001", "CASH", 110000}})
expect(focused(), "bttnPrint")
expect(enabled "bttnSave", false)

scenario "The receipt on paper"
click "bttnPrint"
local paper = report():text()
for _, shown in ipairs{"RECEIPT", "000000000100", "Toko Maju(0000000001)", "110,000", "One Hundred Ten Thousand"} do
    expect(paper:find(shown, 1, true) ~= nil, true)
end
report():close()

scenario "Back on the invoice the button is there again, and nothing is loaded anew"
expect(enabled "Invoice.bttnBayar", false)
click "bttnClose"
expect(current(), "Invoice")
expect(enabled "bttnBayar", true)
expect(text "TxtSaldo", "110,000")
click "bttnBayar"
expect({text "txtNoBukti", text "TxtJumlah"}, {"000000000200", "0"})
click "bttnClose"
delete_invoice(number)
expect_message "Payment for this invoice is not zero ..."

scenario "Half paid in: the invoice goes to 0 all the same, account and customer move by the half"
number = sale("0000000001", {{"0000000001", "2"}})
before = books()
click "bttnBayar"
enter("txtDibayar", "55000")
expect({text "txtDibayar", text "TxtSaldo"}, {"55,000", "55,000"})
click "bttnSave"
expect(differences(before, books()), {
    "BKM +1", "Bank 1.SaldoAkhir: 110000 -> 165000", "Customer 1.SaldoAkhir: 110000 -> 55000",
    "Invoice 2.Bayar: 0 -> 110000", "Invoice 2.Saldo: 110000 -> 0", "InvoiceBayar +1"})
expect(sql "Select Jumlah From BKM Where NoBKM = '000000000200'", {{55000}})
expect(sql "Select Jumlah From InvoiceBayar Where NoBKM = '000000000200'", {{110000}})
click "bttnClose"

scenario "What is missing is asked for, in this order, and Save can be pressed again"
number = sale("0000000001", {{"0000000001", "1"}})
before = books()
click "bttnBayar"
local rekening = text "TxtRekening"
for _, missing in ipairs{
    {"TxtRekening", "Bank or cash account should not be empty ..."},
    {"TxtNoInvoice", "Customer code should not be empty ..."}, -- goes with its invoice
    {"TxtCaraBayar", "Payment type should not be empty"},
} do
    clear(missing[1])
    click "bttnSave"
    expect_message(missing[2])
    expect(enabled "bttnSave", true)
end
choose("TxtCaraBayar", "CHEQUE")
enter("TxtNoInvoice", "NOT THERE")
expect({text "TxtKodeCus", text "TxtJumlah", text "txtDibayar"}, {"", "0", "0"})
enter("TxtNoInvoice", number)
expect({text "TxtKodeCus", text "TxtJumlah", text "txtDibayar"}, {"0000000001", "55,000", "55,000"})
enter("TxtRekening", "9 / No such account")
click "bttnSave"
expect_message "Bank or cash account should not be empty ..."
expect(differences(before, books()), {})

scenario "The account is read by one character"
insert("Bank", {RekID = "001", NamaBank = "Three", SaldoAwal = 0, SaldoAkhir = 0, DefaultKas = false})
enter("TxtRekening", "001 / Three - ")
click "bttnSave"
expect_message "Bank or cash account should not be empty ..."

scenario "A number that stands already: Abort leaves the books, the next number saves"
before = books()
enter("TxtRekening", "2 / Bank Nusa - 123-456")
enter("txtNoBukti", "000000000200")
answer "abort"
click "bttnSave"
local box = messages()[1]
expect({box.text:sub(1, 7), box.title, box.icon}, {"Err No ", "Varnik", "critical"})
expect(differences(before, books()), {})
enter("txtNoBukti", "000000000300")
click "bttnSave"
expect(differences(before, books()), {
    "BKM +1", "Bank 2.SaldoAkhir: 0 -> 55000", "Customer 1.SaldoAkhir: 110000 -> 55000",
    "Invoice 3.Bayar: 0 -> 55000", "Invoice 3.Saldo: 55000 -> 0", "InvoiceBayar +1"})
click "bttnClose"

scenario "A voucher that was passed over is not posted a second time"
number = sale("0000000001", {{"0000000001", "1"}})
before = books()
click "bttnBayar"
enter("TxtNamaPenerima", "Tini's")
answer "ignore"
click "bttnSave"
expect(#messages(), 1)
local after = books()
expect(differences(before, after), {
    "Bank 1.SaldoAkhir: 165000 -> 220000", "Customer 1.SaldoAkhir: 110000 -> 55000",
    "Invoice 4.Bayar: 0 -> 55000", "Invoice 4.Saldo: 55000 -> 0", "InvoiceBayar +1"})
expect(enabled "bttnSave", false)
click "bttnClose"
