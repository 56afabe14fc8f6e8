local function start_here()
    start()
    login("varnik", "kemiri")
    menu "mnuConnect"
end

-- What the console's folder is called: the default path of the database ends the same everywhere.
local function default_path()
    return (text "Text1")
end

local function path(file)
    clear "Text1"
    type("Text1", file)
end

scenario "The screen opens with the program's own database"
start_here()
expect(caption(), "Varnik-Databases Connection")
local own = default_path()
expect(own:sub(-16), "\\Data\\Varnik.Mdb")
click "cmdVerify"
expect_message "Varnik Connection valid "
click "cmdCreate"
expect_message "Databases ODBC Created ..."
click "cmdVerify"
expect_message "Varnik Connection valid "

scenario "A data source pointed at another file is used by the next connection, and goes back at the next start"
use "frmMainCode"
menu "mnuFileBackup"
answer {file = "branch.bck"}
click "cmdBackUp"
expect_message "Backup Completed!!"
os.rename("branch.bck", "branch.mdb")
sql "Update Company Set NamaPerusahaan = 'Head office'"
use "f_CreateDSN"
answer {file = own:gsub("Data\\Varnik.Mdb$", "BRANCH.mdb")}
click "Command4"
expect(text("Text1"):sub(-11), "\\BRANCH.mdb")
click "cmdCreate"
expect_message "Databases ODBC Created ..."
expect(sql "Select NamaPerusahaan From Company", {{"Varnik Small Business"}})
click "cmdShowOM"
local shown = message()
expect(shown:match "^Varnik: .*branch%.mdb$" ~= nil, true)
stop()
start_here()
expect(sql "Select NamaPerusahaan From Company", {{"Head office"}})

scenario "A file that is not there fails the check"
path "nowhere.mdb"
click "cmdCreate"
expect_message "Databases ODBC Created ..."
click "cmdVerify"
expect_message "Varnik Connection Falided"

scenario "Changing and removing by request; the third kind names no source to change"
path(own)
for option = 0, 1 do
    click("Option0(" .. option .. ")")
    click "cmdModify"
    expect_message "Done"
    click "cmdVerify"
    expect_message "Varnik Connection valid "
end
click "Option0(2)"
click "cmdModify"
expect(messages(), {{text = "Error: \r\nInvalid attributes\r\n", title = "Error", icon = "critical", buttons = "ok"}})
click "cmdDelete"
expect_message "Done"
click "cmdVerify"
expect_message "Varnik Connection Falided"
click "cmdDelete"
expect_message "Error: \r\nInvalid attributes\r\n"
click "cmdShowOM"
expect_message "There is no data source."
stop()
start_here()
click "cmdVerify"
expect_message "Varnik Connection valid "

scenario "Cancelling the file dialog leaves the path"
answer "cancel"
click "Command4"
expect(text "Text1", own)
