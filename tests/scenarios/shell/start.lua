scenario "The first start makes the database and lets the default account in"
now "2026-11-22 09:30:05"
start()
expect(current(), "fLogin")
login("varnik", "kemiri")
expect(screens(), {"frmMainCode"})
expect(caption(), "Varnik - Varnik Small Business")
expect(text("sbStatusBar", 4), "09:30:05")
expect(text("sbStatusBar", 5), "User  VARNIK(00)")
expect(sql "Select Count(*) From T_User", {{1}})
expect(sql "\n  Select Count(*) From MenuList", {{22}})

scenario "The clock and the title move with the timers"
now "2026-11-22 09:30:06"
tick(1)
expect(text("sbStatusBar", 4), "09:30:06")
expect(text("sbStatusBar", 1), "  Varnik Ledger Suite (Varnik)Varnik Small Business ")

scenario "A second start beside the running one says so and ends"
stop()
expect(running(), false)
another(true)
start()
expect(running(), false)
expect_message "[Varnik] already running on your computer..."
another(false)

scenario "A later start finds what the first one wrote; an empty company table gives the fallback texts"
start()
login("varnik", "kemiri")
sql "Update Company Set NamaPerusahaan = '  Toko Makmur ', Ket1 = ' Jalan Melati 1 '"
stop()
start()
login("varnik", "kemiri")
expect(caption(), "Varnik - Toko Makmur")
menu "mnuHelpAbout"
expect(text "LblVersi2", "  Toko Makmur \r\nJalan Melati 1 Sendara-Indonesia=========================================")
click "cmdOK"
sql "Delete From Company"
stop()
start()
login("varnik", "kemiri")
expect(caption(), "Varnik - Varnik Small Busines")
menu "mnuHelpAbout"
expect(text "LblVersi2",
    "Varnik Small Busines\r\nVarnik Ledger Suite Sendara-Indonesia=========================================")
expect(sql "Select Count(*) From Company", {{0}})
