dofile(arg[0]:match ".*/" .. "../support/shop.lua")
-- The same unit is sold and kept; bought by the box.
product{KodeBrg = "0000000001", HargaJual = 1000, SatuanJual = "PCS", Satuan = "pcs ", PecahanJual = 1, Pecahan = 7}
product{KodeBrg = "0000000002", HargaJual = 500, SatuanJual = "DUS", PecahanJual = 12, Satuan = "PCS", SatuanBeli = "PETI",
        PecahanBeli = 144}
product{KodeBrg = "0000000003", HargaJual = 900, Jasa = true}
customer{KodeCus = "0000000001"}
open "T01"

scenario "Nothing can be entered while browsing"
expect(visible "FrameIsiBarang", false)
doubleclick("OrderGrid", 1)
type("OrderGrid", "{Enter}")
expect(visible "FrameIsiBarang", false)

scenario "The units on offer: the first twice when the second is named like it, the third is lost"
new_invoice "0000000001"
enter("txtKodeBrg", "0000000001")
expect(items "TxtSatuan", {"PCS", "pcs "})
enter("txtKodeBrg", "0000000002")
expect(items "TxtSatuan", {"DUS", "PCS", "PETI"})
expect(text "TxtSatuan", "DUS")

scenario "Another unit changes neither price nor amounts; the line holds its base units"
enter("txtQty", "2")
choose("TxtSatuan", "PETI")
expect(text "txtHarga", "500")
expect(text "TxtBru", "1,000")
click "bttnAddLine"
expect(grid_row(1), {"0000000002", "Goods 0000000002", "2", "PETI", "500", "1,000", "0", "1,000", "144"})

scenario "A product that stands in the grid: No keeps the entry line, Yes adds up quantity and price"
line("0000000001", "1")
row("OrderGrid", 3)
type("OrderGrid", "{Enter}")
enter("txtKodeBrg", "0000000002")
enter("txtQty", "3")
answer "no"
click "bttnAddLine"
expect(messages()[1], {text = "This product always on table ,\r\nAdded again?", title = "Double", icon = "question",
                       buttons = "yes no"})
expect(text "txtQty", "3")
expect(visible "FrameIsiBarang", true)
expect(rows "OrderGrid", 3)
answer "yes"
click "bttnAddLine"
messages()
expect(rows "OrderGrid", 3)
expect(grid_row(1), {"0000000002", "Goods 0000000002", "5", "PETI", "1,000", "2,500", "0", "2,500", "144"})
expect(text "txtJumTotal", "3,500")

scenario "A line taken back: quantity and discount stay, unit and price come from the product again"
doubleclick("OrderGrid", 1)
expect(caption "bttnAddLine", "&Edit")
expect(focused(), "txtKodeBrg")
expect(text "txtQty", "5")
expect(text "txtHarga", "1,000")
expect(text "TxtSatuan", "PETI")
keys "{Enter}"
expect(text "txtQty", "5")
expect(text "txtHarga", "500")
expect(text "TxtSatuan", "DUS")
enter("txtQty", "4")
click "bttnAddLine"
expect(grid_row(1), {"0000000002", "Goods 0000000002", "4", "DUS", "500", "2,000", "0", "2,000", "12"})
expect(caption "bttnAddLine", "&Add")
expect(text "txtJumTotal", "3,000")
expect(focused(), "OrderGrid")
expect(currentrow "OrderGrid", 3)

scenario "What cannot be a line goes back to the field at fault"
type("OrderGrid", "{Enter}")
expect(caption "bttnAddLine", "&Add")
enter("txtKodeBrg", "0000000003")
expect(checked "Check2", true)
for _, case in ipairs{{"txtQty", "two", "2"}, {"txtHarga", "much", "900"}, {"TxtSatuan", "LITER", "PCS"}} do
    enter(case[1], case[2])
    click "bttnAddLine"
    expect(focused(), case[1])
    expect(rows "OrderGrid", 3)
    enter(case[1], case[3])
end
keys "{Esc}"
expect(visible "FrameIsiBarang", false)
expect(text "txtKodeBrg", "")
expect(text "txtQty", "0")

scenario "F2 goes back a field, through the discount too"
type("OrderGrid", "{Enter}")
enter("txtKodeBrg", "0000000001")
enter("TxtDis", "10")
keys "{F2}"
expect(focused(), "TxtDis")
keys "{F2}{F2}{F2}{F2}"
expect(focused(), "TxtDiskripsi")
keys "{Esc}"

scenario "Delete blanks a row and leaves the sums; the row stays"
row("OrderGrid", 2)
type("OrderGrid", "{Del}")
expect(rows "OrderGrid", 3)
expect(grid_row(2), {"", "", "0", "", "0", "0", "0", "0", "0"})
expect(text "txtJumTotal", "3,000")

scenario "Another size of the screen brings other headings"
expect(cell("OrderGrid", 0, 6), "DISC (%)")
resize(1.5, 1.2)
local headings = {}
for column = 0, 8 do headings[column + 1] = cell("OrderGrid", 0, column) end
expect(headings, {"ID", "DISCRIPTION", "QTY", "UNIT", "PRICE", "BRUTO", "DIS", "TOTAL", "QTY @"})
