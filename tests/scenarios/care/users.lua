local function access()
    local granted = {}
    for r = 1, rows "grdCari" do
        if cell("grdCari", r, 3) == "-1" then granted[#granted + 1] = cell("grdCari", r, 0) end
    end
    return table.concat(granted, " ")
end

local function grant(...)
    for _, menu_id in ipairs {...} do
        for r = 1, rows "grdCari" do
            if cell("grdCari", r, 0) == menu_id then
                row("grdCari", r)
                type("grdCari", " ")
            end
        end
    end
end

local function users()
    return sql "Select UserID,NoUser,Tambah,Lihat,Ganti,Hapus From T_User Order By NoUser"
end

local function find(name)
    answer {input = name}
    click "bttnFind"
end

-- A new user up to the rights, which the caller grants before Save. The name first: each of its letters
-- looks the user up and empties the rest.
local function add(name, code, password)
    click "bttnAdd"
    enter("txtUserId", name)
    enter("TxtNoUser", code)
    enter("txtPass", password)
end

local function as(user, password)
    start()
    login(user, password)
    menu "mnuToolUser"
end

local everything = "F01 F02 F03 F04 F06 F07 F08 F09 L01 L04 L13 L16 L17 L18 T01 T02 T03 T04 T05 T06 T08 T09"

scenario "At first no user shows and every menu shows as granted"
as("varnik", "kemiri")
expect(caption(), "Setup User")
expect(text "txtUserId", "")
expect(rows "grdCari", 22)
expect(access(), everything)
for _, field in ipairs {"txtUserId", "TxtNoUser", "txtPass", "Tambah", "Lihat", "Ganti", "Hapus", "grdCari"} do
    expect(enabled(field), false)
end
expect(visible "bttnOK", false)
expect(visible "bttnDelete", true)

click "bttnAdd"
expect(focused(), "txtUserId")
expect(access(), "")
type("txtUserId", "x{Esc}")
expect(text "txtUserId", "varnik") -- the current row

scenario "A user is found by name, wildcards and all, and shows with the password in clear"
find "VAR*"
expect(text "txtUserId", "varnik")
expect(text "TxtNoUser", "00")
expect(text "txtPass", "kemiri")
expect(checked "Tambah" and checked "Lihat" and checked "Ganti" and checked "Hapus", true)
expect(access(), everything)
find "nobody"
expect_message "Could not find the user id nobody"
find ""
expect(text "txtUserId", "varnik")
find "it's"
expect(#messages(), 1)

scenario "Saving the first user drops the rights that no menu has, and their repeats"
click "bttnEdit"
expect(visible "bttnOK", true)
expect(visible "bttnAdd", false)
click "bttnOK"
expect(access(), everything)
expect(sql "Select Count(*) From SecurityUser", {{22}})

scenario "A new user gets four rights and the granted leaves"
add("sari", "07", "m4war'9")
check("Lihat", true)
grant("T01", "F08", "F01", "L13", "L13")
click "bttnOK"
expect(users(), {{"varnik", "00", true, true, true, true}, {"sari", "07", false, true, false, false}})
expect(sql "Select MenuID From SecurityUser Where UserID = '07'", {{"F01"}, {"F08"}, {"T01"}})
expect(text "txtPass", "m4war'9")
expect(access(), "F01 F08 T01")

scenario "While editing, each change of the name looks the user up at once; Cancel brings back the shown one"
click "bttnEdit"
enter("txtUserId", "varnik")
expect(text "TxtNoUser", "00")
expect(text "txtPass", "kemiri")
expect(access(), everything)
type("txtUserId", "'")
expect(text "TxtNoUser", "")
expect(access(), "")
click "bttnCancel"
expect(text "txtUserId", "sari")
expect(access(), "F01 F08 T01")
expect(enabled "txtUserId", false)

scenario "Rights are replaced whole; a new code makes a new row and leaves the old one"
click "bttnEdit"
enter("txtUserId", "sari2")
enter("TxtNoUser", "08")
enter("txtPass", "")
grant("F02")
click "bttnOK"
expect(#users(), 3)
click "bttnEdit"
grant("F02", "F03")
click "bttnOK"
expect(access(), "F03")
expect(sql "Select MenuID From SecurityUser Where UserID = '08'", {{"F03"}})
expect(sql "Select Count(*) From SecurityUser Where UserID = '07'", {{3}})

scenario "What the columns refuse is told, and what was typed stays to be put right"
local before = sql "Select * From SecurityUser"
for _, case in ipairs {
    {"SARI", "09", "", "There is already a row with this T_User.UserID; it must be unique."},
    {"budi", "123", "", "The text is too long for T_User.NoUser (at most 2 characters)."},
    {"budi", "09", ("p"):rep(21), "The text is too long for T_User.Password (at most 20 characters)."},
} do
    add("budi", case[2], case[3])
    if case[1] == "SARI" then
        enter("txtUserId", "SARI")
        enter("TxtNoUser", "09")
    end
    click "bttnOK"
    expect_message(case[4])
    expect(text "txtUserId", case[1])
    expect(text "TxtNoUser", case[2])
    click "bttnCancel"
    expect(text "txtUserId", "sari2")
end
expect(#users(), 3)
expect(sql "Select * From SecurityUser", before)

scenario "An empty code writes rights for the empty code; two users of one code cannot be told apart"
add("nocode", "", "")
grant("T01")
click "bttnOK"
expect(sql "Select UserID, MenuID From SecurityUser Where UserID = ''", {{"", "T01"}})
sql "Insert Into T_User Values ('twin','08','',True,True,True,True)"
find "twin"
click "bttnEdit"
enter("TxtNoUser", "08")
check("Hapus", true)
click "bttnOK"
expect_message "There is already a row with this T_User.UserID; it must be unique."
click "bttnCancel"

scenario "Deleting takes the user on screen after a question, with his rights"
find "sari2"
answer "no"
click "bttnDelete"
expect(sql "Select Count(*) From SecurityUser Where UserID = '08'", {{1}})
find "nocode"
answer "yes"
click "bttnDelete"
expect(sql "Select Count(*) From T_User Where NoUser = ''", {{0}})
expect(sql "Select Count(*) From SecurityUser Where UserID = ''", {{0}})
expect(text "txtUserId", "varnik")

scenario "A user with few rights sees his leaves, reaches this screen, and finds the other buttons silent"
stop()
sql "Update T_User Set [Password] = '' Where UserID = 'sari'"
as("sari", "")
use "frmMainCode"
expect(items "TV", {"M", "F", "F01", "F08", "F09", "T", "T01", "L"})
open "F01"
messages()
local asked = #prompts()
local function quiet(button)
    click(button)
    expect(message(), nil)
    expect(#prompts(), asked)
    expect(current(), "fProduk")
end
for _, button in ipairs {"bttnAdd", "bttnEdit", "bttnDelete"} do quiet(button) end
use "fuser"
find "sari"
click "bttnEdit"
check("Tambah", true)
grant("F02")
click "bttnOK"
use "frmMainCode"
expect(#items "TV", 8) -- the menu is read once
stop()
start()
login("sari", "")
expect(items "TV", {"M", "F", "F01", "F08", "F02", "F09", "T", "T01", "L"})
open "F01"
click "bttnAdd"
expect(enabled "bttnOK", true)
stop()

scenario "Passwords survive saving, loading and login, whatever characters their stored form has"
as("varnik", "kemiri")
-- Against the key "MXNC...": a blank at the front, a null character, an apostrophe, a blank at the end.
local cases = {"mawar", "MXN", "jasmine", "1Ax", "Zz", "12345678901234567890", "p. q", "M", "ax"}
for i, password in ipairs(cases) do
    add("user" .. i, "1" .. i, password)
    click "bttnOK"
    expect(text "txtPass", password)
end
stop()
for i, password in ipairs(cases) do
    start()
    login("user" .. i, password)
    expect(current(), "frmMainCode")
    menu "mnuToolUser"
    find("user" .. i)
    expect(text "txtPass", password)
    click "bttnEdit"
    click "bttnOK"
    stop()
end
start()
login("user2", "MXN")
expect(text("sbStatusBar", 5), "User  USER2(12)")
