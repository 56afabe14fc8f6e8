-- Expenses with several lines: one row a line under one number, each with the sum of the whole payment.
dofile(arg[0]:match ".*/" .. "../support/receipts.lua")
account{RekID = "1", NamaBank = "Cash", NoRek = "", NamaPemilik = "", SaldoAkhir = 1000}
account{RekID = "22", NamaBank = "Bank Nusa", NoRek = "123-456", NamaPemilik = "Kopi Kita"}
insert("JenisBiaya", {KodeJenisBiaya = "001", JenisBiaya = "Wages"})
insert("JenisBiaya", {KodeJenisBiaya = "002", JenisBiaya = "Transport"})
insert("Biaya", {KodeBiaya = "0000000001", Diskripsi = "Daily wages", KodeJenisBiaya = "001"})
insert("Biaya", {KodeBiaya = "0000000002", Diskripsi = "Fuel", KodeJenisBiaya = "002"})
insert("Biaya", {KodeBiaya = "0000000003", Diskripsi = "Tolls / parking", KodeJenisBiaya = "002"})
open "T09"

local function line(cost, amount)
    enter("TxtBiaya", cost)
    enter("TxtJumlah", amount)
    click "bttnAddLine"
end
local function pay(account, costs)
    click "bttnNew"
    local number = text "txtNoBukti"
    choose("TxtCaraBayar", "CASH")
    if account then enter("TxtRekening", account) end
    for _, each in ipairs(costs) do line(table.unpack(each)) end
    return number
end
local function remove(number)
    click "bttnDel"
    enter("txtNoBukti", number)
    click "bttnSave"
end
local function balance(account) return value("Select SaldoAkhir From Bank Where RekID = '" .. account .. "'") end
local none = {"", "", "", ""}

scenario "A cost brings its type, a line goes into the grid, the entry line is empty again"
expect({caption(), enabled "FrameIsiBarang"}, {"Other Payments - Varnik", false})
expect(items "TxtRekening", {"1 / Cash", "22 / Bank Nusa - 123-456 - Kopi Kita"})
expect(items "TxtBiaya", {"0000000001 / Daily wages", "0000000002 / Fuel", "0000000003 / Tolls / parking"})
expect(items "TxtJenisBiaya", {"001 / Wages", "002 / Transport"})
expect(lines(4), {none})
expect({cell("OrderGrid", 0, 0), cell("OrderGrid", 0, 1), cell("OrderGrid", 0, 2), cell("OrderGrid", 0, 3)},
       {"Cost ID", "Type ID", "Cost Description", "Amount"})
click "bttnNew"
expect({enabled "FrameIsiBarang", focused(), text "txtNoBukti"}, {true, "txtNoBukti", "000000000100"})
enter("TxtCaraBayar", "cash")
enter("TxtRekening", "1")
enter("TxtNamaPenerima", "Pak Udin")
choose("TxtBiaya", "0000000001")
expect(text "TxtJenisBiaya", "001 / Wages")
enter("TxtBiaya", "0000000003")
expect({text "TxtBiaya", text "TxtJenisBiaya", focused()}, {"0000000003 / Tolls / parking", "002 / Transport", "TxtJenisBiaya"})
clear "TxtJumlah"
click "bttnAddLine"
expect(lines(4), {none})
enter("TxtJumlah", "100.5a")
expect(text "TxtMemo", "")
click "bttnAddLine"
expect(lines(4), {{"0000000003", "002", "Tolls / parking", "100.50"}, none})
expect({text "TxtMemo", text "TxtBiaya", text "TxtJenisBiaya", text "TxtJumlah", focused()}, {"PAYMENT ", "", "", "0", "TxtBiaya"})
for _, case in ipairs{
    {"", "001", "Cost is not registered ...", "TxtBiaya"},
    {"0000000009", "001", "Cost is not registered ...", "TxtBiaya"},
    {"0000000001", "009", "Cost type is not registered ...", "TxtJenisBiaya"},
} do
    enter("TxtBiaya", case[1])
    enter("TxtJenisBiaya", case[2])
    click "bttnAddLine"
    expect_message(case[3])
    expect({focused(), rows "OrderGrid"}, {case[4], 2})
end
click "cmdBatalLine"
expect({text "TxtBiaya", text "TxtJenisBiaya", text "TxtJumlah"}, {"", "", "0"})

scenario "The same cost twice is asked about once for each row that has it; another type is another cost"
line("0000000001", "1200")
answer "no"
line("0000000001", "7")
local asked = messages()[1]
expect({asked.text, asked.title}, {"This cost have in table,\r\nAdded again ?", "Double"})
expect({rows "OrderGrid", text "TxtJumlah"}, {3, "7"})
answer "yes"
click "bttnAddLine"
messages()
answer("yes", "no")
line("0000000001", "8")
expect(#messages(), 2)
enter("TxtJenisBiaya", "002")
click "bttnAddLine"
expect(message(), nil)
expect(lines(4), {{"0000000003", "002", "Tolls / parking", "100.50"}, {"0000000001", "001", "Daily wages", "1,200.00"},
                 {"0000000001", "001", "Daily wages", "7.00"}, {"0000000001", "002", "Daily wages", "8.00"}, none})
expect(caption "lblJumBAYAR", "1,315.50")

scenario "A row is changed where it stands, given up, or taken away"
row("OrderGrid", 2)
expect({caption "bttnAddLine", text "TxtBiaya", text "TxtJenisBiaya", text "TxtJumlah"},
       {"&Edit", "0000000001 / Daily wages", "001 / Wages", "1,200.00"})
enter("TxtJumlah", "300")
click "bttnAddLine"
expect({caption "bttnAddLine", lines(4)[2][4], caption "lblJumBAYAR"}, {"&Add", "300.00", "415.50"})
row("OrderGrid", 4)
expect(text "TxtJenisBiaya", "002 / Transport")
type("TxtJumlah", "{Esc}")
expect({caption "bttnAddLine", lines(4)[4][4]}, {"&Add", "8.00"})
row("OrderGrid", 4)
type("OrderGrid", "{Del}")
row("OrderGrid", 3)
type("OrderGrid", "{Enter}")
expect({focused(), caption "bttnAddLine"}, {"TxtJumlah", "&Edit"})
enter("TxtJumlah", "0")
click "bttnAddLine"
row("OrderGrid", 4)
expect({rows "OrderGrid", caption "lblJumBAYAR", caption "bttnAddLine", text "TxtBiaya"}, {4, "400.50", "&Add", ""})

scenario "Each line is a row with the sum of all; the account moves by the whole sum, to the fraction; nothing is a line of zero"
local before = books()
click "bttnSave"
expect(message(), nil)
expect(differences(before, books()), {"BKK +2", "Bank 1.SaldoAkhir: 1000 -> 599.5"})
expect(sql [[Select NoBKK, TglBKK, CaraBayar, Keterangan, Penerima, RekID, NoCek, Jumlah, KodeBiaya, KodeJenisBiaya,
             JumlahBiaya, Terbilang, TglJTP From BKK]],
       {{"000000000100", "2026-11-22", "CASH", "PAYMENT ", "Pak Udin", "1", "", 400.5, "0000000003", "002", 100.5,
         "Four Hundred One", "2026-11-22"},
        {"000000000100", "2026-11-22", "CASH", "PAYMENT ", "Pak Udin", "1", "", 400.5, "0000000001", "001", 300,
         "Four Hundred One", "2026-11-22"}})
expect({visible "FrameBawah", enabled "FrameIsiBarang"}, {true, false})
row("OrderGrid", 1)
type("OrderGrid", "{Del}")
expect(rows "OrderGrid", 4)

scenario "On paper: every line, their sum, the sum in words"
sql "Update Company Set NamaPerusahaan = 'Kopi Kita', Ket1 = '', Ket2 = '', Ket3 = ''"
click "bttnPrint"
local paper = report():text()
for _, words in ipairs{"PAYMENT", "000000000100", "Pak Udin", "Daily wages", "Tolls / parking", "300.00", "400.50",
                       "Four Hundred One"} do
    expect({words, paper:find(words, 1, true) ~= nil}, {words, true})
end
expect({report().rows, paper:find "Cheque no", report().state}, {2, nil, 2})
report():close()

scenario "What is missing is asked for in this order; nothing is written, nothing typed is lost"
before = books()
click "bttnNew"
for _, case in ipairs{
    {"Payment total equal to zero. There are no payment...", "TxtBiaya", function() line("0000000002", "50") end},
    {"Payment type should not be empty ...", "TxtCaraBayar", function() enter("TxtCaraBayar", "CASH") end},
    {"Account Cash or bank  should not be empty ...", "TxtRekening", function() enter("TxtRekening", "7") end},
    {"Account Cash or bank is not registered ...", "TxtRekening", function() choose("TxtCaraBayar", "CHEQUE") end},
    {"Number cheque can not be empty...", "TxtNoCek", function() enter("TxtNoCek", "C-9") end},
    {"Account cash or bank not found ...", "TxtRekening", function() choose("TxtRekening", "22") end},
} do
    click "bttnSave"
    expect_message(case[1])
    expect({focused(), visible "FrameAtas", differences(before, books())}, {case[2], true, {}})
    case[3]()
end
date("TxtTglJTP", "2026-12-24")
click "bttnSave"
expect(differences(before, books()), {"BKK +1", "Bank 2.SaldoAkhir: 0 -> -50"})
expect(sql "Select NoBKK, CaraBayar, RekID, NoCek, TglJTP From BKK Where RekID = '22'",
       {{"000000000200", "CHEQUE", "22", "C-9", "2026-12-24"}})

scenario "A number that stands is shown instead; one that does not is told"
click "bttnNew"
enter("txtNoBukti", "000000000100")
expect_message "Double payment number ..."
expect({visible "FrameBawah", text "TxtRekening", text "TxtNamaPenerima", caption "lblJumBAYAR"}, {true, "1 / Cash", "Pak Udin", "400.50"})
-- The type is that of the cost, not that of the line.
expect(lines(4), {{"0000000003", "002", "Tolls / parking", "100.50"}, {"0000000001", "001", "Daily wages", "300.00"}, none})
enter("txtNoBukti", "4711")
expect_message "Item with this code is not found ..."
expect({text "txtNoBukti", text "TxtNamaPenerima", rows "OrderGrid"}, {"4711", "", 1})
click "bttnDel"
expect({visible "FrameIsiBarang", caption "bttnSave", text "txtNoBukti"}, {false, "&Delete", ""})
click "bttnSave"
expect_message "Enter  the id of payment,please ... "
expect({visible "FrameBawah", visible "FrameIsiBarang", caption "bttnSave"}, {true, true, "&Save"})

scenario "The walk goes row by row, also over what suppliers were paid; payments share their series of numbers"
insert("BKK", {NoBKK = "000000000300", TglBKK = "#11/22/2026#", TglJTP = "#11/22/2026#", RekID = "1", Jumlah = 5, JumlahBiaya = 5})
local seen = {}
for _, button in ipairs{"bttnFirst", "bttnNext", "bttnNext", "bttnNext", "bttnNext", "bttnPrev", "bttnLast"} do
    click(button)
    seen[#seen + 1] = tonumber(text("txtNoBukti"):sub(1, 10)) .. " " .. caption "lblJumBAYAR"
end
expect(seen, {"1 400.50", "1 400.50", "2 50.00", "3 0.00", "3 0.00", "2 50.00", "3 0.00"})
-- What suppliers were paid is none of this screen's: nothing shows under its number, typed or stumbled upon.
click "bttnPrev"
enter("txtNoBukti", "000000000300")
expect({text "txtNoBukti", caption "lblJumBAYAR", rows "OrderGrid"}, {"000000000300", "0.00", 1})
click "bttnNew"
line("0000000002", "777")
enter("txtNoBukti", "000000000300")
expect_message "Double payment number ..."
expect({text "txtNoBukti", caption "lblJumBAYAR", rows "OrderGrid"}, {"000000000300", "0.00", 1})
click "bttnNew"
expect(text "txtNoBukti", "000000000400")
click "bttnCancel"
sql "Delete From BKK Where NoBKK = '000000000300'"

scenario "Payments by each criterion; the words that the list offers and the search does not know find all"
click "bttnFind"
expect(items "txtKreteria", {"Payment No", "Payment Date", "Cash or Bank", "Cost Detail"})
local all = {"300.00", "100.50", "50.00"} -- by number, then cost
for _, case in ipairs{
    {"Payment No", "0002", {"100.50", "300.00", "50.00"}}, {"Cost Detail", "x", {"100.50", "300.00", "50.00"}},
    {"Payment ID", "0002", {"50.00"}}, {"Payment Date", "11/22/2026", all}, {"Payment Date", "x", {}},
    {"Cash or Bank", "cash", {"300.00", "100.50"}}, {"Cost Category", "002", {"100.50", "50.00"}},
    {"Cost Name", "0001", {"300.00"}},
} do expect({case[1], found(case[1], case[2], 7)}, {case[1], case[3]}) end
expect({cell("grdCari", 1, 5), cell("grdCari", 1, 6), cell("grdCari", 1, 12)}, {"Wages", "Daily wages", "400.50"})
doubleclick("grdCari", 1)
expect({visible "frmCari", text "txtNoBukti", rows "OrderGrid"}, {false, "000000000100", 3})

scenario "Deleting a payment of two lines takes one row and gives back all of it, and so does the next time"
before = books()
remove "000000000100"
expect(message(), nil)
expect({#sql "Select * From BKK Where NoBKK = '000000000100'", balance "1", rows "OrderGrid"}, {1, 1000, 1})
enter("txtNoBukti", "000000000100")
expect(lines(4), {{"0000000001", "001", "Daily wages", "300.00"}, none})
remove "000000000100"
expect({#sql "Select * From BKK Where NoBKK = '000000000100'", balance "1"}, {0, 1400.5})
click "bttnDel"
enter("txtNoBukti", "000000000100")
expect_message "Item with this code is not found ..."
expect(balance "1", 1400.5)
sql "Delete From Bank Where RekID = '22'"
click "bttnDel"
type("txtNoBukti", "000000000200")
click "bttnSave"
expect({message(), value "Select Count(*) From BKK"}, {nil, 0}) -- its account is gone: nothing to give back to

scenario "Without the rights New and Delete are silent"
stop()
sql "Insert Into T_User Values ('sari','07','',False,True,False,False)"
sql "Insert Into SecurityUser (UserID,MenuID) Values ('07','T09')"
start()
login("sari", "")
expect(items "TV", {"M", "F", "T", "T09", "L"})
open "T09"
for _, button in ipairs{"bttnNew", "bttnDel"} do
    click(button)
    expect({visible "FrameAtas", enabled "FrameIsiBarang", message()}, {false, false, nil})
end
