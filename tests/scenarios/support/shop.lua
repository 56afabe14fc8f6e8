-- A small shop for the scenarios of documents. Products, customers and purchases are put straight into the
-- tables; a purchase is a lot, its row in the stock ledger and the stock that it brought.

today "2026-11-22"
start()
login(User or "varnik", "kemiri") -- a script that works as another user says so before it loads this

local function literal(value)
    if type(value) == "string" and value:match "^#.*#$" then return value end
    if type(value) == "string" then return "'" .. value .. "'" end
    return tostring(value)
end

function insert(into, row)
    local columns, values = {}, {}
    for column in pairs(row) do columns[#columns + 1] = column end
    table.sort(columns)
    for i, column in ipairs(columns) do values[i] = literal(row[column]) end
    sql("INSERT INTO " .. into .. " (" .. table.concat(columns, ",") .. ") VALUES (" ..
        table.concat(values, ",") .. ")")
end

local function with(defaults, row)
    for key, value in pairs(row) do defaults[key] = value end
    return defaults
end

-- product{KodeBrg="...", HargaJual=55000}: sold by the piece unless told otherwise.
function product(row)
    insert("Produk", with({
        NamaBrg = "Goods " .. row.KodeBrg, JenisBrg = "A", Satuan = "PCS", Pecahan = 1, SatuanBeli = "BOX",
        PecahanBeli = 12, SatuanJual = "PCS", PecahanJual = 1, QGudang = 0, QCounter = 0, OnOrder = 0,
        OnHand = 0, HPPAwal = 0, HPPAkhir = 0, HPPRata = 0, QAwal = 0, QJual = 0, QBeli = 0, HargaBeli = 0,
        HargaJual = 0, Jasa = false,
    }, row))
end

function customer(row)
    insert("Customer", with({
        NamaCus = "Customer " .. row.KodeCus, Alamat_1 = "Jl. Satu", Alamat_2 = "Blok B", Alamat_3 = "Kota",
        nDIS = 0, nwDis = 0, nJTP = 0, SaldoAkhir = 0, SaldoAwal = 0,
    }, row))
end

function account(row)
    local defaults = {NamaBank = "Account " .. row.RekID, NamaPemilik = "Shop", NoRek = "1-" .. row.RekID,
                      SaldoAwal = 0, SaldoAkhir = 0, DefaultKas = false}
    for key, value in pairs(row) do defaults[key] = value end
    insert("Bank", defaults)
end

-- Base units of a product bought under a purchase number, for a total.
function purchase(number, code, quantity, total)
    insert("FakturDetail", {
        NoFaktur = number, TglFaktur = "#11/01/2026#", KodeSup = "S1", KodeBrg = code, Qty = quantity,
        Qty2 = 1, Satuan = "PCS", Harga = total / quantity, Disc = 0, Total = total, Jasa = false,
        QtyOrder = quantity, QtyRetur = 0, QtySisa = quantity,
    })
    insert("Persediaan", {
        NoJurnal = "11", NoRef = number, Tanggal = "#11/01/2026#", KodeBrg = code, Memo = "Purchases",
        Harga1 = total / quantity, Harga2 = 0, JenisBrg = "A", Satuan = "PCS", Pecahan = 1, Qty1 = quantity,
        Qty2 = 0, Saldo = quantity, QtySisa = quantity,
    })
    sql("UPDATE Produk SET OnHand = OnHand + " .. quantity .. ", QGudang = QGudang + " .. quantity ..
        " WHERE KodeBrg = '" .. code .. "'")
end

-- What the statement gives for its one row and column.
function value(statement)
    return sql(statement)[1][1]
end

-- Keys for whatever has the focus: what a person without a mouse can do.
function keys(text)
    type(focused(), text)
end

-- A new invoice for a customer, up to the empty entry line; gives its number.
function new_invoice(customer_code, tax)
    click "bttnNew"
    local number = text "TxtNoInvoice"
    if tax then enter("TxtPPN", tax) end
    enter("TxtKodeCus", customer_code)
    return number
end

-- One line of the open invoice. Price and discount as typed; left as they are when nil.
function line(code, quantity, price, discount, unit)
    if not visible "txtKodeBrg" then
        row("OrderGrid", rows "OrderGrid")
        type("OrderGrid", "{Enter}")
    end
    enter("txtKodeBrg", code)
    enter("txtQty", quantity)
    if unit then choose("TxtSatuan", unit) end
    if price then enter("txtHarga", price) end
    if discount then enter("TxtDis", discount) end
    click "bttnAddLine"
end

-- A whole sale: lines are {code, quantity, price, discount, unit}. Gives the number.
function sale(customer_code, lines, tax)
    local number = new_invoice(customer_code, tax)
    for _, each in ipairs(lines) do line(table.unpack(each)) end
    click "bttnSave"
    return number
end

function delete_invoice(number)
    click "bttnDel"
    enter("TxtNoInvoice", number)
    click "bttnSave"
end

-- A row of the grid as a list of texts.
function grid_row(number)
    local cells = {}
    for column = 0, 8 do cells[column + 1] = cell("OrderGrid", number, column) end
    return cells
end
