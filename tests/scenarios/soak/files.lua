-- The program meets a database file that may be anything: files.lua work starts on it and does a day's first
-- business, files.lua restore FILE brings a backup back. What came of it is announced in one word and a text.
local function outcome(word, text) scenario(word .. " " .. tostring(text or ""):gsub("[\r\n]+", " ")) end

today "2026-11-22"
start()
local told = messages()
if not running() then
    if #told ~= 1 or told[1].icon ~= "critical" then return outcome("odd", #told .. " boxes") end
    return outcome("refused", told[1].text)
end
local ok, broke = pcall(function()
    login("varnik", "kemiri")
    if arg[1] == "restore" then
        menu "mnuFileBackup"
        answer({file = arg[2]}, "yes")
        click "cmdRestore"
    elseif #sql "Select KodeCus From Customer" > 0 then -- else it is a new one
        open "T01"
        click "bttnNew"
        enter("TxtKodeCus", "C000000001")
        enter("txtKodeBrg", "0000000002")
        enter("txtQty", "1")
        click "bttnAddLine"
        click "bttnSave"
    end
end)
told = messages()
if not ok then return outcome("trouble", told[#told] and told[#told].text or broke) end
if arg[1] == "restore" then return outcome(told[2].text:match "fully restored" and "restored" or "kept", told[2].text) end
if #told > 0 then return outcome("trouble", told[#told].text) end
outcome("worked")
