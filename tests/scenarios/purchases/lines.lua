-- The entry line, the grid and the sums: what is asked, rounded, read twice, kept and lost.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
product{KodeBrg = "A", HargaBeli = 1000}
product{KodeBrg = "SAME", SatuanBeli = "PCS", PecahanBeli = 4, HargaBeli = 700}
product{KodeBrg = "FREE", HargaBeli = 0, HargaJual = 90, SatuanJual = "DUS", PecahanJual = 12}
supplier{KodeSup = "S1"}
open "T04"

scenario "Nothing opens while browsing"
row("OrderGrid", 1)
expect(visible "FrameIsiBarang", false)
click "bttnSearch(0)"
expect(visible "GridCari", false)

scenario "The units on offer: the first twice when the stock unit has its name, once when all have"
new_purchase "S1"
row("OrderGrid", 1)
enter("txtKodeBrg", "SAME")
expect({items "TxtSatuan", text "TxtSatuan"}, {{"PCS"}, "PCS"})
sql "Update Produk Set SatuanJual = 'DUS' Where KodeBrg = 'SAME'"
enter("txtKodeBrg", "SAME")
expect(items "TxtSatuan", {"PCS", "PCS"})

scenario "A unit prices a line that has no price, and never replaces one"
enter("txtKodeBrg", "FREE")
choose("TxtSatuan", "DUS")
keys "{Enter}"
expect(text "txtHarga", "1080")
choose("TxtSatuan", "BOX")
keys "{Enter}"
expect(text "txtHarga", "1080")

scenario "A discount below 100 is a percentage, from 100 up an amount, and a small amount a percentage again"
enter("txtKodeBrg", "A")
enter("txtQty", "10")
for typed, shown in pairs{["99.99"] = {"9,999.00", "1.00"}, ["100"] = {"100.00", "9,900.00"}, ["-5"] = {"-500.00", "10,500.00"},
                          [""] = {"0.00", "10,000.00"}, ["12500"] = {"12,500.00", "-2,500.00"}} do
    enter("TxtDis", typed)
    expect({typed, text "TxtDis", text "TxtHrgTot"}, {typed, shown[1], shown[2]})
end
enter("TxtDis", "0.5")
expect(text "TxtDis", "50.00")
click "bttnAddLine"
expect(grid_row(1), {"A", "Goods A", "10", "BOX", "1,000", "10,000", "5,000", "5,000", "12"})

scenario "What is left last rounds the gross"
row("OrderGrid", 2)
enter("txtKodeBrg", "A")
enter("txtHarga", "10.123")
enter("txtQty", "3.3")
expect(text "TxtBru", "33.41")
enter("TxtDis", "50")
expect({text "TxtBru", text "TxtDis", text "TxtHrgTot"}, {"33.00", "16.50", "16.50"})

scenario "What a line lacks, in turn"
for _, each in ipairs{{"txtQty", "x", "Enter  quantity of item with number,please..."},
                      {"txtHarga", "x", "Enter  buying price of item with number,please...."}} do
    enter(each[1], each[2])
    -- Leaving an amount recounts; what it cannot read counts as nothing.
    click "bttnAddLine"
    expect_message(each[3])
    expect(focused(), each[1])
    enter(each[1], "1")
end
type("TxtSatuan", "NONE")
click "bttnAddLine"
expect_message "Enter purchases unit, please ...."
expect(focused(), "TxtSatuan")
click "bttnBatalLine"
expect({visible "FrameIsiBarang", focused()}, {false, "OrderGrid"})

scenario "A product on two lines, when asked for"
row("OrderGrid", 2)
enter("txtKodeBrg", "a")
answer "no"
click "bttnAddLine"
local box = messages()[1]
expect({box.title, box.text}, {"Double", "This product have in tables\r\nEnter  the tables with this product again ?"})
expect({rows "OrderGrid", visible "FrameIsiBarang"}, {2, true})
answer "yes"
click "bttnAddLine"
messages()
expect(rows "OrderGrid", 3)
expect(grid_row(2), {"A", "Goods A", "1", "BOX", "1,000", "1,000", "0", "1,000", "12"})
expect(text "txtJumTotal", "6,000")

scenario "A line taken back: its price and unit are the product's again, quantity and discount stay"
row("OrderGrid", 1)
expect({caption "bttnAddLine", text "txtQty", text "txtHarga", text "TxtDis"}, {"&Edit", "10.00", "1,000.00", "5,000.00"})
enter("txtHarga", "2000")
click "bttnAddLine"
expect(grid_row(1), {"A", "Goods A", "10", "BOX", "2,000", "20,000", "5,000", "15,000", "12"})
expect({caption "bttnAddLine", text "TxtJumBru", text "TxtJumDis", text "txtJumTotal"}, {"&Add", "21,000", "5,000", "16,000"})
row("OrderGrid", 1)
enter("txtKodeBrg", "A")
expect({text "txtHarga", text "txtQty", text "TxtDis"}, {"1000", "10.00", "5,000.00"})
type("txtQty", "{Esc}")
expect(visible "FrameIsiBarang", false)

scenario "A removed row stays in the sums, and so in the header of the saved purchase"
row("OrderGrid", 1)
click "bttnBatalLine"
type("OrderGrid", "{Del}")
expect({rows "OrderGrid", text "txtJumTotal"}, {2, "16,000"})
row("OrderGrid", 2)
click "bttnBatalLine"
type("OrderGrid", "{Del}") -- the empty row that takes the next line stays
expect(rows "OrderGrid", 2)
click "bttnSave"
expect(sql "Select Bruto, Disc, Total, Saldo From Faktur", {{21000, 5000, 16000, 16000}})
expect(sql "Select KodeBrg, Total From FakturDetail", {{"A", 1000}})

scenario "The sums of the purchase before stay in the next header until a line is added"
new_purchase "S1"
expect({text "TxtJumBru", text "TxtJumNetto", text "txtJumTotal"}, {"21,000", "0", "0"})
row("OrderGrid", 1)
click "bttnBatalLine"
type("OrderGrid", "{Del}")
expect(grid_row(1), {"", "", "", "", "", "0", "0", "0", "0"})
click "bttnSave"
expect(sql "Select Bruto, Disc, Netto, Total From Faktur Where NoFaktur = '000000000200'", {{21000, 5000, 0, 0}})
expect(sql "Select KodeBrg From FakturDetail Where NoFaktur = '000000000200'", {})

scenario "A price loses its fraction in the grid, and so in the lot"
local number = buy("S1", {{"A", "3", "10.60"}})
expect(sql("Select Harga, Total From FakturDetail Where NoFaktur = '" .. number .. "'"), {{11, 32}})
expect(message(), nil)
