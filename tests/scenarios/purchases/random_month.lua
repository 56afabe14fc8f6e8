-- A month of business by chance, through the screens: purchases, sales and deletions of both. Lots, ledger,
-- stock and average cost are recounted by plain sums that know nothing of the postings. The seed is printed;
-- "random_month.lua SEED" walks through another month.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")

local seed = tonumber(arg and arg[1]) or 20261122
print("seed " .. seed)
math.randomseed(seed)
local chance = math.random

local Products, Days = 6, 30
local goods, documents = {}, {}
for i = 1, Products do
    local code = string.format("%010d", i)
    product{KodeBrg = code, Jasa = i == Products, HargaJual = 500, SatuanBeli = "DUS", PecahanBeli = 1 + i % 3 * 4}
    goods[i] = {code = code, unit = 1 + i % 3 * 4, service = i == Products, onhand = 0, average = 0, lots = {}}
end
supplier{KodeSup = "S1"}
customer{KodeCus = "C1"}
local owed, latest = 0, nil

local function some_lines()
    local lines, used = {}, {}
    for _ = 1, chance(1, 4) do
        local item = goods[chance(1, Products)]
        if not used[item] then
            used[item] = true
            lines[#lines + 1] = {item = item, quantity = chance(1, 20), price = chance(1, 900) * 10, discount = chance(0, 3) * 10}
        end
    end
    return lines
end

local function purchase_some()
    local lines, typed = some_lines(), {}
    for i, line in ipairs(lines) do
        typed[i] = {line.item.code, tostring(line.quantity), tostring(line.price), line.discount > 0 and tostring(line.discount) or nil}
    end
    use "Faktur"
    local number = buy("S1", typed)
    local stored = sql("Select Total, Qty2 From FakturDetail Where NoFaktur = '" .. number .. "'")
    for i, line in ipairs(lines) do
        local item = line.item
        -- An amount of discount under 100 is read as a percentage again; here it is what was stored that counts.
        line.total, line.base = stored[i][1], line.quantity * item.unit
        expect(stored[i][2], item.unit)
        if not item.service then
            item.average = (item.onhand * item.average + line.total) / (item.onhand + line.base)
            item.onhand = item.onhand + line.base
            item.lots[#item.lots + 1] = {number = number, left = line.base, cost = line.total / line.base}
        end
    end
    owed = owed + value("Select Total From Faktur Where NoFaktur = '" .. number .. "'")
    latest = number
    documents[#documents + 1] = {kind = "purchase", number = number, lines = lines}
end

-- Draws the lots in the order of entry; gives what each gave, and the cost.
local function draw(item, wanted)
    local given, cost = {}, 0
    for _, lot in ipairs(item.lots) do
        local taken = math.min(lot.left, wanted)
        if taken > 0 then
            lot.left, wanted, cost = lot.left - taken, wanted - taken, cost + taken * lot.cost
            given[#given + 1] = {lot = lot, taken = taken}
        end
    end
    return given, cost
end

local function sell_some()
    local lines, typed = some_lines(), {}
    for i, line in ipairs(lines) do
        -- Never more than there is: a sale beyond the lots leaves no trace in them.
        local most = line.item.service and 20 or math.min(line.item.onhand, 20)
        line.quantity = most
        if most > 0 then typed[#typed + 1] = {line.item.code, tostring(most)} end
        lines[i] = line
    end
    if #typed == 0 then return end
    use "Invoice"
    local number = sale("C1", typed)
    for _, line in ipairs(lines) do
        local item = line.item
        if line.quantity > 0 and not item.service then
            local cost
            line.given, cost = draw(item, line.quantity)
            item.onhand = item.onhand - line.quantity
            expect(math.abs(value("Select HPP From InvoiceDetail Where NoInvoice = '" .. number .. "' And KodeBrg = '" ..
                                  item.code .. "'") / cost - 1) < 1e-6, true)
        end
    end
    documents[#documents + 1] = {kind = "sale", number = number, lines = lines}
end

local function delete_some()
    local at = chance(1, #documents)
    local gone = documents[at]
    if gone.kind == "sale" then
        use "Invoice"
        delete_invoice(gone.number)
        for _, line in ipairs(gone.lines) do
            for _, part in ipairs(line.given or {}) do
                part.lot.left = part.lot.left + part.taken
                line.item.onhand = line.item.onhand + part.taken
            end
        end
    else
        -- The latest number would be given out again, and two ledger rows of one number share what comes back.
        if gone.number == latest then return end
        for _, line in ipairs(gone.lines) do -- only what nobody has sold from
            for _, lot in ipairs(line.item.lots) do
                if lot.number == gone.number and lot.left < line.base then return end
            end
        end
        use "Faktur"
        delete_purchase(gone.number)
        messages()
        for _, line in ipairs(gone.lines) do
            local item = line.item
            if not item.service then
                local rest = item.onhand - line.base
                item.average = rest > 0 and (item.onhand * item.average - line.total) / rest or 0
                item.onhand = rest
                for i, lot in ipairs(item.lots) do
                    if lot.number == gone.number then table.remove(item.lots, i) break end
                end
            end
        end
    end
    table.remove(documents, at)
end

local function near(a, b) return math.abs(a - b) <= 1e-6 * math.max(1, math.abs(a), math.abs(b)) end

scenario "A month by chance"
open "T04"
open "T01"
for day = 1, Days do
    today(string.format("2026-11-%02d", day))
    for _ = 1, 3 do
        local what = chance(1, 10)
        if what <= 4 then purchase_some() elseif what <= 8 or #documents == 0 then sell_some() else delete_some() end
    end
end
expect(message(), nil)

scenario "The books, recounted"
for _, item in ipairs(goods) do
    local where = " Where KodeBrg = '" .. item.code .. "'"
    local on_hand, in_store, average = table.unpack(sql("Select OnHand, QGudang, HPPRata From Produk" .. where)[1])
    expect({on_hand, in_store}, {item.onhand, item.onhand})
    expect({item.code, near(average, item.average)}, {item.code, true})
    if not item.service then
        local lots, left, open_rows, moved = sql("Select NoFaktur, QtySisa From FakturDetail" .. where), {}, 0, 0
        local counted, sum = {}, 0
        for i, lot in ipairs(lots) do left[i] = lot end
        for i, lot in ipairs(item.lots) do counted[i] = {lot.number, lot.left} sum = sum + lot.left end
        expect(left, counted)
        expect(sum, item.onhand)
        for _, entry in ipairs(sql("Select NoJurnal, Qty1, Pecahan, Qty2, QtySisa From Persediaan" .. where)) do
            -- A purchase's row counts in the unit of its line, the others in base units.
            moved = moved + entry[2] * (entry[1] == "11" and entry[3] or 1) - entry[4]
            open_rows = open_rows + entry[5]
        end
        expect({item.code, moved, open_rows}, {item.code, item.onhand, sum})
    end
end
-- The supplier's balance keeps the deleted purchases.
expect(value "Select SaldoAkhir From Supplier", owed)
