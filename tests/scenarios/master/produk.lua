-- Products: the pattern of the master screens first, then what is particular to them.

start()
login("varnik", "kemiri")
sql "Insert Into JenisProduk (KodeJenisProduk,JenisProduk) Values ('ATK','Alat Tulis')"
sql "Insert Into JenisProduk (KodeJenisProduk,JenisProduk) Values ('KRT','Kertas')"
sql "Insert Into Supplier (KodeSup,NamaSup,nDis,nwDis,nJTP,SaldoAwal,SaldoAkhir) Values ('S1','Sumber Jaya',0,0,0,0,0)"
open "F01"

local editing = {bttnAdd = false, bttnEdit = false, bttnDelete = false, bttnFind = false, bttnPrint = false,
                 bttnClose = false, bttnOK = true, bttnCancel = true}
local function expect_buttons(edit)
    local shown, wanted = {}, {}
    for name, enabledWhileEditing in pairs(editing) do
        shown[name] = enabled(name)
        wanted[name] = enabledWhileEditing == edit
    end
    expect(shown, wanted)
end
local function idle() expect_buttons(false); expect(locked "txtNama", true) end
local function busy() expect_buttons(true); expect(locked "txtNama", false) end

-- Add, past the proposed code, to the name.
local function add(name)
    click "bttnAdd"
    type("txtKode", "{Enter}")
    enter("txtNama", name)
end

local function one(columns, code)
    return sql("Select " .. columns .. " From Produk Where KodeBrg = '" .. code .. "'")[1]
end

scenario "The first product: proposed code, defaults, one cost in three columns"
idle()
expect(text "txtKode", "")
click "bttnAdd"
busy()
expect(focused(), "txtKode")
expect(text "txtKode", "0000000001")
expect({text "txtPecahan", text "TxtPecahanBeli", text "TxtPecahanJual"}, {"1", "1", "1"})
enter("txtKode", "0000000001")
expect(focused(), "Check1")
enter("txtNama", "Buku Tulis")
enter("TxtJenis", "ATK tulis")
expect(text "TxtJenis", "ATK tulis")
expect(text "Combo1", "ATK - Alat Tulis")
focus "TxtSatuan"
type("TxtSatuan", "pcs")
expect(text "TxtSatuan", "PCS")
enter("TxtPecahanBeli", "12")
enter("TxtSatuanBeli", "dus")
enter("txtHargaBeli", "24000")
expect(text "txtHargaBeli", "24,000")
expect(text "TxtHPPRata", "24,000")
enter("TxtSatuanJual", "pcs")
enter("TxtHargaJual", "3500")
enter("txtQCounter", "5")
enter("TxtQGudang", "1000")
expect(text "TxtOnHand", "1,005")
focus "TxtOnHand"
focus "TxtQAwal"
expect(text "TxtQAwal", "1,005")
choose("TxtKodeSup", "S1")
click "bttnOK"
idle()
expect(text "txtKode", "0000000002")
expect(text "txtNama", "")
expect(one("NamaBrg,JenisBrg,Jasa,QAwal,QJual,QBeli,HPPAwal,HPPAkhir,HPPRata", "0000000001"),
    {"Buku Tulis", "ATK", false, 1005, 0, 0, 24000, 24000, 24000})
expect(one("Pecahan,Satuan,PecahanBeli,SatuanBeli,HargaBeli,SatuanJual,HargaJual", "0000000001"),
    {1, "PCS", 12, "DUS", 24000, "PCS", 3500})
expect(one("QCounter,QGudang,OnHand,OnOrder,KodeSup", "0000000001"), {5, 1000, 1005, 0, "S1"})
expect(items "TxtSatuanBeli", {"DUS"})

scenario "An existing code typed while adding turns to browsing that product"
click "bttnAdd"
expect(text "txtKode", "0000000002")
enter("txtKode", "0000000001")
expect_message "This Record Already Exist ...."
idle()
expect(text "txtNama", "Buku Tulis")
expect(text "TxtKodeSup", "S1        .Sumber Jaya")

scenario "An edit leaves the unit, the quantity per unit and the opening cost; stock is the sum of the places"
click "bttnEdit"
busy()
expect(focused(), "txtNama")
enter("txtNama", "Buku Tulis 40")
enter("txtPecahan", "7")
enter("TxtSatuan", "lbr")
enter("TxtHPPRata", "25000")
enter("TxtOnHand", "999999")
click "bttnOK"
idle()
expect(one("NamaBrg,Pecahan,Satuan,HPPAwal,HPPAkhir,HPPRata,OnHand,KodeSup", "0000000001"),
    {"Buku Tulis 40", 1, "PCS", 24000, 25000, 25000, 1005, "S1"})
expect(text "TxtSatuan", "PCS")
expect(text "TxtOnHand", "1,005")

scenario "Cancel gives up what was typed"
click "bttnEdit"
enter("txtNama", "Lain")
click "bttnCancel"
idle()
expect(text "txtNama", "Buku Tulis 40")
click "bttnAdd"
type("txtKode", "{Esc}")
idle()

scenario "A product just added can be edited at once"
add "Pensil"
enter("txtQCounter", "0")
click "bttnOK"
enter("txtKode", "0000000002")
click "bttnEdit"
enter("txtNama", "Pensil 2B")
click "bttnOK"
expect(one("NamaBrg", "0000000002"), {"Pensil 2B"})

scenario "Edit and Delete of a code that is not there"
enter("txtKode", "zz")
expect(text "txtKode", "ZZ")
click "bttnEdit"
expect_message "Unable to find record ...."
idle()
enter("txtKode", "zz")
click "bttnDelete"
expect_message "Unable To Find Record ..."
idle()
expect(text "txtKode", "0000000002")

scenario "Stock on hand refuses deletion; below zero it does not"
enter("txtKode", "0000000001")
click "bttnDelete"
expect_message "Stock balance should not be zero..."
sql "Update Produk Set OnHand = -3 Where KodeBrg = '0000000001'"
answer "no"
click "bttnDelete"
expect_message "Are you sure record will be deleted  ?"
expect(#sql "Select KodeBrg From Produk", 2)
answer "yes"
click "bttnDelete"
expect_message "Are you sure record will be deleted  ?"
expect(sql "Select KodeBrg From Produk", {{"0000000002"}})
expect(text "txtNama", "Pensil 2B")
idle()

scenario "A service: amounts and units go to zero, stock and purchase fields go away and come back empty"
add "Jilid"
enter("TxtHargaJual", "5000")
enter("txtHargaBeli", "100")
check("Check1", true)
for _, field in ipairs {"TxtPecahanBeli", "TxtSatuanBeli", "txtHargaBeli", "TxtQAwal", "TxtHPPRata",
                        "txtQCounter", "TxtQGudang", "TxtOnHand", "txtOnOrder"} do
    expect(visible(field), false)
end
expect(visible "TxtHargaJual", true)
expect({text "txtPecahan", text "TxtPecahanJual", text "TxtHargaJual"}, {"0", "0", "0"})
check("Check1", false)
expect(visible "TxtQAwal", true)
expect(text "txtPecahan", "0")
check("Check1", true)
enter("TxtHargaJual", "5000")
click "bttnOK"
expect(one("Jasa,Pecahan,PecahanBeli,PecahanJual,HargaJual", "0000000003"), {true, 0, 0, 0, 5000})
enter("txtKode", "0000000003")
expect(checked "Check1", true)
expect(visible "TxtOnHand", false)

scenario "Leaving the notes asks whether to save"
add "Map"
answer "no"
enter("txtket", "plastik")
expect(messages()[1], {text = "Are you sure you want save this record  ?", title = "Varnik Small Business",
    icon = "question", buttons = "yes no"})
answer "yes"
enter("txtket", "plastik tebal")
expect_message "Are you sure you want save this record  ?"
expect(one("Ket", "0000000004"), {"plastik tebal"})
idle()

scenario "A save that the database refuses is silent: over-long text, a quote, a number beyond its column"
for _, case in ipairs {
    {"txtNama", ("x"):rep(101)},
    {"txtNama", "it's"},
    {"TxtHargaJual", "99999999999"},
    {"TxtSatuan", "unit's"},
} do
    add "Refused"
    enter(case[1], case[2])
    click "bttnOK"
    expect(message(), nil)
    idle()
    expect(#sql "Select KodeBrg From Produk", 3)
end

scenario "A text that is no number is read as far as it goes"
add "Lem"
enter("TxtHargaJual", "Rp 1.500,-")
expect(text "TxtHargaJual", "Rp 1.500,-")
click "bttnOK"
expect(one("HargaJual", "0000000005"), {2})

scenario "The search always reads the description, whatever the criterion"
click "bttnFind"
expect(visible "frmCari", true)
expect({cell("grdCari", 0, 0), cell("grdCari", 0, 1), cell("grdCari", 0, 2), cell("grdCari", 0, 3)},
    {"Code", "Product Description", "Qty", "Unit"})
sql "Update Produk Set OnHand = 1234 Where KodeBrg = '0000000002'"
for _, criterion in ipairs {"Code", "Product Description"} do
    choose("txtKreteria", criterion)
    enter("txtValue", "PENSIL")
    click "cmdExecute"
    expect(rows "grdCari", 1)
    expect({cell("grdCari", 1, 0), cell("grdCari", 1, 2)}, {"0000000002", "1,234"})
end
enter("txtValue", "0000000002")
click "cmdExecute"
expect(rows "grdCari", 0)
enter("txtValue", "it's")
click "cmdExecute"
expect(rows "grdCari", 0)
expect(message(), nil)
enter("txtValue", "")
click "cmdExecute"
expect(rows "grdCari", 4)
row("grdCari", 4)
expect(cell("grdCari", 4, 1), "Pensil 2B")
doubleclick("grdCari", 4)
expect(visible "frmCari", false)
expect(text "txtNama", "Pensil 2B")

scenario "Print launches the list on its own query"
click "bttnPrint"
local printed = report()
expect({printed.file, printed.title, printed.rows}, {"persediaan.rpt", "Report of product and service", 4})
expect(printed.formulas[1], "Judul1 ='Varnik Small Business'")

scenario "The next code counts in 16 bits; the highest text decides"
for _, case in ipairs {
    {"0000032766", "0000032767"},
    {"0000032767", "0000000000"},
    {"0000040000", "0000000000"},
    {"ZZ", "0000000001"},
} do
    sql("Update Produk Set KodeBrg = '" .. case[1] .. "' Where NamaBrg = 'Map'")
    click "bttnAdd"
    expect(text "txtKode", case[2])
    click "bttnCancel"
end

scenario "Without the right a button does nothing and says nothing"
sql "Update T_User Set Tambah = False, Ganti = False, Hapus = False"
stop()
start()
login("varnik", "kemiri")
open "F01"
enter("txtKode", "0000000002")
for _, button in ipairs {"bttnAdd", "bttnEdit", "bttnDelete"} do
    click(button)
    idle()
end
click "bttnClose"
expect(screens(), {"frmMainCode"})
