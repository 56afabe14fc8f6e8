local all = {"M", "F", "F01", "F08", "F02", "F09", "F03", "F04", "F06", "F07",
             "T", "T01", "T02", "T03", "T04", "T05", "T06", "T08", "T09",
             "L", "L01", "L04", "L21", "L13", "L16", "L17", "L18"}

local function as(user, password)
    start()
    login(user, password)
end

-- A user with the default password and these rights rows.
local function user(name, number, rights)
    sql("Insert Into T_User (UserID,NoUser,[Password],Tambah,Lihat,Ganti,Hapus) Select '" .. name .. "','" ..
        number .. "',[Password],True,True,True,True From T_User Where NoUser = '00'")
    for _, right in ipairs(rights) do
        sql("Insert Into SecurityUser (UserID,MenuID) Values ('" .. number .. "','" .. right .. "')")
    end
end

scenario "The administrator sees every row, whatever the rights rows say"
as("varnik", "kemiri")
sql "Delete From SecurityUser Where UserID = '00'"
for number, who in ipairs {
    {"none", {}},
    {"types", {"F08"}},
    {"customertypes", {"F09"}},
    {"clerk", {"T01", "L13", "L15", "L21", "T01"}},
} do
    user(who[1], "0" .. number, who[2])
end
stop()
as("varnik", "kemiri")
expect(items "TV", all)
stop()

scenario "Others see the branches and their own leaves; customer types go by the code of product types"
for _, case in ipairs {
    {"none", {"M", "F", "T", "L"}},
    {"types", {"M", "F", "F08", "F09", "T", "L"}},
    {"customertypes", {"M", "F", "T", "L"}},
    {"clerk", {"M", "F", "T", "T01", "L", "L21", "L13"}},
} do
    as(case[1], "kemiri")
    expect(items "TV", case[2])
    stop()
end

scenario "A leaf opens its screen once; branches open nothing"
as("varnik", "kemiri")
open "F"
open "F01"
expect(screens(), {"frmMainCode", "fProduk"})
use "frmMainCode"
open "F01"
expect(screens(), {"frmMainCode", "fProduk"})
expect(current(), "fProduk")

scenario "Every leaf of masters and documents opens its screen"
for _, key in ipairs(all) do
    if key:match "^[FT]%d" then
        use "frmMainCode"
        open(key)
        expect({key, message()}, {key, nil})
    end
end
expect(#screens(), 17)

scenario "The drop-down menus"
use "frmMainCode"
menu "mnuViewStatusBar"
expect(visible "sbStatusBar", false)
menu "mnuViewStatusBar"
expect(visible "sbStatusBar", true)
io.open("help.exe", "w"):close()                 -- beside the program, where the shell finds it
menu "mnuHelpContents"
menu "mnuHelpvisit"
menu "mnuHelpAbout"
click "lb_email"
expect(shell(), {"help.exe", "https://varnik.example/", "mailto:support@varnik.example"})
click "cmdSysInfo"
expect_message "System Information Is Unavailable At This Time"
click "cmdOK"
use "frmMainCode"
answer "cancel"
menu "mnuFilePageSetup"

scenario "Closing the main window ends the program with its open screens, and so does Exit"
stop()
expect(running(), false)
as("varnik", "kemiri")
open "F01"
use "frmMainCode"
menu "mnuFileExit"
expect(running(), false)
