-- Customers, invoices, receipts and returns by chance, on the paths on which the ledgers agree: sales, receipts
-- of whole amounts and returns, none of them deleted. Balances are recounted by plain sums that know nothing
-- of the postings. The seed is printed; "receipt_agreement.lua SEED" repeats a run.
dofile(arg[0]:match ".*/" .. "../support/receipts.lua")
local seed = tonumber(arg and arg[1]) or 20261122
print("seed " .. seed)
math.randomseed(seed)
local chance = math.random

for i = 1, 4 do
    local code = ("%010d"):format(i)
    product{KodeBrg = code, HargaJual = chance(1, 90) * 100, Jasa = i == 4}
    if i < 4 then purchase("P0000000" .. i .. "000", code, 1000, 1000 * chance(10, 90)) end
end
for i = 1, 3 do customer{KodeCus = ("%010d"):format(i)} end
account{RekID = "1", DefaultKas = true}
account{RekID = "2"}
open "T01"
open "T02"
open "T03"

local invoices = {}
local function sell()
    use "Invoice"
    local lines = {}
    for i = 1, chance(1, 3) do lines[i] = {("%010d"):format(i + chance(0, 1)), tostring(chance(2, 9))} end
    for i = #lines, 2, -1 do if lines[i][1] == lines[i - 1][1] then table.remove(lines, i) end end
    invoices[#invoices + 1] = sale(("%010d"):format(chance(1, 3)), lines, chance(1, 2) == 1 and "10" or nil)
    if chance(1, 3) == 1 then -- paid at once, as proposed
        click "bttnBayar"
        click "bttnSave"
        click "bttnClose"
    end
end
local function receive()
    use "BayarInvoice"
    click "bttnNew"
    choose("TxtCaraBayar", "CASH")
    choose("TxtRekening", tostring(chance(1, 2)))
    for _ = 1, chance(1, 3) do
        enter("TxtNoInvoice", invoices[chance(1, #invoices)])
        enter("TxtJumlah", tostring(chance(1, 50) * 100))
        click "bttnAddLine"
    end
    click "bttnSave"
end
local function take_back()
    use "InvoiceRetur"
    click "bttnNew"
    enter("TxtNoInvoice", invoices[chance(1, #invoices)])
    row("OrderGrid", 1)
    enter("txtQty", "1")
    click "bttnAddLine"
    click "bttnSave"
end

scenario "A week by chance"
sell()
for _ = 1, 40 do ({sell, receive, take_back})[chance(1, 3)]() end
expect(message(), nil)

scenario "Customers owe what invoices say, less receipts, less returns; accounts hold what came in"
local function sum(statement)
    local total = 0
    for _, each in ipairs(sql(statement)) do total = total + each[1] end
    return total
end
for i = 1, 3 do
    local of = " Where KodeCus = '" .. ("%010d"):format(i) .. "'"
    expect(value("Select SaldoAkhir From Customer" .. of),
           sum("Select Total From Invoice" .. of) - sum("Select Jumlah From InvoiceBayar" .. of) -
               sum("Select Total From InvoiceRetur" .. of))
    expect(value("Select SaldoAkhir From Customer" .. of), sum("Select Saldo From Invoice" .. of))
end
for _, number in ipairs(invoices) do
    local of = " Where NoInvoice = '" .. number .. "'"
    local total, paid, balance = table.unpack(sql("Select Total, Bayar, Saldo From Invoice" .. of)[1])
    expect(total, paid + balance)
    expect(paid, sum("Select Jumlah From InvoiceBayar" .. of) + sum("Select Total From InvoiceRetur" .. of))
end
for _, code in ipairs{"1", "2"} do
    expect(value("Select SaldoAkhir From Bank Where RekID = '" .. code .. "'"),
           sum("Select Jumlah From BKM Where RekID = '" .. code .. "'"))
end
