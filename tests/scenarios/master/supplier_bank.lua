-- Suppliers and accounts: what is theirs alone.

local function told(...)
    for _, text in ipairs {...} do expect_message(text) end
    expect(message(), nil)
end

start()
login("varnik", "kemiri")

scenario "A supplier is written through its row: whole discount, balances with decimals"
open "F03"
click "bttnAdd"
type("txtKode", "{Enter}")
enter("txtNama", "Semen Jaya")
enter("txtnDis", "2.9")
enter("txtnJTP", "14")
enter("txtSaldoAwal", "1,500.25")
enter("txtket", "langganan")
expect(enabled "bttnOK", true)
expect(text "txtKode", "0000000002")
expect(sql "Select NamaSup,nDis,nJTP,SaldoAwal,Ket From Supplier", {{"Semen Jaya", 2, 14, 1500.25, "langganan"}})
click "bttnCancel"

scenario "Numbers of a supplier"
enter("txtKode", "0000000001")
expect(text "txtSaldoAwal", "1,500.25")
click "bttnEdit"
enter("txtnDis", "banyak")
told "Enter  a numeric value for this item .."
enter("txtnDis", "0")
enter("txtnJTP", "99999")
told "Enter a numeric value for this item ..."
enter("txtnJTP", "30")
click "bttnOK"
expect(sql "Select nDis,nJTP From Supplier", {{0, 30}})

scenario "A save that fails says nothing"
click "bttnEdit"
enter("txtNama", ("x"):rep(200))
click "bttnOK"
told()
expect(text "txtNama", "Semen Jaya")

scenario "An unknown code keeps the record on screen; Escape empties the box"
enter("txtKode", "77")
expect(text "txtNama", "Semen Jaya")
type("txtKode", "{Esc}")
expect(text "txtKode", "")
expect(text "txtNama", "Semen Jaya")

scenario "The search always reads the address; a row without a whole one is not found"
click "bttnFind"
choose("txtKreteria", "Name")
enter("txtValue", "semen")
click "cmdExecute"
expect(rows "grdCari", 0)
sql "Update Supplier Set Kota = 'Bogor'"
enter("txtValue", "bogor")
click "cmdExecute"
expect(rows "grdCari", 1)
sql "Update Supplier Set Alamat_2 = Null"
click "cmdExecute"
expect(rows "grdCari", 0)
click "cmdTutup"

scenario "A new account from 1,000 on is not created, in silence; an edit takes the balance"
use "frmMainCode"
open "F04"
click "bttnAdd"
enter("txtRekID", "k01")
expect(text "txtRekID", "K01")
enter("TxtNamaBank", "Kas")
enter("txtSaldoAwal", "2,500")
click "bttnOK"
told()
expect(sql "Select RekID From Bank", {})
click "bttnAdd"
enter("txtRekID", "001")
enter("TxtNamaBank", "Kas")
enter("txtSaldoAwal", "999")
enter("txtket", "kas kecil")
check("Check1", true)
click "bttnOK"
expect(sql "Select NamaBank,SaldoAwal,Keterangan,DefaultKas From Bank", {{"Kas", 999, "kas kecil", true}})
enter("txtRekID", "001")
expect(checked "Check1", true)
expect(text "txtket", "")
click "bttnEdit"
enter("txtSaldoAwal", "2,500")
click "bttnOK"
expect(sql "Select SaldoAwal,Keterangan,DefaultKas From Bank", {{2500, "", true}})
expect(text "txtSaldoAwal", "2,500.00")

scenario "An unknown account code empties the fields but the name"
enter("txtRekID", "9 ")
expect({text "txtRekID", text "TxtNamaBank", text "txtSaldoAwal", checked "Check1"}, {"9", "Kas", "0", false})

scenario "The search of accounts"
click "bttnFind"
enter("txtValue", "00")
click "cmdExecute"
expect({rows "grdCari", cell("grdCari", 1, 0)}, {1, "001"})
enter("txtKreteria", "anything")
enter("txtValue", "ka")
click "cmdExecute"
expect(rows "grdCari", 1)
click "cmdTutup"
expect(text "txtRekID", "001")
