-- A month of business by chance, through the screens: purchases, their returns, sales, and deletions of
-- them all. Lots, ledger, stock and average cost are recounted by plain sums that know nothing of the
-- postings. The seed is printed; "random_month.lua SEED" walks through another month.
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
    goods[i] = {code = code, unit = 1 + i % 3 * 4, service = i == Products, onhand = 0, average = 0, lots = {}, open = {}}
end
supplier{KodeSup = "S1"}
customer{KodeCus = "C1"}
local owed = 0

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
            item.open[#item.open + 1] = {number = number, left = line.base}
        end
    end
    owed = owed + value("Select Total From Faktur Where NoFaktur = '" .. number .. "'")
    documents[#documents + 1] = {kind = "purchase", number = number, lines = lines}
end

-- Raises the open quantity of a purchase's rows in the ledger: the first of that number, or all.
local function raise_open(item, number, base, all)
    for _, entry in ipairs(item.open) do
        if entry.number == number then
            entry.left = entry.left + base
            if not all then return end
        end
    end
end

-- Draws the lots in the order of entry; gives what each gave, and the cost.
local function draw(item, wanted)
    local given, cost = {}, 0
    for _, lot in ipairs(item.lots) do
        local taken = math.min(lot.left, wanted)
        if taken > 0 then
            lot.left, wanted, cost = lot.left - taken, wanted - taken, cost + taken * lot.cost
            given[#given + 1] = {lot = lot, taken = taken}
            for _, entry in ipairs(item.open) do
                if entry.left > 0 then entry.left = entry.left - taken break end
            end
        end
    end
    return given, cost
end

local function sell_some()
    local lines, typed = some_lines(), {}
    for i, line in ipairs(lines) do
        -- Never more than there is: a sale beyond the lots leaves no trace in them.
        local most = line.item.service and 20 or math.max(0, math.min(line.item.onhand, 20))
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

local function return_some()
    local from = documents[chance(1, #documents)]
    if from.kind ~= "purchase" then return end
    -- Never more than is left of each lot: stock below zero is a scenario of its own.
    local lot_of = {}
    for _, line in ipairs(from.lines) do
        for _, lot in ipairs(line.item.lots) do
            if lot.number == from.number then lot_of[line] = lot end
        end
        if lot_of[line] and lot_of[line].left < line.item.unit then return end
    end
    use "FakturRetur"
    click "bttnNew"
    enter("TxtNoFaktur", text "TxtNoFaktur")
    enter("txtNoPO", from.number)
    local number, lines = text "TxtNoFaktur", {}
    for i, line in ipairs(from.lines) do
        row("OrderGrid", i)
        local most = lot_of[line] and lot_of[line].left // line.item.unit or line.quantity
        enter("txtQty", tostring(chance(1, math.tointeger(most))))
        click "bttnAddLine"
        lines[i] = {item = line.item}
    end
    answer "yes"
    click "bttnSave"
    messages()
    owed = owed - value("Select Total From FakturRetur Where NoFaktur = '" .. number .. "'")
    for i, detail in ipairs(sql("Select Qty, Qty2, Total From FakturReturDetail Where NoFaktur = '" .. number .. "'")) do
        local line, item = lines[i], lines[i].item
        line.base, line.total = detail[1] * detail[2], detail[3]
        if not item.service then
            local average = item.onhand <= 0 and 0 or item.average
            if item.onhand - line.base > 0 and item.onhand * item.average - line.total > 0 then
                average = (item.onhand * item.average - line.total) / (item.onhand - line.base)
            end
            item.average, item.onhand = average, item.onhand - line.base
            line.lot = lot_of[from.lines[i]]
            line.lot.left = line.lot.left - line.base
            raise_open(item, number, -line.base)
        end
    end
    from.returned = (from.returned or 0) + 1
    documents[#documents + 1] = {kind = "return", number = number, lines = lines, from = from}
end

local function delete_return(gone)
    use "FakturRetur"
    local total = value("Select Total From FakturRetur Where NoFaktur = '" .. gone.number .. "'")
    click "bttnDel"
    enter("TxtNoFaktur", gone.number)
    answer "yes"
    click "bttnSave"
    messages()
    owed, gone.from.returned = owed + total, gone.from.returned - 1
    for _, line in ipairs(gone.lines) do
        local item = line.item
        if not item.service then
            item.average = (item.onhand * item.average + line.total) / (item.onhand + line.base)
            item.onhand, line.lot.left = item.onhand + line.base, line.lot.left + line.base
            raise_open(item, gone.from.number, line.base)
        end
    end
end

local function delete_some()
    local at = chance(1, #documents)
    local gone = documents[at]
    if gone.kind == "return" then
        delete_return(gone)
        table.remove(documents, at)
        return
    end
    if gone.kind == "sale" then
        use "Invoice"
        delete_invoice(gone.number)
        for _, line in ipairs(gone.lines) do
            for _, part in ipairs(line.given or {}) do
                part.lot.left = part.lot.left + part.taken
                raise_open(line.item, part.lot.number, part.taken)
                line.item.onhand = line.item.onhand + part.taken
            end
        end
    else
        if (gone.returned or 0) > 0 then return end
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
                raise_open(item, gone.number, -line.base, true)
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
open "T06"
open "T01"
for day = 1, Days do
    today(string.format("2026-11-%02d", day))
    for _ = 1, 3 do
        local what = chance(1, 10)
        if what <= 4 or #documents == 0 then
            purchase_some()
        elseif what <= 6 then
            sell_some()
        elseif what <= 8 then
            return_some()
        else
            delete_some()
        end
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
        for _, entry in ipairs(item.open) do open_rows = open_rows - entry.left end
        for _, entry in ipairs(sql("Select NoJurnal, Qty1, Pecahan, Qty2, QtySisa From Persediaan" .. where)) do
            -- A purchase's row counts in the unit of its line, the others in base units.
            moved = moved + entry[2] * (entry[1] == "11" and entry[3] or 1) - entry[4]
            open_rows = open_rows + entry[5]
        end
        expect({item.code, moved, open_rows}, {item.code, item.onhand, 0})
    end
end
-- The supplier's balance keeps the deleted purchases.
expect({near(value "Select SaldoAkhir From Supplier", owed)}, {true})
