local denied = {
    password = "Your Password is Invalid \r\nPlease Enter The Correct Password ...",
    user = "Your user id is invalid \r\nPlease Enter The Correct user id ...",
}

local function refused(user, password, why)
    login(user, password)
    expect(messages(), {{text = denied[why], title = "Access Denied ", icon = "critical", buttons = "ok"}})
    expect(current(), "fLogin")
end

scenario "Three failures are answered, a good password on the fourth try still passes"
start()
refused("varnik", "wrong", "password")
refused("nobody", "kemiri", "user")
refused("varnik", "", "password")
login("VARNIK", "kemiri")
expect(current(), "frmMainCode")
stop()

scenario "The fourth failure ends the program without a word; names and passwords share the count"
start()
refused("nobody", "x", "user")
refused("varnik", "x", "password")
refused("nobody", "x", "user")
login("varnik", "x")
expect(running(), false)
expect(message(), nil)

scenario "Escape and Cancel end the program before the main window is built"
start()
type("txtUserId", "varnik{Esc}")
expect(running(), false)
start()
click "cmdBatal"
expect(running(), false)

scenario "Only letters, digits, the full stop and the blank are taken; Enter moves on and then submits"
start()
type("txtUserId", "v'a-r_n\"ik%")
expect(text "txtUserId", "varnik")
type("txtUserId", "{Enter}")
expect(focused(), "txtPassword")
type("txtPassword", "kem;iri{Enter}")
expect(current(), "frmMainCode")

scenario "A user without a password logs in with an empty one; rights come with him"
sql "Insert Into T_User (UserID,NoUser,[Password],Tambah,Lihat,Ganti,Hapus) Values ('Sari','07','',False,True,False,False)"
stop()
start()
login("sari", "")
expect(text("sbStatusBar", 5), "User  SARI(07)")
