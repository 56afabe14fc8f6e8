dofile(arg[0]:match ".*/" .. "../support/shop.lua")
product{KodeBrg = "0000000001", HargaJual = 100}
customer{KodeCus = "0000000001"}
open "T01"

scenario "What is typed as a discount, shown on leaving, and stored on the line"
-- quantity, price, typed; shown on leaving; discount and netto in the grid
for _, case in ipairs{
    {"2", "100000", "15", "30,000.00", "30,000", "170,000"},
    {"1", "300", "15", "45.00", "135", "165"},    -- an amount under 100 is taken for a percentage again
    {"1", "1000", "100", "100.00", "100", "900"}, -- from 100 up it is an amount
    {"1", "1000", "99.9", "999.00", "999", "1"},
    {"1", "1000", "0", "0.00", "0", "1,000"},
    {"1", "1000", "-5", "-50.00", "-50", "1,050"},
    {"1", "1000", "abc", "0.00", "0", "1,000"},
    {"2", "1000", "2500", "2,500.00", "2,500", "-500"},
} do
    new_invoice "0000000001"
    enter("txtKodeBrg", "0000000001")
    enter("txtQty", case[1])
    enter("txtHarga", case[2])
    enter("TxtDis", case[3])
    expect(text "TxtDis", case[4])
    expect(focused(), "bttnAddLine")
    click "bttnAddLine"
    expect(cell("OrderGrid", 1, 6), case[5])
    expect(cell("OrderGrid", 1, 7), case[6])
    click "bttnCancel"
end

scenario "A percentage survives another quantity and another price"
new_invoice "0000000001"
enter("txtKodeBrg", "0000000001")
enter("txtHarga", "1000")
enter("txtQty", "2")
enter("TxtDis", "10")
expect(text "TxtDis", "200.00")
enter("txtQty", "5")
expect(text "TxtBru", "5,000")
expect(text "TxtDis", "500.00")
expect(text "TxtHrgTot", "4,500")
enter("txtHarga", "800")
expect(text "TxtDis", "400.00")
expect(text "TxtHrgTot", "3,600")
click "bttnAddLine"
expect(grid_row(1), {"0000000001", "Goods 0000000001", "5", "PCS", "800", "4,000", "400", "3,600", "1"})
expect(text "TxtSaldo", "3,600")

scenario "Leaving the tax shrinks the discount in netto and sums, not in its own column"
enter("TxtPPN", "10")
expect(focused(), "TxtKodeCus")
expect(cell("OrderGrid", 1, 6), "400")
expect(cell("OrderGrid", 1, 7), "3,840") -- 400 read as a hundredth of a percent: 4,000 x 0.04
expect(text "TxtJumDis", "160")
expect(text "txtJumTotal", "3,840")
expect(text "TxtJumNetto", "3,491")
expect(text "TxtSaldo", "3,600")
