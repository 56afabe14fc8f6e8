-- Types and costs: what is theirs alone.

local function told(...)
    for _, text in ipairs {...} do expect_message(text) end
    expect(message(), nil)
end

start()
login("varnik", "kemiri")

scenario "Types are typed in one go: Enter in the name saves and starts the next"
for key, source in pairs {F08 = "JenisProduk", F09 = "JenisCustomer"} do
    use "frmMainCode"
    open(key)
    click "bttnAdd"
    for _, code in ipairs {"aa", "bb"} do
        enter("txtKode", code)
        enter("txtNama", "nama " .. code)
        expect(enabled "bttnOK", true)
        expect(text "txtKode", "")
        expect(focused(), "txtKode")
    end
    expect(sql("Select * From " .. source), {{"AA", "NAMA AA"}, {"BB", "NAMA BB"}})
    expect({cell("grdCari", 1, 0), cell("grdCari", 2, 1)}, {"AA", "NAMA BB"})
    click "bttnCancel"
    click "bttnFind"
    doubleclick("grdCari", 2)
    expect(text "txtKode", "")
end

scenario "A code that the list holds twice, but for its blanks, shows blank the second time"
use "frmJenisCustomer"
sql "Insert Into JenisCustomer (KodeJenisCus,JenisCus) Values ('AA ','NAMA LAIN')"
enter("txtKode", "BB")
click "bttnEdit"
click "bttnOK"
expect({cell("grdCari", 1, 0), cell("grdCari", 2, 0), cell("grdCari", 2, 1), cell("grdCari", 3, 0)}, {"AA", "", "", "BB"})

scenario "The shortcut keys of product categories"
use "fAccJenisProduk"
enter("txtKode", "aa")
type("txtNama", "{Alt+E}")
expect(enabled "bttnOK", true)
clear "txtNama"
type("txtNama", "kertas{Alt+S}")
expect(enabled "bttnOK", false)
expect(sql "Select JenisProduk From JenisProduk Where KodeJenisProduk = 'AA'", {{"KERTAS"}})
type("txtKode", "{Alt+N}")
expect(enabled "bttnOK", true)
type("txtKode", "{Alt+U}")
expect(enabled "bttnOK", false)
type("txtKode", "{Alt+N}")
type("txtNama", "{Esc}")
expect(enabled "bttnOK", false)
type("txtNama", "{Alt+P}{Alt+F}")
expect(#reports(), 0)
type("txtNama", "{F1}")
expect_message(table.concat({"Informasi Penggunaan keyboard (Shortcut) ", " ",
    "ALT-N=New, ALT-E=Edit, ALT-S=Save, ALT-U=Cancel, ALT-D=Delete", "ALT-F=Find ALT-X=Exit, ALT-P=Print", " ",
    "Left Arrow=Previous Records, Right Arrow=Next Records", "Top Arrow=Top Record, Down Arrow=Last Record", " ",
    "Tag/Return Item Selection Key Shortcuts.", "ALT-T=Tag, ALT-R=Return, ALT-C=Close"}, "\r\n"))
type("txtNama", "{Alt+X}")
expect(screens(), {"frmMainCode", "frmJenisCustomer"})

scenario "Cost types: a row of the list, and Find by the code in the box"
use "frmMainCode"
open "F06"
for _, name in ipairs {"gaji", "listrik"} do
    click "bttnAdd"
    type("txtKode", "{Enter}")
    enter("txtNama", name)
    click "bttnOK"
end
doubleclick("grdCari", 2)
expect({text "txtKode", text "txtNama"}, {"002", "LISTRIK"})
enter("txtKode", "zz")
clear "txtKode"
type("txtKode", "001")
click "bttnFind"
expect(text "txtNama", "GAJI")

scenario "Cost details: a type that is not there asks before it saves without one, and refuses a change"
use "frmMainCode"
open "F07"
expect(items "TxtKodeAcc", {"001 - GAJI", "002 - LISTRIK"})
click "bttnAdd"
type("txtKode", "{Enter}")
enter("txtNama", "upah")
answer "cancel"
click "bttnOK"
told "Type of cost will Enter  with blank ... ? "
expect(sql "Select KodeBiaya From Biaya", {})
click "bttnAdd"
type("txtKode", "{Enter}")
enter("txtNama", "upah")
answer "ok"
click "bttnOK"
told "Type of cost will Enter  with blank ... ? "
expect(sql "Select KodeBiaya,Diskripsi,KodeJenisBiaya From Biaya", {{"0000000001", "UPAH", ""}})
enter("txtKode", "0000000001")
click "bttnEdit"
enter("TxtKodeAcc", "009")
click "bttnOK"
told "Type of cost not valid or not found ..."
click "bttnEdit"
enter("TxtKodeAcc", "002")
expect(text "TxtKodeAcc", "002 - LISTRIK")
click "bttnOK"
told()
expect(sql "Select KodeJenisBiaya From Biaya", {{"002"}})
expect({cell("grdCari", 1, 0), cell("grdCari", 1, 1), cell("grdCari", 1, 3)}, {"002", "LISTRIK", "UPAH"})

scenario "The proposed code of a cost detail is too long for its column until it is corrected"
click "bttnAdd"
expect(text "txtKode", "000000000200")
type("txtKode", "{Enter}")
enter("txtNama", "air")
choose("TxtKodeAcc", "001")
click "bttnOK"
expect(#messages(), 1)
expect(#sql "Select KodeBiaya From Biaya", 1)
click "bttnAdd"
enter("txtKode", "0000000002")
enter("txtNama", "air")
choose("TxtKodeAcc", "001")
click "bttnOK"
told()
doubleclick("grdCari", 2)
expect({text "txtKode", text "txtNama", text "TxtKodeAcc"}, {"0000000002", "AIR", "001 - GAJI"})

scenario "A faulty statement of a list gives way to the definition's own query"
use "frmJenisCustomer"
click "bttnPrint"
expect(report().file, "JenisCustomer.rpt")
expect(report().rows > 0, true)
