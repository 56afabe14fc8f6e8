-- What comes out of the printer on an evening in the demo's shop, reports and all, as PDF and text in the folder that the
-- argument names; then the balances, as they stand. Runs on the folder that shop.lua filled.

local folder = arg[1]
-- Reports look back over these days, books into the month that lay two weeks ago: early in a month there is
-- little in it yet.
local Period, TwoWeeks = 90, 14
local function days_ago(days, format) return os.date(format, os.time() - days * 86400) end

-- Books ask for the first of the month with the day first: so a machine that writes it so has their balances.
regional {date = "dd/mm/yyyy", decimal = ".", group = ","}
start()
login("varnik", "kemiri")

local function keep(name)
    local paper = report()
    expect(paper.rows > 0, true)
    paper:pdf(folder .. "/" .. name .. ".pdf")
    local file = io.open(folder .. "/" .. name .. ".txt", "w")
    file:write(paper:text())
    file:close()
    paper:close()
end

scenario "Lists"
for _, list in ipairs {{"F01", "products"}, {"F02", "customers"}, {"F03", "suppliers"}, {"F04", "accounts"}} do
    use "frmMainCode"
    open(list[1])
    click "bttnPrint"
    keep(list[2])
    click "bttnClose"
end

scenario "The last documents of each kind"
local documents = {
    {"T01", "TxtNoInvoice", "invoice", "Select NoInvoice From Invoice Order By NoInvoice"},
    {"T02", "txtNoBukti", "receipt", "Select NoBKM From InvoiceBayar Order By NoBKM"},
    {"T03", "TxtReturID", "sales-return", "Select ReturID From InvoiceRetur Order By ReturID"},
    {"T04", "TxtNoFaktur", "purchase", "Select NoFaktur From Faktur Order By NoFaktur"},
    {"T05", "txtNoBukti", "payment", "Select NoBKK From FakturBayar Order By NoBKK"},
    {"T08", "txtNoBukti", "other-receipt", "Select NoBKM From BKM Where NoBKM Not In (Select NoBKM From InvoiceBayar) Order By NoBKM"},
    {"T09", "txtNoBukti", "other-payment", "Select NoBKK From BKK Where KodeBiaya <> '' Order By NoBKK"},
    {"T06", "TxtNoFaktur", "purchase-return", "Select NoFaktur From FakturRetur Order By NoFaktur"},
}
for _, document in ipairs(documents) do
    local key, field, name, statement = table.unpack(document)
    local numbers = sql(statement)
    use "frmMainCode"
    open(key)
    enter(field, numbers[#numbers][1])
    click "bttnPrint"
    keep(name)
    click "bttnClose"
end

scenario "The reports"
local function print_report(key, screen, name, choose_it)
    use "frmMainCode"
    open(key)
    choose_it()
    click "OKButton"
    keep(name)
    use(screen)
    click "CancelButton"
end
-- Clicks the option of a report, and sets the day that its period begins on, where it has one.
local function look_back(option)
    if option then click(option) end
    if visible "DTPicker1" then date("DTPicker1", days_ago(Period, "%Y-%m-%d")) end
end
for key, screen in pairs {L01 = "SalesReport", L04 = "PurchasesReport"} do
    local side = key == "L01" and "sales" or "purchases"
    for option, name in pairs {opLap1 = "aged", opLap2 = "by-type", opLap3 = "by-name", opLap4 = "balances", opLap5 = "returns"} do
        print_report(key, screen, side .. "-" .. name, function() look_back(option) end)
    end
end
for option, name in pairs {opLap1 = "inventory", opLap2 = "stock-card", opLap3 = "price-list"} do
    print_report("L13", "LapPers1", name, function() look_back(option) end)
end
print_report("L21", "LapBiaya1", "costs", look_back)
for key, book in pairs {L16 = {"BukuBank", "1"}, L17 = {"BukuHutang", "0000000001"}, L18 = {"BukuPiutang", "0000000003"}} do
    print_report(key, book[1], book[1]:sub(5):lower() .. "-book", function()
        enter("Combo1", book[2])
        enter("Text1", days_ago(TwoWeeks, "%m"))
        enter("Text2", days_ago(TwoWeeks, "%Y"))
    end)
end

local function show(title, rows)
    print("\n" .. title)
    for _, row in ipairs(rows) do
        for column, cell in ipairs(row) do
            local whole = math.type(cell) and string.format("%.0f", cell)
            row[column] = whole and (" "):rep(13 - #whole) .. whole or string.format("%-24s", cell)
        end
        print("  " .. table.concat(row, "  "))
    end
end
show("Accounts: opening and final balance", sql "Select NamaBank, SaldoAwal, SaldoAkhir From Bank Order By RekID")
show("Customers: what they owe", sql "Select NamaCus, SaldoAkhir From Customer Where SaldoAkhir <> 0 Order By NamaCus")
show("Suppliers: what we owe", sql "Select NamaSup, SaldoAkhir From Supplier Where SaldoAkhir <> 0 Order By NamaSup")
show("Sales: amount and cost of goods",
     sql "Select JenisProduk, Sum(Total) As Amount, Sum(THPP) As Cost From QryPenjualanDetail Group By JenisProduk")
show("Stock at average cost", sql "Select JenisBrg, Sum(OnHand * HPPRata) As Value From Produk Group By JenisBrg")
stop()
