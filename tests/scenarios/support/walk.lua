-- The shop that walks begin in: something of everything, entered through the screens where they are many.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")

insert("JenisProduk", {KodeJenisProduk = "A", JenisProduk = "Goods"})
insert("JenisCustomer", {KodeJenisCus = "RET", JenisCus = "Retail"})
insert("JenisBiaya", {KodeJenisBiaya = "001", JenisBiaya = "House"})
insert("Biaya", {KodeBiaya = "0000000001", Diskripsi = "Electricity", KodeJenisBiaya = "001"})
for i = 1, 6 do
    product{KodeBrg = string.format("%010d", i), Jasa = i == 6, HargaJual = 500 * i, PecahanJual = i % 3 == 0 and 12 or 1}
end
for i = 1, 3 do
    customer{KodeCus = string.format("%010d", i)}
    supplier{KodeSup = string.format("%010d", i)}
    account{RekID = string.format("%03d", i), DefaultKas = i == 1}
end

open "T04"
for i = 1, 3 do
    buy(string.format("%010d", i), {{"0000000001", "5", "400"}, {"0000000003", "2", "9000"}, {"0000000006", "1", "70"}})
end
click "bttnClose"
open "T01"
for i = 1, 3 do sale(string.format("%010d", i), {{"0000000001", "2"}, {"0000000003", "1"}, {"0000000006", "1"}}) end
click "bttnClose"
messages()
expect({value "Select Count(*) From Faktur", value "Select Count(*) From Invoice"}, {3, 3})
