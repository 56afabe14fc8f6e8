local function write(file, content)
    local stream = assert(io.open(file, "w"))
    stream:write(content)
    stream:close()
end

scenario "A file that is no database of this program ends start-up with a message, and is left alone"
start()
type("txtUserId", "{Esc}")
expect(running(), false)
os.rename("Data/Varnik.mdb", "Data/good.mdb")
write("Data/Varnik.mdb", ("not a database "):rep(1000))
start()
expect(running(), false)
local told = messages()
expect(#told, 1)
expect(told[1].icon, "critical")
expect(io.open("Data/Varnik.mdb"):read(15), "not a database ")

scenario "With the database back the program starts again"
os.remove("Data/Varnik.mdb")
os.rename("Data/good.mdb", "Data/Varnik.mdb")
start()
login("varnik", "kemiri")
expect(current(), "frmMainCode")

scenario "A database that goes away under the open program is reported, screen by screen"
os.rename("Data/Varnik.mdb", "Data/good.mdb")
open "F01"
expect(#messages() > 0, true)
os.rename("Data/good.mdb", "Data/Varnik.mdb")
