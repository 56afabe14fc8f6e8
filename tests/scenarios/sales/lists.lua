dofile(arg[0]:match ".*/" .. "../support/shop.lua")
product{KodeBrg = "0000000001", NamaBrg = "Semen", HargaJual = 1000}
product{KodeBrg = "0000000002", NamaBrg = "Paku Besar", HargaJual = 1000}
product{KodeBrg = "0000000003", NamaBrg = "Paku Kecil", HargaJual = 2000}
customer{KodeCus = "0000000001", NamaCus = "Toko Maju"}
customer{KodeCus = "0000000002", NamaCus = "Warung Ibu"}
open "T01"

local function listed()
    local codes = {}
    for i = 1, rows "GridCari" do codes[i] = cell("GridCari", i, 0) end
    return codes
end

scenario "The list of customers: Enter on a blank code, F5, Esc, a pick"
click "bttnNew"
keys "{Enter}"
focus "TxtKodeCus"
keys "{Enter}"
expect(focused(), "GridCari")
expect(listed(), {"0000000001", "0000000002"})
keys "{Esc}"
expect(visible "GridCari", false)
expect(focused(), "TxtKodeCus")
keys "{F5}"
keys "{Down}{Enter}"
expect(text "TxtKodeCus", "0000000002")
expect(text "TxtNamaCus", "Warung Ibu")
expect(visible "GridCari", false)

scenario "The list of products, whole or by what the description holds"
focus "txtKodeBrg"
keys "{Enter}"
expect(listed(), {"0000000001", "0000000002", "0000000003"})
keys "{Esc}"
enter("TxtDiskripsi", "Paku")
click "bttnSearch"
expect(listed(), {"0000000002", "0000000003"})
keys "{Down}{Enter}"
expect(text "txtKodeBrg", "0000000003")
expect(text "txtHarga", "2,000")
expect(focused(), "txtQty")
click "bttnAddLine"
click "bttnSave"

scenario "The search panel by its five criteria"
local other = sale("0000000001", {{"0000000001", "4"}}, "10")
expect(other, "000000000200")
click "bttnFind"
expect(visible "frmCari", true)
expect(items "txtKreteria",
       {"Invoice Number", "Invoice Date", "Name of Customer", "Customer ID", "Current Balance"})
-- criterion, value, numbers found
for _, case in ipairs{
    {"Invoice Number", "0001", {"000000000100"}},
    {"Invoice Date", "11/22/2026", {"000000000200", "000000000100"}},
    {"Invoice Date", "no date", {}},
    {"Name of Customer", "arun", {"000000000100"}},
    {"Customer ID", "0000000001", {"000000000200"}},
    {"Current Balance", "3000", {"000000000200"}},
    {"Current Balance", "a lot", {}},
    {"Name of Customer", "it's", {}},
} do
    choose("txtKreteria", case[1])
    enter("txtValue", case[2])
    click "cmdExecute"
    local found = {}
    for i = 1, rows "grdCari" do found[i] = cell("grdCari", i, 2) end
    expect(found, case[3])
end
enter("txtKreteria", "Anything else")
click "cmdExecute"
expect(rows "grdCari", 2)
choose("txtKreteria", "Customer ID")
enter("txtValue", "")
click "cmdExecute"
local first = {}
for column = 0, 8 do first[column + 1] = cell("grdCari", 1, column) end
expect(first, {"0000000001", "Toko Maju", "000000000200", "11/22/2026", "3,636", "364", "4,000", "0", "4,000"})

scenario "A row taken shows its invoice; without a row nothing changes"
doubleclick("grdCari", 1)
expect(visible "frmCari", false)
expect(text "TxtNoInvoice", "000000000200")
expect(text "txtJumTotal", "4,000")
expect(text "TxtPPN", "10")
expect(rows "OrderGrid", 1)
click "bttnFind"
choose("txtKreteria", "Customer ID")
enter("txtValue", "NOSUCH")
click "cmdExecute"
click "cmdTutup"
expect(text "TxtNoInvoice", "000000000200")
