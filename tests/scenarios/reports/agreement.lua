-- Sales, receipts, purchases, payments and returns by chance over five months: what the reports add up is what
-- the documents hold. The seed is printed; "agreement.lua SEED" repeats a run.
dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
local seed = tonumber(arg and arg[1]) or 20261123
print("seed " .. seed)
math.randomseed(seed)
local chance = math.random

insert("JenisProduk", {KodeJenisProduk = "A", JenisProduk = "DRY GOODS"})
insert("JenisProduk", {KodeJenisProduk = "B", JenisProduk = "TEA"})
for i = 1, 4 do
    product{KodeBrg = "P" .. i, NamaBrg = "Goods " .. i, HargaJual = chance(1, 90) * 100, HargaBeli = chance(1, 80) * 10,
            JenisBrg = i < 3 and "A" or "B", SatuanBeli = "PCS", PecahanBeli = 1, HPPRata = 1}
end
for i = 1, 3 do
    customer{KodeCus = "C" .. i}
    supplier{KodeSup = "S" .. i}
end
account{RekID = "1", DefaultKas = true}
account{RekID = "901"}
open "T04"
for i = 1, 3 do buy("S" .. i, {{"P1", "900", "70"}, {"P2", "900", "80"}, {"P3", "900", "55"}, {"P4", "900", "5"}}) end
open "T01"

-- Whole amounts: a percentage would be rounded on each line and on the document.
local function lines(quantity)
    local list = {}
    for i = 1, 4 do
        if i == 4 and #list == 0 or chance(1, 2) == 1 then
            list[#list + 1] = {"P" .. i, tostring(chance(1, quantity)), tostring(chance(10, 40) * 100), chance(1, 3) == 1 and tostring(chance(100, 900)) or nil}
        end
    end
    return list
end
local invoices, purchases = {}, {}
local function pay(screen, account_code, number_field, numbers)
    open(screen)
    click "bttnNew"
    choose("TxtCaraBayar", "CASH")
    choose("TxtRekening", account_code)
    enter(number_field, numbers[chance(1, #numbers)])
    enter("TxtJumlah", tostring(chance(1, 20)))
    click "bttnAddLine"
    click "bttnSave"
    click "bttnClose"
end
scenario "Five months of business"
for _, day in ipairs {"2026-06-30", "2026-08-23", "2026-08-24", "2026-09-22", "2026-09-23", "2026-10-22", "2026-10-23", "2026-11-21", "2026-11-22"} do
    today(day)
    use "Faktur"
    purchases[#purchases + 1] = buy("S" .. chance(1, 3), lines(9))
    use "Invoice"
    for _ = 1, 2 do invoices[#invoices + 1] = sale("C" .. chance(1, 3), lines(5), chance(1, 2) == 1 and "10" or nil) end
    pay("T02", "1", "TxtNoInvoice", invoices)
    pay("T05", "901", "TxtNoFaktur", purchases)
end
for i = 1, 3 do
    open "T03"
    click "bttnNew"
    enter("TxtNoInvoice", invoices[6 * i])
    row("OrderGrid", 1)
    enter("txtQty", "1")
    click "bttnAddLine"
    click "bttnSave"
    click "bttnClose"
end
messages()

-- The sum of a column of the newest report, as a spreadsheet would add it up.
local function sum(column)
    local file = os.tmpname()
    report():csv(file)
    local at, total = nil, 0
    for text in io.lines(file) do
        local cells = {}
        for each in (text:gsub("\r$", "") .. ","):gmatch '"?(.-)"?,' do cells[#cells + 1] = each end
        if at then total = total + (tonumber(cells[at]) or 0) end
        if not at then
            for i, heading in ipairs(cells) do if heading == column then at = i end end
            if not at then break end -- left out, as nothing stood in it
        end
    end
    os.remove(file)
    return ("%.4f"):format(total)
end
local function stored(statement) return ("%.4f"):format(value(statement) or 0) end
local function run(kind, form)
    click(kind)
    if visible "DTPicker1" then date("DTPicker1", "2026-08-24") end
    if form then click(form) end
    click "OKButton"
    expect(message(), nil)
end

local function agree(screen, header, invoice_date, party, returned)
    open(screen)
    local within = " Where " .. invoice_date .. " Between #08/24/2026# And #11/22/2026#"
    for _, form in ipairs {"Option2", "Option1"} do
        for _, kind in ipairs {"opLap2", "opLap3"} do
            run(kind, form)
            expect(sum "Total", stored("Select Sum(Total) From " .. header .. within))
            expect(sum "Gross", stored("Select Sum(Bruto) From " .. header .. within))
            expect(sum "Discount", stored("Select Sum(Disc) From " .. header .. within))
        end
    end
    run "opLap4"
    for heading, column in pairs {Total = "Total", Paid = "Bayar", Balance = "Saldo"} do
        expect(sum(heading), stored("Select Sum(" .. column .. ") From " .. header .. within))
    end
    local balances = sum "Balance"
    run "opLap5"
    expect(sum "Total", stored("Select Sum(Total2) From " .. returned .. within))
    run "opLap1" -- of everybody, since Summary was chosen last
    local ages = sum "0 - 30 days" + sum "31 - 60 days" + sum "61 - 90 days" + sum "Over 90 days"
    expect({sum "Balance", ("%.4f"):format(ages)}, {stored("Select Sum(Saldo) From " .. header), sum "Balance"})
    -- From 24 August on, 90 days back, is what is not yet over 90 days old.
    expect(balances, ("%.4f"):format(sum "0 - 30 days" + sum "31 - 60 days" + sum "61 - 90 days"))
    for i = 1, 3 do
        local open_balance = stored("Select Sum(Saldo) From " .. header .. " Where " .. party .. i .. "'")
        expect(report():text():gsub(",", ""):match("Total %a+ " .. screen_party .. i .. "[^\n]-(%-?[%d.]+)") + 0, open_balance + 0)
    end
end
scenario "Receivables and sales"
screen_party = "C"
agree("L01", "Invoice", "TglInvoice", "KodeCus = 'C", "QryInvoiceRetur")
scenario "Payables and purchases"
screen_party = "S"
agree("L04", "Faktur", "TglFaktur", "KodeSup = 'S", "QryPORetur")
