dofile(arg[0]:match ".*/" .. "../support/shop.lua")
product{KodeBrg = "0000000001", HargaJual = 1000, Satuan = "", Pecahan = 0, HPPRata = 60}
product{KodeBrg = "0000000002", HargaJual = 5000, Jasa = true}
customer{KodeCus = "0000000001", SaldoAkhir = 500}
purchase("P00000000100", "0000000001", 10, 600)
purchase("P00000000200", "0000000001", 20, 1400)
open "T01"

-- All that posting may touch, table by table.
local function books()
    return {
        invoices = sql "Select * From Invoice", lines = sql "Select * From InvoiceDetail",
        customers = sql "Select * From Customer", lots = sql "Select * From FakturDetail",
        drawn = sql "Select * From PersediaanJual", open = sql "Select NoRef, QtySisa From Persediaan Where NoJurnal = '11'",
        stock = sql "Select KodeBrg, OnHand, QGudang, HPPRata, HargaBeli From Produk",
    }
end

scenario "A sale and its deletion: everything is back but prices, units and the ledger's two rows a lot"
local before = books()
local number = sale("0000000001", {{"0000000001", "15", "1200"}, {"0000000002", "1"}}, "10")
expect(value "Select SaldoAkhir From Customer", 23500)
delete_invoice(number)
expect(books(), before)
expect(sql "Select HargaJual, Satuan, Pecahan From Produk Where KodeBrg = '0000000001'", {{1200, "PCS", 1}})
expect(sql("Select NoJurnal, KodeBrg, Qty1, Qty2 From Persediaan Where NoRef = '" .. number .. "'"),
       {{"31", "0000000001", 0, 10}, {"31", "0000000001", 0, 5}, {"32", "0000000001", 10, 0},
        {"32", "0000000001", 5, 0}})
expect(caption "bttnSave", "&Save")
expect(visible "FrameBawah", true)
expect(message(), nil)

scenario "The number is free again"
click "bttnNew"
expect(text "TxtNoInvoice", number)
click "bttnCancel"

scenario "What is paid, be it a little, or returned, cannot be deleted"
number = sale("0000000001", {{"0000000001", "3"}})
sql("Update Invoice Set Bayar = 1 Where NoInvoice = '" .. number .. "'")
before = books()
delete_invoice(number)
expect_message "Payment for this invoice is not zero ..."
expect(books(), before)

scenario "An invoice that another has deleted meanwhile"
sql("Update Invoice Set Bayar = 0 Where NoInvoice = '" .. number .. "'")
click "bttnDel"
enter("TxtNoInvoice", number)
sql("Delete From Invoice Where NoInvoice = '" .. number .. "'")
click "bttnSave"
expect_message "Invoice with this number is not found ..."

scenario "A customer created by the sale stays"
click "bttnNew"
number = text "TxtNoInvoice"
enter("TxtKodeCus", "NEW")
row("OrderGrid", 1)
type("OrderGrid", "{Enter}")
line("0000000002", "1")
click "bttnSave"
delete_invoice(number)
expect(sql "Select KodeCus, SaldoAkhir From Customer Where KodeCus = 'NEW'", {{"NEW", 0}})

scenario "A product that is gone since stops at its type; the rest is given back"
number = sale("0000000001", {{"0000000001", "1"}, {"0000000002", "1"}})
sql "Delete From Produk Where KodeBrg = '0000000001'"
answer "abort"
delete_invoice(number)
expect(messages()[1].buttons, "abort retry ignore")
expect(sql("Select KodeBrg From InvoiceDetail Where NoInvoice = '" .. number .. "'"), {{"0000000001"}, {"0000000002"}})
expect(sql("Select NoInvoice From Invoice Where NoInvoice = '" .. number .. "'"), {})
