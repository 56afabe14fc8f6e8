-- Customers: what is theirs alone.

local function one(columns, code)
    return sql("Select " .. columns .. " From Customer Where KodeCus = '" .. code .. "'")[1]
end
-- Messages one by one, and none left.
local function told(...)
    for _, text in ipairs {...} do expect_message(text) end
    expect(message(), nil)
end

start()
login("varnik", "kemiri")

scenario "The types are offered once the screen of types has been used in this run"
sql "Insert Into JenisCustomer (KodeJenisCus,JenisCus) Values ('PRO','Proyek')"
open "F02"
expect(items "Combo1", {})
click "bttnClose"
open "F09"
click "bttnAdd"
enter("txtKode", "ecr")
type("txtNama", "eceran")
click "bttnOK"
open "F02"
expect(items "Combo1", {"ECERAN", "Proyek"})
click "bttnAdd"
type("txtKode", "{Enter}")
enter("txtNama", "CV Bangun")
enter("TxtJenis", "pro")
expect(text "Combo1", "Proyek")
enter("Combo1", "eceran")
expect(text "TxtJenis", "ECR")
enter("TxtJenis", "ZZ")
expect(text "Combo1", "")

scenario "A new customer: the tax number is not written, an unknown type is"
enter("TxtNPWP", "01.234")
enter("txtnDis", "2 %")
enter("txtSaldoAwal", "1250.6")
expect(text "txtSaldoAwal", "1,251")
click "bttnOK"
told()
expect(one("NamaCus,JenisCus,nDis,SaldoAwal,NPWP", "0000000001"), {"CV Bangun", "ZZ", 2, 1251, nil})
enter("txtKode", "0000000001")
expect(text "txtSaldoAwal", "1,251.00")
click "bttnEdit"
enter("TxtNPWP", "01.234")
click "bttnOK"
expect(one("NPWP", "0000000001"), {"01.234"})

scenario "Days are whole numbers of 16 bits"
click "bttnEdit"
for _, case in ipairs {
    {"txtnJTP", "abc", "Enter  with number, please ..."},
    {"txtnJTP", "40000", "Enter  with number, please ..."},
    {"txtnwDis", "x", "Enter  with number, please"},
    {"txtnwDis", "", "Enter  with number, please"},
} do
    enter(case[1], case[2])
    told(case[3])
    expect(focused(), case[1])
    enter(case[1], "14")
    told()
end

scenario "Terms go into a change with the mask: from 1,000 on the database refuses it"
enter("txtnJTP", "1000")
click "bttnOK"
expect(#messages(), 1)
expect(one("nJTP", "0000000001"), {0})

scenario "A failing insert shows the database's words and saves nothing"
click "bttnAdd"
type("txtKode", "{Enter}")
enter("txtNama", ("x"):rep(51))
click "bttnOK"
expect(#messages(), 1)
expect(#sql "Select KodeCus From Customer", 1)
expect(enabled "bttnAdd", true)

scenario "Leaving the notes asks to save, while adding or editing alone"
enter("txtKode", "0000000001")
focus "txtket"
focus "txtNama"
told()
click "bttnEdit"
answer "yes"
enter("txtket", "rapi")
told "Are you sure you want save this record  ?"
expect(one("Ket", "0000000001"), {"rapi"})

scenario "The search honours its criterion"
sql "Update Customer Set Alamat_1 = 'Jl. Braga', Alamat_2 = '9', Alamat_3 = '', Kota = 'Bandung', SaldoAkhir = 1500"
click "bttnFind"
for _, case in ipairs {
    {"Code", "0001", 1},
    {"Code", "bangun", 0},
    {"Name", "BANGUN", 1},
    {"Address", "9bandung", 1},
    {"Final Balance", "1,500", 1},
    {"Final Balance", "150", 0},
} do
    choose("txtKreteria", case[1])
    enter("txtValue", case[2])
    click "cmdExecute"
    expect({case[1], case[2], rows "grdCari"}, case)
end
enter("txtValue", "1500")
click "cmdExecute"
expect({cell("grdCari", 1, 2), cell("grdCari", 1, 3)}, {"Jl. Braga 9", "1,500"})
click "cmdTutup"
expect(visible "frmCari", false)
expect(text "txtNama", "CV Bangun")
