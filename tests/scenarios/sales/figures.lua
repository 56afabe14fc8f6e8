dofile(arg[0]:match ".*/" .. "../support/shop.lua")
product{KodeBrg = "0000000001", HargaJual = 55000}
product{KodeBrg = "0000000002", HargaJual = 100, Satuan = "", Pecahan = 0, SatuanJual = "DUS", PecahanJual = 24}
product{KodeBrg = "0000000003", HargaJual = 75000, Jasa = true, HPPRata = 10}
customer{KodeCus = "0000000001"}
purchase("000000000100", "0000000001", 100, 4000000)
open "T01"

scenario "Tax is taken out of the header's total, and in another way out of the line's"
-- tax typed, header Total, Netto, PPN; line Total, Netto, PPN, nPPN
for _, case in ipairs{
    {"10", 110000, 100000, 10000, 110000, 110000, 10000, 10},
    {"0", 110000, 110000, 0, 110000, 110000, 110000, 0},
} do
    local number = sale("0000000001", {{"0000000001", "2"}}, case[1])
    expect(sql("Select Total, Netto, PPN, nPPN From Invoice Where NoInvoice ='" .. number .. "'"),
           {{case[2], case[3], case[4], case[8]}})
    expect(sql("Select Total, Netto, PPN, nPPN From InvoiceDetail Where NoInvoice ='" .. number .. "'"),
           {{case[5], case[6], case[7], case[8]}})
end
expect(value "Select SaldoAkhir From Customer Where KodeCus = '0000000001'", 220000)

scenario "A discount of 10,000 on 100,000 is a tenth; memo, user and words of the header"
local number = sale("0000000001", {{"0000000001", "2", "50000", "10000"}}, "0")
expect(sql("Select Bruto, Disc, nDIS, Total From InvoiceDetail Where NoInvoice ='" .. number .. "'"),
       {{100000, 10000, 10, 90000}})
expect(sql("Select Ket, NoUser, Terbilang, Bruto, Disc From Invoice Where NoInvoice ='" .. number .. "'"),
       {{"Sales Inv No. " .. number .. " Cus. ", "00", "Ninety Thousand", 100000, 10000}})
expect(value "Select HargaJual From Produk Where KodeBrg = '0000000001'", 50000)

scenario "A line sets the selling price of a base unit and fills units that were left blank"
sale("0000000001", {{"0000000002", "2", "12000"}})
expect(sql "Select HargaJual, Satuan, Pecahan, SatuanJual, OnHand, QGudang From Produk Where KodeBrg = '0000000002'",
       {{500, "DUS", 24, "DUS", -48, -48}})

scenario "A selling price that rounds to nothing gives way to the price of the unit"
sale("0000000001", {{"0000000002", "1", "10"}})
expect(value "Select HargaJual From Produk Where KodeBrg = '0000000002'", 10)

scenario "A service moves no stock and costs nothing, its average cost is written all the same"
number = sale("0000000001", {{"0000000003", "2"}})
expect(sql("Select HPP, HPPRATA, Jasa From InvoiceDetail Where NoInvoice ='" .. number .. "'"), {{0, 20, true}})
expect(sql "Select OnHand, QGudang From Produk Where KodeBrg = '0000000003'", {{0, 0}})
expect(value("Select Count(*) From Persediaan Where NoRef ='" .. number .. "'"), 0)

scenario "A line of an unknown product is kept, without cost and without stock"
click "bttnNew"
number = text "TxtNoInvoice"
enter("TxtKodeCus", "0000000001")
enter("txtKodeBrg", "0000000001")
enter("txtKodeBrg", "NOSUCH")
expect(focused(), "bttnSearch")
click "bttnAddLine"
click "bttnSave"
expect(sql("Select KodeBrg, HPP, HPPRATA, Jasa From InvoiceDetail Where NoInvoice ='" .. number .. "'"),
       {{"NOSUCH", 0, 0, false}})

scenario "An unknown code that is meant creates its customer"
click "bttnNew"
enter("TxtKodeCus", "baru")
expect(focused(), "TxtKodeCus")
expect(message(), nil)
keys "{Enter}"
expect(focused(), "TxtNamaCus")
enter("TxtNamaCus", "Toko Baru")
enter("TxtAlamat1", "Jl. Baru 1")
row("OrderGrid", 1)
type("OrderGrid", "{Enter}")
line("0000000001", "1", "70000")
click "bttnSave"
expect(sql "Select NamaCus, Alamat_1, SaldoAkhir, SaldoAwal, nJTP From Customer Where KodeCus = 'BARU'",
       {{"Toko Baru", "Jl. Baru 1", 70000, 0, 0}})
