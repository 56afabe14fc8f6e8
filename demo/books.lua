-- The books of the demo's shop agree with themselves: balances with the documents that are open, stock with
-- its lots and its ledger. The argument is this noon, as a time.

local noon = ...

local function one(statement)
    local rows = sql(statement)
    return rows[1] and rows[1][1] or 0
end
local function whole(amount) return math.floor((amount or 0) + 0.5) end

-- Names, with what a balance says, and what the documents say, both in whole amounts.
local function compare(title, rows)
    local balances, documents = {}, {}
    for _, row in ipairs(rows) do
        balances[row[1]], documents[row[1]] = whole(row[2]), whole(row[3])
    end
    expect({title, balances}, {title, documents})
end
local function each(statement, documents)
    local rows = {}
    for _, row in ipairs(sql(statement)) do rows[#rows + 1] = {row[1], row[2], documents(row[1], row)} end
    return rows
end

scenario "The books agree"

compare("customers", each("Select KodeCus, SaldoAkhir From Customer", function(code)
    return one("Select Sum(Saldo) As S From Invoice Where KodeCus = '" .. code .. "'")
end))
compare("suppliers", each("Select KodeSup, SaldoAkhir From Supplier", function(code)
    return one("Select Sum(Saldo) As S From Faktur Where KodeSup = '" .. code .. "'")
end))
compare("accounts", each("Select RekID, SaldoAkhir, SaldoAwal From Bank", function(code, row)
    return row[3] + (one("Select Sum(Jumlah) As S From BKM Where RekID = '" .. code .. "'") or 0)
        - (one("Select Sum(JumlahBiaya) As S From BKK Where RekID = '" .. code .. "'") or 0)
end))
compare("lots", each("Select KodeBrg, OnHand From Produk Where Jasa = False", function(code)
    return one("Select Sum(QtySisa) As S From FakturDetail Where KodeBrg = '" .. code .. "'")
end))
-- The ledger counts a purchase in the unit it was bought in, everything else in base units.
compare("ledger", each("Select KodeBrg, OnHand From Produk Where Jasa = False", function(code)
    local of = "From Persediaan Where KodeBrg = '" .. code .. "' And NoJurnal "
    return one("Select Sum(Qty1 * Pecahan) As S " .. of .. "= '11'") + one("Select Sum(Qty1) - Sum(Qty2) As S " .. of .. "<> '11'")
end))

-- Something is open in every column of an ageing, on both sides.
for _, ageing in ipairs {"Select TglInvoice From Invoice Where Saldo <> 0", "Select TglFaktur From Faktur Where Saldo <> 0"} do
    local columns = {}
    for _, row in ipairs(sql(ageing)) do
        local year, month, day = row[1]:match "(%d+)-(%d+)-(%d+)"
        local age = (noon - os.time {year = year, month = month, day = day, hour = 12} + 43200) // 86400
        columns[age <= 30 and 1 or age <= 60 and 2 or age <= 90 and 3 or 4] = true
    end
    expect(columns, {true, true, true, true})
end
