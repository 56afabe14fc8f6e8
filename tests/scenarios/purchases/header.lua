-- The header, the modes, the lists and the search.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
product{KodeBrg = "A", NamaBrg = "Semen", HargaBeli = 1000}
product{KodeBrg = "B", NamaBrg = "Paku", HargaBeli = 10}
supplier{KodeSup = "S1", NamaSup = "PT Satu", nJTP = 7}
supplier{KodeSup = "S2", NamaSup = "PT Dua"}
open "T04"
local first = buy("S1", {{"A", "2"}})

scenario "A number in use, a blank one, and one that is free again"
click "bttnNew"
expect(text "TxtNoFaktur", "000000000200")
enter("TxtNoFaktur", first)
expect_message "Purchases number found..."
expect({enabled "bttnSave", text "TxtKodeSup", text "txtJumTotal"}, {false, "S1", "2,000"})
enter("TxtNoFaktur", "")
expect_message "The ID should not be empty ..."
expect(focused(), "TxtNoFaktur")
enter("TxtNoFaktur", "x00000000700")
expect({enabled "bttnSave", text "TxtNoFaktur", text "TxtKodeSup", text "txtJumTotal"}, {true, "X00000000700", "", "0"})

scenario "Coming back to a free number wipes what was entered"
enter("TxtKodeSup", "S1")
purchase_line("A", "1")
expect(rows "OrderGrid", 2)
enter("TxtNoFaktur", "X00000000700")
expect({rows "OrderGrid", text "TxtKodeSup"}, {1, ""})

scenario "Due date and supplier at saving"
enter("TxtKodeSup", "S1")
clear "TxtJTP"
type("TxtJTP", "soon")
click "bttnSave"
expect_message "Enter due date with valid date ..."
expect(visible "FrameAtas", true)
focus "TxtKodeSup"
focus "txtket" -- leaving the code looks the supplier up again, and the due date with him
expect(text "TxtJTP", "11/29/2026")
enter("TxtKodeSup", "")
expect(text "TxtNamaSup", "PT Satu") -- Enter on the empty code opened the list
expect(visible "GridCari", true)
type("GridCari", "{Esc}")
enter("TxtKodeSup", "S9")
expect(text "TxtNamaSup", "")
local before = books()
click "bttnSave"
local box = messages()[1]
expect({box.text, box.icon}, {"Supplier S9 not found...", "information"})
expect(books(), before)
expect({visible "FrameBawah", text "TxtKodeSup"}, {true, ""}) -- what was entered is gone

scenario "Esc in the supplier's code gives up; a deletion given up leaves its caption"
click "bttnNew"
enter("TxtNoFaktur", "000000000200")
type("TxtKodeSup", "S1{Esc}")
expect(visible "FrameBawah", true)
click "bttnDel"
expect({caption "bttnSave", rows "OrderGrid"}, {"&Delete", 1})
enter("TxtNoFaktur", first)
click "bttnCancel"
expect({caption "bttnSave", visible "FrameBawah"}, {"&Delete", true})

scenario "Deleting what is not there, and thinking better of it"
click "bttnDel"
enter("TxtNoFaktur", "Y")
expect_message "Purchases number not found ..."
expect({caption "bttnSave", enabled "bttnSave"}, {"&Save", false})
enter("TxtNoFaktur", first)
expect({enabled "bttnSave", text "TxtKodeSup"}, {true, "S1"})
answer "no"
click "bttnSave"
expect_message "Are you sure you want delete this record ? "
expect({visible "FrameBawah", text "TxtNoFaktur", rows "OrderGrid"}, {true, first, 1})
expect(value "Select Count(*) From Faktur", 1)

scenario "Suppliers and products from their lists"
click "bttnNew"
enter("TxtNoFaktur", text "TxtNoFaktur")
click "bttnSearch(0)"
expect({rows "GridCari", cell("GridCari", 1, 0), cell("GridCari", 2, 1)}, {2, "S1", "PT Dua"})
row("GridCari", 2)
expect({text "TxtKodeSup", text "TxtNamaSup", visible "GridCari", focused()}, {"S2", "PT Dua", false, "OrderGrid"})
row("OrderGrid", 1)
type("txtKodeBrg", "{Enter}")
expect({visible "GridCari", rows "GridCari"}, {true, 2})
type("GridCari", "{Down}{Enter}")
expect({text "txtKodeBrg", text "TxtDiskripsi", focused()}, {"B", "Paku", "txtQty"})
enter("txtKodeBrg", "NONE")
expect(focused(), "bttnSearch(1)")
click "bttnBatalLine"

scenario "A supplier by name: exactly, or from those alike"
enter("TxtNamaSup", "PT Satu")
expect({text "TxtKodeSup", text "TxtJTP"}, {"S1", "11/29/2026"})
enter("TxtNamaSup", "PT")
expect({rows "GridCari", cell("GridCari", 1, 0), cell("GridCari", 2, 0)}, {2, "S2.PT Dua", "S1.PT Satu"})
row("GridCari", 1)
expect({text "TxtKodeSup", text "TxtNamaSup"}, {"S2", "PT Dua"})
click "bttnCancel"

scenario "The search"
local second = buy("S2", {{"B", "5"}})
local function found(criterion, value)
    choose("txtKreteria", criterion)
    enter("txtValue", value)
    click "cmdExecute"
    local numbers = {}
    for i = 1, rows "grdCari" do numbers[i] = cell("grdCari", i, 2) end
    return numbers
end
click "bttnFind"
for _, each in ipairs{{"ID", "0000", {first, second}}, {"Purchases Date", "11/22/2026", {first, second}},
                      {"Supplier Name", "dua", {second}}, {"Supplier ID", "S1", {first}},
                      {"Current Balance", "51", {first}}} do
    expect({each[1], found(each[1], each[2])}, {each[1], each[3]})
end
expect({cell("grdCari", 1, 0), cell("grdCari", 1, 1), cell("grdCari", 1, 3), cell("grdCari", 1, 4), cell("grdCari", 1, 5),
        cell("grdCari", 1, 6)}, {"S1", "PT Satu", "11/22/2026", "2,000", "0", "2,000"})
found("Purchases Date", "never")
expect_message "\"never\" is not a date."
found("Supplier ID", "S2")
click "cmdTutup"
expect({visible "frmCari", text "TxtNoFaktur", text "txtJumTotal"}, {false, second, "50"})

scenario "A loaded purchase shows the date that the box showed before"
sql("Update Faktur Set TglFaktur = #01/02/2020# Where NoFaktur = '" .. first .. "'")
click "bttnDel"
enter("TxtNoFaktur", first)
expect(text "TxtTglFaktur", "11/22/2026")
click "bttnCancel"

scenario "The counter carries its comma and goes on"
sql("Update Faktur Set NoFaktur = '000000099900' Where NoFaktur = '" .. second .. "'")
for _, expected in ipairs{"000001,00000", "000001,00100"} do
    expect(buy("S2", {{"B", "1"}}), expected)
end

scenario "Without the rights nothing happens"
sql "Update T_User Set Tambah = False, Hapus = False"
stop()
start()
login("varnik", "kemiri")
open "T04"
click "bttnNew"
click "bttnDel"
expect({visible "FrameBawah", text "TxtNoFaktur"}, {true, ""})
expect(message(), nil)
