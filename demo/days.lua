-- The shop's people, a day at a time: who buys, what runs low and is ordered, who pays and when. Chance alone
-- decides, and the books of the shop only where a person would look into them too.

local catalogue, people, clock, Days = ...
local chance = math.random
local function one_of(list) return list[chance(#list)] end

local products, customers, suppliers = {}, {}, {}

for i, row in ipairs(catalogue.products) do
    local name, kind, unit, buyUnit, buyPer, cost, sellUnit, sellPer, price, supplier, most = table.unpack(row)
    products[i] = {
        code = string.format("%010d", i), name = name, type = kind, unit = unit, buyUnit = buyUnit, buyPer = buyPer,
        cost = cost, sellUnit = sellUnit, sellPer = sellPer, price = row.price or price, service = row.service,
        supplier = supplier and string.format("%010d", supplier), most = most, stock = 0,
    }
    if row.service then products[i].sellUnit = "TIMES" end
end
for i, row in ipairs(catalogue.suppliers) do
    suppliers[i] = {code = string.format("%010d", i), name = row[1], days = row[6], owed = {}, documents = 0,
                    late = i == 7 and 55 or i == 11 and 75 or i == 6 and 12 or 0}
end
-- Most pay in time, some late; these three have to be reminded.
local Slow = {[9] = 25, [11] = 60, [19] = 90}
for i, row in ipairs(people) do
    customers[i] = {code = string.format("%010d", i), name = row[1], type = row[2], days = row[7], owes = {},
                    late = Slow[i] or i % 5 == 0 and 8 or 0}
end

-- What kinds of customers carry home: the weight of a product type.
local Tastes = {
    RET = {FOO = 5, DRK = 3, CLE = 3, STA = 1},
    SHO = {FOO = 6, DRK = 4, CLE = 1, STA = 1},
    OFF = {FOO = 1, DRK = 3, CLE = 2, STA = 6},
}
local function goods_for(kind)
    while true do
        local product = one_of(products)
        if not product.service and chance(6) <= Tastes[kind][product.type] then return product end
    end
end

local function basket(customer)
    local lines, taken = {}, {}
    for _ = 1, chance(customer.type == "RET" and 4 or 6) do
        local product = goods_for(customer.type)
        local quantity = chance(product.most)
        if not taken[product] and product.stock >= quantity * product.sellPer then
            taken[product] = true
            product.stock = product.stock - quantity * product.sellPer
            local discount = customer.type == "SHO" and quantity * product.price >= 50000 and chance(4) == 1 and 5 or nil
            lines[#lines + 1] = {product, quantity, discount}
        end
    end
    if #lines > 0 and chance(5) == 1 then lines[#lines + 1] = {products[#products - chance(0, 3)], 1} end
    return lines
end

local function serve(day, customer)
    local lines = basket(customer)
    if #lines == 0 then return end
    local number = sell(customer.code, customer.type == "OFF" and "11" or "0", lines)
    if customer.days == 0 then
        pay_at_counter(one_of {"TINI", "RINI"})
    else
        table.insert(customer.owes, {number = number, lines = lines, day = day,
                                     due = day - customer.days - customer.late + chance(-4, 3)})
    end
end

-- Lines for all of a supplier's goods that run low.
local function order(supplier, wanted)
    local lines = {}
    for _, product in ipairs(products) do
        if product.supplier == supplier.code and product.stock < product.most * product.sellPer * 2 then
            local quantity = math.max(1, math.ceil(wanted * product.most * product.sellPer / product.buyPer))
            product.stock = product.stock + quantity * product.buyPer
            lines[#lines + 1] = {product, quantity, chance(8) == 1 and 2 or nil}
        end
    end
    return lines
end

local function restock(day, supplier, wanted)
    local lines = order(supplier, wanted)
    if #lines == 0 then return end
    supplier.documents = supplier.documents + 1
    local theirs = string.format("%s/%03d", (supplier.name:gsub("(%a)%a*%s*", "%1")), 240 + supplier.documents * 17)
    local number = buy(supplier.code, theirs, lines)
    table.insert(supplier.owed, {number = number, lines = lines, day = day,
                                 due = day - supplier.days - supplier.late + chance(0, 3)})
end

-- The documents of a list that are due, taken off it.
local function due(list, day)
    local found = {}
    for i = #list, 1, -1 do
        if list[i].due >= day then table.insert(found, 1, table.remove(list, i)) end
    end
    return found
end

local cheques = 40017
local function collect(day, customer)
    local payments = {}
    for _, invoice in ipairs(due(customer.owes, day)) do payments[#payments + 1] = {invoice.number} end
    if #payments == 0 then return end
    cheques = cheques + chance(9)
    if customer.type == "RET" or chance(2) == 1 then
        receive("CASH", "1", payments, one_of {"TINI", "RINI"})
    else
        receive(one_of {"CHEQUE", "CHEQUE", "BG"}, "2", payments, "RINI",
                {bank = "BANK NUSA", number = "CQ-" .. cheques, owner = customer.name})
    end
end

-- Those who have to be reminded bring a little now and then.
local function remind(customer)
    local oldest = customer.owes[1]
    if not oldest then return end
    local open = sql("Select Saldo From Invoice Where NoInvoice = '" .. oldest.number .. "'")[1][1]
    if open > 60000 then receive("CASH", "1", {{oldest.number, 50000}}, "TINI") end
end

local function settle(day, supplier)
    local payments = {}
    for _, purchase in ipairs(due(supplier.owed, day)) do payments[#payments + 1] = {purchase.number} end
    if #payments == 0 then return end
    cheques = cheques + chance(9)
    pay_supplier(one_of {"CHEQUE", "BG"}, "300", payments, supplier.name, "NB-" .. cheques)
end

-- A line without discount: a return reads the amount of a discount as a percentage.
local function plain_line(document, least)
    for _, line in ipairs(document.lines) do
        if line[3] then return end
    end
    for _, line in ipairs(document.lines) do
        if not line[1].service and line[2] >= least then return line end
    end
end

local function bring_back(customer)
    local invoice = customer.owes[#customer.owes]
    local line = invoice and plain_line(invoice, 2)
    if not line then return end
    take_back(invoice.number, line[1].code, 1, one_of {"RUSAK", "EXPIRED", "WRONG GOODS"}, "one " .. line[1].unit .. " exchanged")
    line[1].stock = line[1].stock + line[1].sellPer
    invoice.lines = {}
    return true
end

local function return_goods(supplier)
    local purchase = supplier.owed[#supplier.owed]
    local line = purchase and plain_line(purchase, 2)
    if not line or line[1].stock < line[1].buyPer then return end
    local left = sql("Select QtySisa From FakturDetail Where NoFaktur = '" .. purchase.number .. "' And KodeBrg = '" ..
                     line[1].code .. "'")[1][1]
    if left < line[1].buyPer then return end
    send_back(purchase.number, line[1].code, 1)
    line[1].stock = line[1].stock - line[1].buyPer
    purchase.lines = {}
    return true
end

-- Half way through, coffee, oil and paper become dearer.
local function raise_prices()
    for _, product in ipairs(products) do
        if product.name:find "COFFEE" or product.name:find "OIL" or product.name:find "PAPER" then
            product.cost = math.floor(product.cost * 1.04 / 500 + 0.5) * 500
            product.price = math.floor(product.price * 1.05 / 500 + 0.5) * 500
        end
    end
end

local function cost(name)
    for number, row in ipairs(catalogue.costs) do
        if row[1] == name then return string.format("%010d", number) end
    end
end

-- What returns by the calendar of the shop: every so many days, from an account, to whom, what for, about how much.
local Expenses = {
    {every = 7, at = 6, account = "1", to = "TINI AND RINI", memo = "WAGES OF THE WEEK", cost = "DAILY WAGES", about = 840000},
    {every = 14, at = 5, account = "1", to = "RINI", memo = "SATURDAY EVENING", cost = "OVERTIME", about = 90000},
    {every = 5, at = 2, account = "1", to = "FUEL STATION", memo = "MOTOR CART", cost = "FUEL", about = 45000},
    {every = 11, at = 4, account = "1", to = "UJANG", memo = "UNLOADING", cost = "DELIVERY HELP", about = 60000},
    {every = 30, at = 8, account = "300", to = "HAJI MANSUR", memo = "RENT OF THE MONTH", cost = "SHOP RENT", about = 2500000},
    {every = 30, at = 12, account = "1", to = "POWER COMPANY", memo = "METER 5512", cost = "ELECTRICITY", about = 410000},
    {every = 30, at = 13, account = "1", to = "WATER WORKS", memo = "METER 0091", cost = "WATER", about = 95000},
    {every = 30, at = 15, account = "300", to = "TELEPHONE COMPANY", memo = "LINE AND INTERNET", cost = "TELEPHONE AND INTERNET", about = 350000},
    {every = 45, at = 20, account = "1", to = "PAK TOTO", memo = "SHELF AND LAMP", cost = "REPAIRS", about = 230000},
    {every = 33, at = 17, account = "1", to = "TOKO ALAT TULIS PELANGI", memo = "RECEIPT BOOKS", cost = "OFFICE SUPPLIES", about = 75000},
}

local function keep_the_cash_book(day)
    for _, expense in ipairs(Expenses) do
        if day % expense.every == expense.at % expense.every then
            local amount = expense.about + chance(-2, 3) * (expense.about // 40 // 500 * 500)
            pay_cost(expense.account, expense.to, expense.memo, cost(expense.cost), amount)
        end
    end
    if day % 30 == 1 then
        pay_cost("300", "BANK NUSA", "FEES OF THE MONTH", cost "BANK CHARGES", 25000)
        receive_other("2", "BANK NUSA", "INTEREST OF THE MONTH", 20000 + chance(30) * 500)
    end
    if day % 16 == 9 then receive_other("1", "PAPER COLLECTOR", "OLD CARTONS", chance(4, 9) * 8000) end
    -- What the drawer does not need goes to the bank.
    if day % 7 == 3 then
        local there = sql "Select SaldoAkhir From Bank Where RekID = '1'"[1][1]
        local spare = (there - 3000000) // 500000 * 500000
        if spare > 0 then
            pay_cost("1", "BANK NUSA", "TO THE BANK", cost "CASH BROUGHT TO THE BANK", spare)
            receive_other("300", "CASH DRAWER", "FROM THE DRAWER", spare)
        end
    end
end

local days = {products = products}

function days.stock_up(day)
    clock(day, "08:00:00")
    for _, supplier in ipairs(suppliers) do restock(day, supplier, 6) end
end

function days.live(day)
    if day == Days // 2 then raise_prices() end
    clock(day, "08:15:00")
    for i, supplier in ipairs(suppliers) do
        if (day + i) % 6 == 0 then restock(day, supplier, 7) end
    end
    clock(day, "10:40:00")
    for i in pairs {[9] = true, [11] = true, [19] = true} do
        if day % 20 == i then serve(day, customers[i]) end
    end
    for _ = 1, chance(2, 4) do
        serve(day, chance(3) == 1 and customers[1] or one_of(customers))
    end
    clock(day, "14:20:00")
    for _, customer in ipairs(customers) do collect(day, customer) end
    for _, supplier in ipairs(suppliers) do settle(day, supplier) end
    keep_the_cash_book(day)
    if day % 25 == 3 then remind(customers[11]) end
    if day % 9 == 4 then
        for _ = 1, 12 do
            if bring_back(customers[chance(2, #customers)]) then break end
        end
    end
    if day % 15 == 7 then
        for _ = 1, 12 do
            if return_goods(one_of(suppliers)) then break end
        end
    end
    if day % 30 == 11 then -- a sale entered twice, and taken out again
        delete_sale(sell(customers[2].code, "0", {{products[9], 2}}))
    end
end

return days
