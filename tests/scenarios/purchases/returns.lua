-- Goods that go back to the supplier: picking the purchase, cutting down lines, posting and its way back.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
product{KodeBrg = "A", NamaBrg = "Semen", SatuanBeli = "DUS", PecahanBeli = 10}
product{KodeBrg = "B", NamaBrg = "Paku", SatuanBeli = "PCS", PecahanBeli = 1}
product{KodeBrg = "S", NamaBrg = "Antar", Jasa = true, SatuanBeli = "KALI", PecahanBeli = 1}
supplier{KodeSup = "S1", NamaSup = "PT Satu"}
open "T04"
local earlier = buy("S1", {{"B", "2", "100"}}) -- its number will be that of the first return
local bought = buy("S1", {{"A", "3", "1000"}, {"B", "10", "50"}, {"S", "1", "70"}})
open "T06"

local function stock(code)
    return sql("Select OnHand, QGudang, HPPRata From Produk Where KodeBrg = '" .. code .. "'")[1]
end
local function lot(number, code)
    return sql("Select QtySisa, QtyRetur From FakturDetail Where NoFaktur = '" .. number .. "' And KodeBrg = '" .. code .. "'")[1]
end
local function open_row(number, code)
    return value("Select QtySisa From Persediaan Where NoJurnal = '11' And NoRef = '" .. number .. "' And KodeBrg = '" .. code .. "'")
end
local function new_return(number)
    click "bttnNew"
    enter("TxtNoFaktur", text "TxtNoFaktur")
    enter("txtNoPO", number)
    return text "TxtNoFaktur"
end

scenario "An empty table clears the screen; a search without a hit says so"
expect({caption(), enabled "bttnAddLine"}, {"Purchases Return", false})
click "bttnLast"
expect(text "TxtNoFaktur", "")
click "bttnFind"
local box = messages()[1]
expect({box.title, box.text}, {"Not Found ", "The number searched still be empty or not found.  Please type the  number  for searching ..."})

scenario "A purchase that is not there, and one that fills the screen"
click "bttnNew"
expect({text "TxtNoFaktur", enabled "bttnNext"}, {"000000000100", false})
enter("TxtNoFaktur", "")
expect_message "The ID should not be empty. Enter a value ..."
enter("TxtNoFaktur", "000000000100")
answer "yes"
enter("txtNoPO", "X")
expect(messages()[1].text, "Unable to find purcahses id \r\nSearching for others id ? ")
expect(focused(), "txtNoPO")
answer "no"
enter("txtNoPO", "X")
messages()
expect(focused(), "TxtTglPO")
enter("TxtTglPO", "")
expect_message "The Date should not be empty. Enter a value ..."
enter("txtNoPO", bought)
expect({text "TxtTglPO", text "TxtKodeSup", text "TxtNamaSup", text "txtAlamat2"}, {"11/22/2026", "S1", "PT Satu", "Gudang 3"})
expect({text "TxtJumBru", text "TxtJumNetto", text "txtJumTotal"}, {"3,570", "3,570", "3,570"})
expect(grid_row(1), {"A", "Semen", "3", "DUS", "1,000.00", "3,000.00", "0.00", "3,000.00", "10"})
expect(rows "OrderGrid", 3)

scenario "A quantity is cut down; what is no number, or not of the purchase, changes nothing"
row("OrderGrid", 1)
expect({caption "bttnAddLine", focused(), text "txtQty"}, {"&Edit", "txtQty", "3.00"})
enter("txtQty", "2")
expect({focused(), text "TxtBru", text "TxtHrgTot"}, {"bttnAddLine", "2,000", "2,000"})
clear "txtHarga"
click "bttnAddLine"
expect(visible "FrameIsiBarang", true)
enter("txtHarga", "1000")
enter("txtKodeBrg", "C")
click "bttnAddLine"
expect(visible "FrameIsiBarang", true)
enter("txtKodeBrg", "A")
click "bttnAddLine"
expect({grid_row(1), text "txtJumTotal"}, {{"A", "Semen", "2", "DUS", "1,000.00", "2,000.00", "0", "2,000.00", "10"}, "2,570"})

scenario "A discount is a percentage here, and the quantity divides it once more"
row("OrderGrid", 2)
enter("TxtDis", "10")
click "bttnAddLine"
expect({cell("OrderGrid", 2, 6), cell("OrderGrid", 2, 7), text "TxtJumDis", text "txtJumTotal"}, {"10", "450.00", "50", "2,520"})
row("OrderGrid", 2)
clear "txtQty"
type("txtQty", "4{Enter}")
expect({text "TxtDis", text "TxtBru"}, {"0.00", "200"})
click "bttnAddLine"
expect({cell("OrderGrid", 2, 2), cell("OrderGrid", 2, 7), text "txtJumTotal"}, {"4", "200.00", "2,270"})

scenario "A removed row is not returned, yet counts in the sum"
row("OrderGrid", 3)
click "bttnBatalLine"
type("OrderGrid", "{Del}")
expect({rows "OrderGrid", text "txtJumTotal"}, {3, "2,270"}) -- the empty row comes in its place

scenario "Dates at saving, and thinking better of it"
enter("TxtTglFaktur", "x")
click "bttnSave"
expect_message "Invalid date formats\r\nexample 11/22/2026"
enter("TxtTglFaktur", "11/23/2026")
enter("TxtTglPO", "x")
click "bttnSave"
expect_message "Invalid date format\r\nExample 11/22/2026"
expect(enabled "bttnSave", true)
enter("TxtTglPO", "11/22/2026")

scenario "The return in the books"
local before = books()
enter("txtket", "Rusak")
answer "yes"
click "bttnSave"
expect(messages()[1].text, "Are you sure you want  to save this pusrchases returns ? ")
expect(sql "Select NoFaktur, NoPO, TglFaktur, TglPO, KodeSup, Ket, Bruto, Disc, Netto, Total, Bayar, Saldo, NoUser, TglCetak From FakturRetur",
       {{"000000000100", bought, "2026-11-23", "2026-11-22", "S1", "Rusak", 2270, 0, 2270, 2270, 0, 2270, "00", "11/23/2026"}})
expect(sql "Select NoFaktur, KodeBrg, Qty, Qty2, Satuan, Harga, Disc, Total From FakturReturDetail",
       {{"000000000100", "A", 2, 10, "DUS", 1000, 0, 2000}, {"000000000100", "B", 4, 1, "PCS", 50, 0, 200}})
expect(sql("Select Bayar, Saldo From Faktur Where NoFaktur = '" .. bought .. "'"), {{2270, 1300}})
expect(value "Select SaldoAkhir From Supplier", 200 + 3570 - 2270)
expect({stock "A", stock "B"}, {{10, 10, 100}, {8, 8, (700 / 12 * 12 - 200) / 8}})
expect({lot(bought, "A"), lot(bought, "B")}, {{10, 20}, {6, 4}})
-- The ledger's open row is looked for under the return's number, so an earlier purchase's is lowered.
expect({open_row(bought, "A"), open_row(bought, "B"), open_row(earlier, "B")}, {30, 10, -2})
expect(sql "Select NoRef, Tanggal, Memo, KodeBrg, Satuan, Pecahan, Qty1, Harga1, QtySisa, Qty2, Harga2, Saldo From Persediaan Where NoJurnal = '21'",
       {{"000000000100", "2026-11-23", "Rusak", "A", "DUS", 10, -20, 100, 0, 0, 0, 10},
        {"000000000100", "2026-11-23", "Rusak", "B", "PCS", 1, -4, 50, 0, 0, 0, 8}})
expect({visible "FrameBawah", enabled "bttnAddLine", text "TxtNoFaktur"}, {true, false, "000000000100"})

scenario "The return on paper"
click "bttnPrint"
for _, shown in ipairs{"000000000100", bought, "PT Satu", "Semen", "Paku"} do
    expect({shown, report():text():find(shown, 1, true) ~= nil}, {shown, true})
end
report():close()

scenario "A number in use, and one that is not there"
click "bttnNew"
expect(text "TxtNoFaktur", "000000000200")
enter("TxtNoFaktur", "000000000100")
expect_message "This ID already exist ..."
enter("txtNoPO", bought)
answer "yes"
click "bttnSave"
messages()
expect(#sql "Select NoFaktur From FakturRetur", 1)
click "bttnDel"
enter("TxtNoFaktur", "Y")
expect_message "Unable to find record ..."
expect(caption "bttnSave", "&Save")
click "bttnCancel"
messages()

scenario "The deletion: this remains"
click "bttnDel"
enter("TxtNoFaktur", "000000000100")
expect({grid_row(1)[3], text "txtNoPO", text "txtJumTotal"}, {"2", bought, "2,270"})
answer "no"
click "bttnSave"
expect(messages()[1].text, "000000000100 will be delete ? ")
expect(#sql "Select NoFaktur From FakturRetur", 1)
click "bttnDel"
enter("TxtNoFaktur", "000000000100")
answer "yes"
click "bttnSave"
messages()
expect(differences(before, books()), {
    "Persediaan 4", "Persediaan.1.16: 2 -> -2", -- the row that the posting took for the purchase's
    "Persediaan.2.16: 30 -> 50", "Persediaan.3.16: 10 -> 14", -- raised though nothing had lowered them
})
expect(sql "Select NoRef, Tanggal, Memo, KodeBrg, Qty1, Harga1, Saldo From Persediaan Where NoJurnal = '22'",
       {{"000000000100", "2026-11-23", "PURCAHSES RETURN (DELETE) NO 000000000100", "A", 20, 100, 30},
        {"000000000100", "2026-11-23", "PURCAHSES RETURN (DELETE) NO 000000000100", "B", 4, 50, 12}})
expect({text "TxtNoFaktur", caption "bttnSave"}, {"", "&Save"})

scenario "More than was bought goes back all the same"
new_return(bought)
row("OrderGrid", 1)
enter("txtQty", "4")
click "bttnAddLine"
for _ = 1, 2 do
    row("OrderGrid", 2)
    click "bttnBatalLine"
    type("OrderGrid", "{Del}")
end
answer "yes"
click "bttnSave"
messages()
expect({stock "A", lot(bought, "A")}, {{-10, -10, 100}, {-10, 40}})
expect(value("Select Saldo From Faktur Where NoFaktur = '" .. bought .. "'"), 3570 - 4570)

scenario "A return when nothing is on hand sets the average to nothing; the return walks with the buttons"
new_return(bought)
answer "yes"
click "bttnSave"
messages()
expect(stock "A", {-40, -40, 0})
click "bttnFirst"
expect(text "TxtNoFaktur", "000000000100")
click "bttnPrev"
expect(text "TxtNoFaktur", "000000000100")
click "bttnNext"
expect({text "TxtNoFaktur", rows "OrderGrid", text "txtket"}, {"000000000200", 3, ""})
click "bttnNext"
expect(text "TxtNoFaktur", "000000000200")
clear "TxtNoFaktur"
type("TxtNoFaktur", "1")
click "bttnFind"
expect(text "TxtNoFaktur", "000000000100")

scenario "A return given up"
click "bttnDel"
enter("TxtNoFaktur", "000000000200")
click "bttnCancel"
expect({text "TxtNoFaktur", caption "bttnSave", cell("OrderGrid", 1, 2)}, {"000000000200", "&Delete", "3"})
