-- The words of the console on the program's own first screens.

scenario "Start-up waits at the login"
now "2026-11-22 09:30:00"
expect(running(), false)
start()
expect(running(), true)
expect({current(), focused()}, {"fLogin", "txtUserId"})
type("txtUserId", "var'nik;")                   -- the screen lets letters and digits through
expect(text "txtUserId", "varnik")
type("txtUserId", "{Enter}wrong{Enter}")        -- on to the password; a key there makes Enter submit
expect_message "Your Password is Invalid \r\nPlease Enter The Correct Password ..."
login("varnik", "kemiri")
expect({current(), running()}, {"frmMainCode", true})
expect(screens(), {"frmMainCode"})

scenario "The clock stands in the status bar"
expect(text("sbStatusBar", 4), "09:30:00")
now "2026-11-22 09:30:05"
tick(1)
expect(text("sbStatusBar", 4), "09:30:05")

scenario "A menu drops down, an item opens a screen and hands mail to the shell"
menu "mnuHelpAbout"
expect(current(), "frmAbout")
click "lb_email"
expect(shell(), {"mailto:support@varnik.example"})
type("cmdOK", "{Esc}")
expect(current(), "frmMainCode")
expect(pcall(menu, "mnuBarang"), false)         -- no label drops it down
expect(pcall(open, "X99"), false)

scenario "The data answer in the screens' own dialect"
expect(sql "Select UserID, Tambah From T_User Where UserID = 'varnik'", {{"varnik", true}})
expect(sql "Update Company Set Ket3 = 'x'", 1)

scenario "Products in a preview"
open "F01"
expect(current(), "fProduk")
click "bttnPrint"
local preview = report()
expect({preview.file, #reports()}, {"persediaan.rpt", 1})
expect(preview.title, "Report of product and service")
expect(preview:text():find("Page 1", 1, true) ~= nil or preview.pages == 1, true)
preview:csv "products.csv"
expect(io.open("products.csv") ~= nil, true)    -- a script's paths count from where it was started
preview:close()
expect(report(), nil)
expect(pcall(preview.text, preview), false)

scenario "The window is closed, and the program starts again"
use "frmMainCode"
stop()
expect({running(), current()}, {false})
another(true)
start()
expect(running(), false)
expect_message "[Varnik] already running on your computer..."
another(false)
start()
login("varnik", "kemiri")
expect(current(), "frmMainCode")
expect(sql "Select Ket3 From Company", {{"x"}})
