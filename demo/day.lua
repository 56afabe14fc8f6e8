-- A small shop's day: products are kept, goods are sold by keyboard, the documents printed, the balances
-- shown. Runs on a fresh folder; the argument names the folder for the documents.

local documents = arg[1] or "."

now "2026-11-22 08:30:00"
start()
login("varnik", "kemiri")

scenario "Half past eight: the products"

sql "INSERT INTO JenisProduk (KodeJenisProduk, JenisProduk) VALUES ('FOO', 'Food')"
sql "INSERT INTO JenisProduk (KodeJenisProduk, JenisProduk) VALUES ('HOU', 'Household')"
sql "INSERT INTO JenisProduk (KodeJenisProduk, JenisProduk) VALUES ('SRV', 'Services')"

local products = {
    { name = "RICE 5 KG",       type = "FOO", unit = "BAG", per = "1",  sell = "BAG",  price = "68000" },
    { name = "COOKING OIL 1 L", type = "FOO", unit = "BTL", per = "1",  sell = "BTL",  price = "19500" },
    { name = "INSTANT NOODLES", type = "FOO", unit = "PCS", per = "40", sell = "BOX",  price = "112000" },
    { name = "LAUNDRY SOAP",    type = "HOU", unit = "PCS", per = "1",  sell = "PCS",  price = "23500" },
    { name = "DELIVERY",        type = "SRV", per = "1",    sell = "TRIP", price = "15000", service = true },
}

open "F01"
for _, product in ipairs(products) do
    click "bttnAdd"
    type("txtKode", "{Enter}") -- the code as proposed
    enter("txtNama", product.name)
    enter("TxtJenis", product.type)
    if product.service then
        check("Check1", true)
    else
        enter("TxtSatuan", product.unit)
    end
    enter("TxtPecahanJual", product.per)
    enter("TxtSatuanJual", product.sell)
    enter("TxtHargaJual", product.price)
    click "bttnOK"
end
expect(#sql "Select KodeBrg From Produk", #products)
click "bttnClose"

-- The goods came in before this day; each delivery is a lot.
local deliveries = { { "0000000001", 60, 1, 61000 }, { "0000000002", 100, 1, 16500 },
                     { "0000000003", 20, 40, 98000 }, { "0000000004", 50, 1, 20000 } }
for number, delivery in ipairs(deliveries) do
    local code, quantity, per, price = table.unpack(delivery)
    local base, total = quantity * per, quantity * price
    local lot = string.format("%010d00", number)
    sql("INSERT INTO FakturDetail (NoFaktur, TglFaktur, KodeSup, KodeBrg, Diskripsi, Qty, Qty2, Satuan, Harga, Disc, "
        .. "Total, Jasa, QtyOrder, QtyRetur, QtySisa) VALUES ('" .. lot .. "', #11/20/2026#, '', '" .. code .. "', '', "
        .. quantity .. ", " .. per .. ", '', " .. price .. ", 0, " .. total .. ", False, 0, 0, " .. base .. ")")
    sql("INSERT INTO Persediaan (NoJurnal, NoRef, Tanggal, KodeBrg, Memo, Harga1, Harga2, Pecahan, Qty1, Qty2, Saldo, "
        .. "QtySisa) VALUES ('11', '" .. lot .. "', #11/20/2026#, '" .. code .. "', 'Delivery', " .. total / base
        .. ", 0, " .. per .. ", " .. base .. ", 0, " .. base .. ", " .. base .. ")")
    sql("UPDATE Produk SET OnHand = " .. base .. ", QGudang = " .. base .. ", HPPRata = " .. total / base
        .. " WHERE KodeBrg = '" .. code .. "'")
end

open "F01"
click "bttnPrint"
local list = report()
list:pdf(documents .. "/products.pdf")
local file = io.open(documents .. "/products.txt", "w")
file:write(list:text())
file:close()
list:close()
use "fProduk"
click "bttnClose"

scenario "The sales of the day"

local function sale(customer, name, tax, lines)
    click "bttnNew"
    local number = text "TxtNoInvoice"
    type("TxtNoInvoice", "{Enter}{Enter}{Enter}{Enter}") -- number, date, order and due date as proposed
    enter("TxtPPN", tax)
    enter("TxtKodeCus", customer)
    if text "TxtNamaCus" == "" then
        -- A code that nobody knows yet becomes a customer when the sale is saved.
        type("TxtKodeCus", "{Enter}")
        enter("TxtNamaCus", name)
    end
    for _, line in ipairs(lines) do
        doubleclick("OrderGrid", rows "OrderGrid")
        type("txtKodeBrg", line[1])
        enter("txtQty", line[2])
        if line[3] then enter("TxtDis", line[3]) end
        click "bttnAddLine"
    end
    click "bttnSave"
    click "bttnPrint"
    local invoice = report()
    invoice:pdf(documents .. "/invoice-" .. number .. ".pdf")
    local printed = io.open(documents .. "/invoice-" .. number .. ".txt", "w")
    printed:write(invoice:text())
    printed:close()
    invoice:close()
    use "Invoice"
end

open "T01"
now "2026-11-22 09:15:00"
sale("C001", "Warung Melati", "11", { { "0000000001", "3" }, { "0000000003", "2", "5" } })
now "2026-11-22 11:40:00"
sale("C002", "Ibu Sari", "0", { { "0000000002", "12" }, { "0000000004", "4" }, { "0000000005", "1" } })
now "2026-11-22 15:05:00"
sale("C001", "Warung Melati", "11", { { "0000000004", "10", "10000" } })

scenario "The evening: what the books say"

local function show(title, rows)
    print("\n" .. title)
    for _, row in ipairs(rows) do
        local cells = {}
        for column, cell in ipairs(row) do cells[column] = tostring(cell) end
        print("  " .. table.concat(cells, "  |  "))
    end
end
show("Customers: what they owe", sql "Select KodeCus, NamaCus, SaldoAkhir From Customer Order By KodeCus")
show("Products: on hand", sql "Select KodeBrg, NamaBrg, OnHand From Produk Order By KodeBrg")
show("Lots: what is left", sql "Select NoFaktur, KodeBrg, QtySisa From FakturDetail")
show("Invoices: amount and cost of goods", sql("Select NoInvoice, Sum(Total) As Amount, Sum(HPP) As Cost "
     .. "From InvoiceDetail Group By NoInvoice"))

expect(#sql "Select NoInvoice From Invoice", 3)
expect(sql "Select Sum(SaldoAkhir) As Owed From Customer", sql "Select Sum(Saldo) As Owed From Invoice")
stop()
