local function company(name, line, address1, address2)
    type("txtNama", "{Home}") -- the first field of the screen
    enter("txtNama", name)
    enter("txtket", line)
    enter("TxtAlamat1", address1)
    enter("TxtAlamat2", address2)
end

local saved = {{text = "Company has been successfully records", title = "Company Setup", icon = "exclamation",
                buttons = "ok"}}

scenario "The screen opens with the texts of the session; saved ones reach the status bar and reports at once"
start()
login("varnik", "kemiri")
menu "mnuSetupPerusahaan"
expect(caption(), "Company Setup")
expect(text "txtNama", "Varnik Small Business")
expect(text "txtket", "True Varnik Ledger Suite")
expect(text "TxtAlamat1", "Sendara-Indonesia")
company("  Toko Makmur's  ", " Jalan Melati 1 ", " Cimahi ", "Telp. 022")
click "Command1"
expect(messages(), saved)
expect(sql "Select * From Company", {{"Toko Makmur's", "Jalan Melati 1", " Cimahi ", "Telp. 022"}})
use "frmMainCode"
expect(caption(), "Varnik - Varnik Small Business")
tick(1)
expect(text("sbStatusBar", 1), "  Varnik Ledger Suite (Varnik)Toko Makmur's ")
menu "mnuHelpAbout"
expect(text "LblVersi2", "Toko Makmur's\r\nJalan Melati 1 CimahiTelp. 022")
click "cmdOK"

scenario "A text that the column does not take is told, and neither table nor session changes"
use "Company"
company(("x"):rep(51), "a", "b", "c")
click "Command1"
expect_message "The text is too long for Company.NamaPerusahaan (at most 50 characters)."
expect(message(), nil)
expect(sql "Select * From Company", {{"Toko Makmur's", "Jalan Melati 1", " Cimahi ", "Telp. 022"}})
click "Command2"
expect(current(), "frmMainCode")
tick(1)
expect(text("sbStatusBar", 1), "   Varnik Ledger Suite (Varnik)Toko Makmur's ")

scenario "Of several rows the first alone is written; without a row one is added"
sql "Insert Into Company Values ('Second','2','3','4')"
menu "mnuSetupPerusahaan"
company("First", "1", "", "")
click "Command1"
expect(sql "Select * From Company", {{"First", "1", "", ""}, {"Second", "2", "3", "4"}})
sql "Delete From Company"
click "Command1"
expect(sql "Select * From Company", {{"First", "1", "", ""}})
expect(#messages(), 2)
stop()
start()
login("varnik", "kemiri")
expect(caption(), "Varnik - First")
