dofile(arg[0]:match ".*/" .. "../support/shop.lua")
customer{KodeCus = "0000000001", NamaCus = "Toko Maju"}
open "T01"

local function ledger(number)
    return sql("Select NoJurnal, Qty1, Harga1, Qty2, Harga2, QtySisa, Saldo From Persediaan Where NoRef = '" .. number .. "'")
end
local function drawn(number)
    return sql("Select NoPO, KodeBrg, Qty, Harga From PersediaanJual Where NoInvoice = '" .. number .. "'")
end
local function lots(code)
    return sql("Select QtySisa From FakturDetail Where KodeBrg = '" .. code .. "'")
end
local function stock(code)
    return sql("Select OnHand, QGudang From Produk Where KodeBrg = '" .. code .. "'")[1]
end
local function cost(number)
    return sql("Select HPP, HPPRATA From InvoiceDetail Where NoInvoice = '" .. number .. "'")[1]
end

scenario "25 out of lots of 10 and 30: the older lot first, each at its own cost"
product{KodeBrg = "0000000001", NamaBrg = "Semen", HargaJual = 1000, HPPRata = 110}
purchase("P00000000100", "0000000001", 10, 1000)
purchase("P00000000200", "0000000001", 30, 3600)
local both = sale("0000000001", {{"0000000001", "25"}})
expect(cost(both), {2800, 2750})
expect(ledger(both), {{"31", 0, 0, 10, 100, 0, 30}, {"31", 0, 0, 15, 120, 0, 15}})
expect(drawn(both), {{"P00000000100", "0000000001", 10, 100}, {"P00000000200", "0000000001", 15, 120}})
expect(lots "0000000001", {{0}, {15}})
expect(sql "Select NoRef, QtySisa From Persediaan Where NoJurnal = '11'", {{"P00000000100", 0}, {"P00000000200", 15}})
expect(sql("Select Memo, NamaBrg, JenisBrg, Satuan, Pecahan From Persediaan Where NoRef = '" .. both .. "'")[1],
       {"Sales Inv No. " .. both .. " Cus. Toko Maju", "Semen", "A", "PCS", 1})
expect(stock "0000000001", {15, 15})

scenario "Its deletion gives every lot its own quantity back; both movements stay in the ledger"
delete_invoice(both)
expect(lots "0000000001", {{10}, {30}})
expect(ledger(both), {{"31", 0, 0, 10, 100, 0, 30}, {"31", 0, 0, 15, 120, 0, 15},
                      {"32", 10, 100, 0, 0, 0, 25}, {"32", 15, 120, 0, 0, 0, 40}})
expect(value("Select Memo From Persediaan Where NoJurnal = '32'"),
       "Sales (DELETED) Inv No. " .. both .. " Cus. Toko Maju 0000000001")
expect(drawn(both), {})
expect(stock "0000000001", {40, 40})

scenario "A lot is drawn to nothing and then passed over"
sale("0000000001", {{"0000000001", "10"}})
local next_sale = sale("0000000001", {{"0000000001", "1"}})
expect(drawn(next_sale), {{"P00000000200", "0000000001", 1, 120}})
expect(lots "0000000001", {{0}, {29}})

scenario "Beyond the lots there is no cost and no trace, the stock goes below zero all the same"
product{KodeBrg = "0000000002", HargaJual = 1000}
local bare = sale("0000000001", {{"0000000002", "5"}})
expect(cost(bare), {0, 0})
expect(ledger(bare), {})
expect(stock "0000000002", {-5, -5})
purchase("P00000000300", "0000000002", 4, 400)
local short = sale("0000000001", {{"0000000002", "6"}})
expect(cost(short), {400, 0})
expect(drawn(short), {{"P00000000300", "0000000002", 4, 100}})
expect(stock "0000000002", {-7, -7})

scenario "Two units of twelve"
product{KodeBrg = "0000000003", HargaJual = 9000, SatuanJual = "DUS", PecahanJual = 12}
purchase("P00000000400", "0000000003", 100, 50000)
local dozens = sale("0000000001", {{"0000000003", "2"}})
expect(cost(dozens), {12000, 0})
expect(ledger(dozens), {{"31", 0, 0, 24, 500, 0, 76}})
expect(value "Select Pecahan From Persediaan Where NoJurnal = '31' And KodeBrg = '0000000003'", 12)
expect(value "Select HargaJual From Produk Where KodeBrg = '0000000003'", 750)

scenario "A lot whose purchase is gone gets nothing back, and the trace goes all the same"
sql "Delete From FakturDetail Where NoFaktur = 'P00000000400'"
sql "Delete From Persediaan Where NoRef = 'P00000000400'"
delete_invoice(dozens)
expect(drawn(dozens), {})
expect(stock "0000000003", {100, 100})
expect(message(), nil)
