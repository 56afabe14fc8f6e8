-- A small shop's last hundred days, typed through the screens as its people would: every document from the
-- opening stock to this evening. The days count back from the one on which the script runs, so that there is
-- something in every column of an ageing. Runs on a fresh folder, always to the same shop. With a folder as its
-- argument it ends with lists and documents on paper in it.

local here = arg[0]:match ".*/" or "./"
dofile(here .. "hands.lua")
local catalogue, people = dofile(here .. "catalogue.lua"), dofile(here .. "customers.lua")

math.randomseed(7)
local chance = math.random
local function one_of(list) return list[chance(#list)] end

local Days = 100
local noon = os.time {year = os.date "*t".year, month = os.date "*t".month, day = os.date "*t".day, hour = 12}
-- The clock of the program: so many days before today, at this time.
local function clock(days_ago, time)
    now(os.date("%Y-%m-%d ", noon - days_ago * 86400) .. time)
end

clock(Days, "07:30:00")
start()
login("varnik", "kemiri")

scenario "Who and what the shop deals with"

menu "mnuSetupPerusahaan"
for i, name in ipairs {"txtNama", "txtket", "TxtAlamat1", "TxtAlamat2"} do
    clear(name)
    type(name, catalogue.company[i])
end
click "Command1"
expect_message "Company has been successfully records"
click "Command2"

keep_types("F08", catalogue.productTypes)
click "bttnClose"
keep_types("F09", catalogue.customerTypes)
click "bttnClose"
keep_costs(catalogue.costTypes, catalogue.costs)
at "F04"
for _, account in ipairs(catalogue.accounts) do keep_account(account) end
click "bttnClose"
at "F03"
for _, supplier in ipairs(catalogue.suppliers) do keep_supplier(supplier) end
click "bttnClose"
at "F02"
for _, customer in ipairs(people) do keep_customer(customer) end
click "bttnClose"

local days = assert(loadfile(here .. "days.lua"))(catalogue, people, clock, Days)
at "F01"
for _, product in ipairs(days.products) do keep_product(product) end
click "bttnClose"

scenario "The shop opens"
days.stock_up(Days)

scenario "A hundred days of business"
for day = Days - 1, 0, -1 do days.live(day) end
expect(message(), nil)

assert(loadfile(here .. "books.lua"))(noon)
stop()
if arg[1] then dofile(here .. "papers.lua") end
