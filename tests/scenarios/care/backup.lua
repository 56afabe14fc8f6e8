local function exists(file)
    local stream = io.open(file, "rb")
    if stream then stream:close() end
    return stream ~= nil
end

local function bytes(file)
    local stream <close> = assert(io.open(file, "rb"))
    return stream:read "a"
end

local function write(file, content)
    local stream <close> = assert(io.open(file, "wb"))
    stream:write(content)
end

local function company() return sql("Select NamaPerusahaan From Company")[1][1] end

local function restore(file, decision)
    use "frmBackup"
    answer({file = file}, decision or "yes")
    click "cmdRestore"
    expect_message "Are you sure you want to restore the database"
end

now "2026-11-22 09:30:00"
start()
login("varnik", "kemiri")

scenario "Cancelling leaves everything as it was"
menu "mnuFileBackup"
expect(caption(), "Back Up and Restore Files")
answer("cancel", "cancel")
click "cmdBackUp"
click "cmdRestore"
expect(message(), nil)

scenario "A backup is one file that is a database itself, and comes back with screens open"
answer {file = "monday.bck"}
click "cmdBackUp"
expect_message "Backup Completed!!"
local monday = bytes "monday.bck"
expect(monday:sub(1, 15), "SQLite format 3")
for _, tail in ipairs {"-wal", "-shm", "-journal", ".tmp"} do expect(exists("monday.bck" .. tail), false) end
use "frmMainCode"
menu "mnuToolUser"
sql "Update Company Set NamaPerusahaan = 'Tuesday'"
sql "Insert Into T_User Values ('sari','07','',True,True,True,True)"
restore("monday.bck", "no")
expect(message(), nil)
expect(company(), "Tuesday")
restore "MONDAY.bck"
expect_message "Database has been fully restored!!"
expect(company(), "Varnik Small Business")
expect(bytes "monday.bck", monday)
expect(exists "Data/Varnik.mdb.restore", false)
use "fuser"
answer {input = "sari"}
click "bttnFind"
expect_message "Could not find the user id sari"

scenario "What stood there before is kept under a name with the time"
restore "Data/Varnik before restore 2026-11-22 093000.bck"
expect_message "Database has been fully restored!!"
expect(company(), "Tuesday")
expect(exists "Data/Varnik before restore 2026-11-22 093000 (2).bck", true)
use "fuser"
answer {input = "sari"}
click "bttnFind"
expect(text "txtUserId", "sari")

scenario "What is no sound database of this program is refused, and nothing changes"
local own = "Data/Varnik.mdb"
write("text.bck", ("no database "):rep(500))
write("cut.bck", monday:sub(1, #monday // 2))
local refused = {}
for _, file in ipairs {"text.bck", "cut.bck", "missing.bck", own} do
    restore(file)
    refused[#refused + 1] = message()
end
expect(refused, {
    "The file \"text.bck\" is not a database.",
    "The database \"cut.bck\" is damaged or cut off. Restore a backup.",
    "The database \"missing.bck\" was not found.",
    "A database cannot be restored from itself.",
})

scenario "A backup that cannot be written says so and leaves the name as it was"
for _, file in ipairs {"no/such/folder.bck", own} do
    answer {file = file}
    click "cmdBackUp"
end
expect_message "The file \"folder.bck\" cannot be written: No such file or directory."
expect_message "A database cannot be copied onto itself."
expect(message(), nil)
expect(bytes "monday.bck", monday)

scenario "The next start finds what was restored last"
stop()
start()
login("varnik", "kemiri")
expect(caption(), "Varnik - Tuesday")
