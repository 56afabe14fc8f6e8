-- A day of business by chance: purchases, sales and deletions, recounted afterwards by plain sums that know
-- nothing of the postings. The seed is printed; "random_day.lua SEED" repeats a day.
dofile(arg[0]:match ".*/" .. "../support/shop.lua")

local seed = tonumber(arg and arg[1]) or 20261122
print("seed " .. seed)
math.randomseed(seed)
local chance = math.random

local Products, Customers, Steps = 8, 4, 60
local codes, buyers, standing = {}, {}, {}
local bought, sold = {}, {} -- base units by product: of purchases, of invoices that stand
for i = 1, Products do
    codes[i] = string.format("%010d", i)
    product{KodeBrg = codes[i], HargaJual = chance(1, 90) * 100, Jasa = i == Products,
            PecahanJual = i % 3 == 0 and 12 or 1, SatuanJual = i % 3 == 0 and "DUS" or "PCS"}
    bought[codes[i]], sold[codes[i]] = 0, 0
end
for i = 1, Customers do
    buyers[i] = string.format("C%09d", i)
    customer{KodeCus = buyers[i]}
end
open "T01"

local purchases = 0
local function buy()
    local code = codes[chance(1, Products - 1)]
    local quantity = chance(1, 40)
    purchases = purchases + 1
    purchase(string.format("P%011d", purchases), code, quantity, quantity * chance(1, 50) * 10)
    bought[code] = bought[code] + quantity
end

local function sell()
    local lines, used, units = {}, {}, {}
    for _ = 1, chance(1, 4) do
        local at = chance(1, Products)
        if not used[at] then
            used[at] = true
            local quantity = chance(1, 12)
            lines[#lines + 1] = {codes[at], tostring(quantity), nil, chance(1, 3) == 1 and tostring(chance(1, 30)) or nil}
            if at < Products then
                local base = quantity * (at % 3 == 0 and 12 or 1)
                units[codes[at]] = base
                sold[codes[at]] = sold[codes[at]] + base
            end
        end
    end
    local buyer = buyers[chance(1, Customers)]
    local number = sale(buyer, lines, tostring(chance(0, 1) * 10))
    standing[#standing + 1] = {number = number, units = units}
end

local function undo()
    local at = chance(1, #standing)
    local gone = table.remove(standing, at)
    delete_invoice(gone.number)
    for code, base in pairs(gone.units) do sold[code] = sold[code] - base end
end

scenario "A day by chance"
for _ = 1, Steps do
    local what = chance(1, 10)
    if what <= 4 then buy() elseif what <= 8 or #standing == 0 then sell() else undo() end
end
expect(message(), nil)

scenario "The books, recounted"
for i, code in ipairs(codes) do
    local where = " Where KodeBrg = '" .. code .. "'"
    local on_hand, in_store = table.unpack(sql("Select OnHand, QGudang From Produk" .. where)[1])
    expect(on_hand, i < Products and bought[code] - sold[code] or 0)
    expect(in_store, on_hand)
    -- What the lots gave is what the sales remember to have drawn, lot by lot and in all.
    local drawn, left, open = 0, 0, 0
    for _, lot in ipairs(sql("Select NoFaktur, Qty, Qty2, QtySisa From FakturDetail" .. where)) do
        local from_lot = 0
        for _, part in ipairs(sql("Select Qty From PersediaanJual" .. where .. " And NoPO = '" .. lot[1] .. "'")) do
            from_lot = from_lot + part[1]
        end
        expect(lot[4] + from_lot, lot[2] * lot[3])
        drawn, left = drawn + from_lot, left + lot[4]
    end
    expect(drawn + left, bought[code])
    -- The ledger explains the lots: bought, less sold, plus given back; the open rows sum up to what is left.
    local moved = 0
    for _, entry in ipairs(sql("Select NoJurnal, Qty1, Qty2, QtySisa From Persediaan" .. where)) do
        moved = moved + entry[2] - entry[3]
        if entry[1] == "11" then open = open + entry[4] end
    end
    expect(moved, left)
    expect(open, left)
end
for _, buyer in ipairs(buyers) do
    local owed = 0
    for _, invoice in ipairs(sql("Select Total From Invoice Where KodeCus = '" .. buyer .. "'")) do
        owed = owed + invoice[1]
    end
    expect(value("Select SaldoAkhir From Customer Where KodeCus = '" .. buyer .. "'"), owed)
end
local numbers = {}
for i, each in ipairs(standing) do numbers[i] = each.number end
table.sort(numbers)
local stored = {}
for i, invoice in ipairs(sql "Select NoInvoice From Invoice Order By NoInvoice") do stored[i] = invoice[1] end
expect(stored, numbers)
-- The cost of every line is what its lots cost.
for _, detail in ipairs(sql "Select NoInvoice, KodeBrg, HPP From InvoiceDetail") do
    local cost = 0
    for _, part in ipairs(sql("Select Qty, Harga From PersediaanJual Where NoInvoice = '" .. detail[1] ..
                              "' And KodeBrg = '" .. detail[2] .. "'")) do
        cost = cost + part[1] * part[2]
    end
    expect(detail[3], cost)
end
