-- Every kind of document through its screen, for scripts that do business by chance: each function enters one
-- document or takes one back. The goods, partners and accounts are those of open_shop, and the clicks that
-- write are announced before and after, so that whoever watches knows what is under way.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")

Goods, Buyers, Sellers, Costs = {}, {}, {}, {"0000000001", "0000000002"}
for i = 1, 6 do Goods[i] = ("%010d"):format(i) end
for i = 1, 3 do Buyers[i], Sellers[i] = ("C%09d"):format(i), ("S%d"):format(i) end
local Service = Goods[#Goods]

-- The shop before its first day; once in a folder. What there is of each of the goods lasts for all days: a
-- purchase that brings a negative stock to nothing would divide by it. Before the lot that lasts stand small ones.
function open_shop(small_lots)
    local lots = 0
    local function lot(...)
        lots = lots + 1
        purchase(("P%011d"):format(lots), ...)
    end
    for i, code in ipairs(Goods) do
        product{KodeBrg = code, HargaJual = 10 * i, Jasa = code == Service, SatuanBeli = "DUS", PecahanBeli = 1 + i % 3 * 4}
        if code ~= Service then
            for _ = 1, small_lots or 1 do lot(code, 7, 70) end
            lot(code, 100000, 500000)
        end
    end
    for _, code in ipairs(Buyers) do customer{KodeCus = code} end
    for _, code in ipairs(Sellers) do supplier{KodeSup = code} end
    account{RekID = "1", NamaBank = "Cash", DefaultKas = true}
    account{RekID = "901", NamaBank = "Bank Nusa"}
    account{RekID = "2", NamaBank = "Petty Cash"}
    account{RekID = "3", NamaBank = "Bank Dua"}
    insert("JenisBiaya", {KodeJenisBiaya = "001", JenisBiaya = "Running"})
    for i, code in ipairs(Costs) do insert("Biaya", {KodeBiaya = code, Diskripsi = "Cost " .. i, KodeJenisBiaya = "001"}) end
end

-- ---- What writes is announced ----

local What, Writes = "", 0
local plain_click = click
local DeletesAtOnce = {BayarInvoice = true, BayarFaktur = true}

function click(name)
    if name ~= "bttnSave" and not (name == "bttnDel" and DeletesAtOnce[current()]) then return plain_click(name) end
    Writes = Writes + 1
    scenario(("begin %d %s"):format(Writes, What))
    plain_click(name)
    scenario(("end %d"):format(Writes))
end

Ignored = 0 -- failing statements that the next document is known to have and that are passed over

-- Enters one document; what it gives is passed on. The boxes that asked are taken, others are left.
local function document(what, screen, enter_it, ...)
    What = what
    use(screen)
    for _ = 1, Ignored do answer "ignore" end
    local result = enter_it(...)
    for _, box in ipairs(messages()) do
        local known = box.buttons == "abort retry ignore" and Ignored > 0
        if known then Ignored = Ignored - 1 end
        if not known and (box.buttons == "ok" or box.icon == "critical") then error(what .. ": a box says " .. box.text) end
    end
    return result
end

Screens = {Invoice = "T01", BayarInvoice = "T02", InvoiceRetur = "T03", Faktur = "T04", BayarFaktur = "T05", FakturRetur = "T06",
           OtherReceive = "T08", OtherPayment = "T09"}
function open_screens()
    for _, key in ipairs{"T01", "T02", "T03", "T04", "T05", "T06", "T08", "T09"} do open(key) end
end

-- ---- Documents: lines are {code, quantity, price}, quantities as texts ----

Post = {}

function Post.sale(buyer, lines, tax) return document("sale", "Invoice", sale, buyer, lines, tax) end

function Post.sale_deleted(number) return document("sale_deleted", "Invoice", delete_invoice, number) end

-- Pays the invoice that the screen shows, which is the one saved last.
function Post.cash()
    return document("cash", "Invoice", function()
        click "bttnBayar"
        local number = text "txtNoBukti"
        click "bttnSave"
        click "bttnClose"
        return number
    end)
end

-- Amounts as texts; without them each invoice is paid whole.
function Post.receipt(invoices, amounts)
    return document("receipt", "BayarInvoice", function()
        click "bttnNew"
        local number = text "txtNoBukti"
        choose("TxtCaraBayar", "CASH")
        choose("TxtRekening", "1")
        for i, each in ipairs(invoices) do
            enter("TxtNoInvoice", each)
            if amounts then enter("TxtJumlah", amounts[i]) end
            click "bttnAddLine"
        end
        click "bttnSave"
        return number
    end)
end

local function delete_voucher(number)
    enter("txtNoBukti", number)
    answer "yes"
    click "bttnDel"
end
function Post.receipt_deleted(number) return document("receipt_deleted", "BayarInvoice", delete_voucher, number) end

-- The first line goes back in this quantity, the others whole.
function Post.take_back(invoice, quantity)
    return document("take_back", "InvoiceRetur", function()
        click "bttnNew"
        local number = text "TxtReturID"
        enter("TxtNoInvoice", invoice)
        row("OrderGrid", 1)
        enter("txtQty", quantity)
        click "bttnAddLine"
        click "bttnSave"
        return number
    end)
end

function Post.take_back_deleted(number)
    return document("take_back_deleted", "InvoiceRetur", function()
        click "bttnDel"
        enter("TxtReturID", number)
        click "bttnSave"
    end)
end

function Post.purchase(seller, lines) return document("purchase", "Faktur", buy, seller, lines) end

function Post.purchase_deleted(number) return document("purchase_deleted", "Faktur", delete_purchase, number) end

-- The first lines go back in these quantities, the others whole.
function Post.send_back(purchased, ...)
    local quantities = {...}
    return document("send_back", "FakturRetur", function()
        click "bttnNew"
        enter("TxtNoFaktur", text "TxtNoFaktur")
        enter("txtNoPO", purchased)
        local number = text "TxtNoFaktur"
        for i, quantity in ipairs(quantities) do
            row("OrderGrid", i)
            enter("txtQty", quantity)
            click "bttnAddLine"
        end
        answer "yes"
        click "bttnSave"
        return number
    end)
end

function Post.send_back_deleted(number)
    return document("send_back_deleted", "FakturRetur", function()
        click "bttnDel"
        enter("TxtNoFaktur", number)
        answer "yes"
        click "bttnSave"
    end)
end

function Post.payment(purchases, amounts)
    return document("payment", "BayarFaktur", function()
        click "bttnNew"
        local number = text "txtNoBukti"
        enter("txtNoBukti", number)
        enter("TxtCaraBayar", "CASH")
        enter("TxtRekening", "901")
        for i, each in ipairs(purchases) do
            enter("TxtNoFaktur", each)
            if amounts then enter("TxtJumlah", amounts[i]) end
            click "bttnAddLine"
        end
        click "bttnSave"
        return number
    end)
end

function Post.payment_deleted(number) return document("payment_deleted", "BayarFaktur", delete_voucher, number) end

function Post.income(amount)
    return document("income", "OtherReceive", function()
        click "bttnNew"
        local number = text "txtNoBukti"
        choose("TxtCaraBayar", "CASH")
        enter("TxtRekening", "3")
        enter("TxtJumlah", amount)
        click "bttnSave"
        return number
    end)
end

-- Costs are {code, amount}.
function Post.expense(costs)
    return document("expense", "OtherPayment", function()
        click "bttnNew"
        local number = text "txtNoBukti"
        choose("TxtCaraBayar", "CASH")
        enter("TxtRekening", "2")
        for _, each in ipairs(costs) do
            enter("TxtBiaya", each[1])
            enter("TxtJumlah", each[2])
            click "bttnAddLine"
        end
        click "bttnSave"
        return number
    end)
end

local function delete_cash_voucher(number)
    click "bttnDel"
    enter("txtNoBukti", number)
    click "bttnSave"
end
function Post.income_deleted(number) return document("income_deleted", "OtherReceive", delete_cash_voucher, number) end
-- Of an expense of one cost: of more, the others would stay.
function Post.expense_deleted(number) return document("expense_deleted", "OtherPayment", delete_cash_voucher, number) end

-- ---- A day by chance: what stands is remembered, so that what is taken back is there ----

local chance = math.random
local standing = {sale = {}, receipt = {}, take_back = {}, purchase = {}, send_back = {}, payment = {},
                  income = {}, expense = {}}

local function some_lines(prices)
    local lines, used = {}, {}
    for _ = 1, chance(1, 3) do
        local code = Goods[chance(1, #Goods)]
        if not used[code] then
            used[code] = true
            lines[#lines + 1] = {code, tostring(chance(1, 5)), prices and tostring(chance(1, 40)) or nil}
        end
    end
    return lines
end

-- Takes one that meets the condition out of those that stand.
local function take(kind, condition)
    local all = standing[kind]
    local from = #all > 0 and chance(1, #all) or 1
    for i = 0, #all - 1 do
        local at = (from + i - 1) % #all + 1
        if not condition or condition(all[at]) then return table.remove(all, at) end
    end
end
local function stands(kind, each) table.insert(standing[kind], each) end
local function untouched(each) return not each.touched end

local Kinds = {}
function Kinds.sale()
    local lines = some_lines()
    stands("sale", {number = Post.sale(Buyers[chance(1, #Buyers)], lines), lines = lines})
    if chance(1, 3) == 1 then
        standing.sale[#standing.sale].touched = true
        stands("receipt", {number = Post.cash()})
    end
end
function Kinds.purchase()
    local lines = some_lines(true)
    stands("purchase", {number = Post.purchase(Sellers[chance(1, #Sellers)], lines), lines = lines})
end
-- The documents of `from` that are touched by one of `to`.
local function upon(to, from, post)
    local each = take(from, untouched)
    if not each then return Kinds[from]() end
    each.touched = true
    stands(from, each)
    stands(to, {number = post(each), from = each})
end
local function less(each) return tostring(chance(1, tonumber(each.lines[1][2]))) end
function Kinds.receipt() upon("receipt", "sale", function(each) return Post.receipt{each.number} end) end
function Kinds.take_back() upon("take_back", "sale", function(each) return Post.take_back(each.number, less(each)) end) end
function Kinds.payment() upon("payment", "purchase", function(each) return Post.payment{each.number} end) end
function Kinds.send_back() upon("send_back", "purchase", function(each) return Post.send_back(each.number, less(each)) end) end
function Kinds.income() stands("income", {number = Post.income(tostring(chance(1, 900)))}) end
function Kinds.expense()
    local costs = {}
    for i = 1, chance(1, 2) do costs[i] = {Costs[i], tostring(chance(1, 50))} end
    stands("expense", {number = Post.expense(costs), touched = #costs > 1})
end
function Kinds.deletion()
    local kinds = {"sale", "receipt", "take_back", "purchase", "send_back", "payment", "income", "expense"}
    local kind = kinds[chance(1, #kinds)]
    local gone = take(kind, untouched)
    if gone then Post[kind .. "_deleted"](gone.number) else Kinds[kind]() end
end

local Weighted = {"purchase", "purchase", "purchase", "sale", "sale", "sale", "sale", "receipt", "take_back", "payment",
                  "send_back", "income", "expense", "deletion", "deletion"}
function one_more() Kinds[Weighted[chance(1, #Weighted)]]() end
