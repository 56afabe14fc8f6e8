-- A small shop for the scenarios of purchases: that of sales, with suppliers, and purchases that are entered
-- through their screen.
dofile(arg[0]:match ".*/" .. "../support/shop.lua")

function supplier(row)
    local defaults = {
        NamaSup = "Supplier " .. row.KodeSup, Alamat_1 = "Jl. Dua", Alamat_2 = "Gudang 3", Alamat_3 = "Blok C",
        Kota = "Bandung", Telp = "022-1", nDIS = 0, nwDis = 0, nJTP = 0, SaldoAwal = 0, SaldoAkhir = 0,
    }
    for key, value in pairs(row) do defaults[key] = value end
    insert("Supplier", defaults)
end

-- A new purchase from a supplier, up to the grid; gives its number.
function new_purchase(code)
    click "bttnNew"
    enter("TxtNoFaktur", text "TxtNoFaktur")
    enter("TxtKodeSup", code)
    return text "TxtNoFaktur"
end

-- One line of the open purchase, on the empty last row. What is nil stays as the product has it.
function purchase_line(code, quantity, price, discount, unit)
    row("OrderGrid", rows "OrderGrid")
    enter("txtKodeBrg", code)
    if quantity then enter("txtQty", quantity) end
    if unit then enter("TxtSatuan", unit) end
    if price then enter("txtHarga", price) end
    if discount then enter("TxtDis", discount) end
    click "bttnAddLine"
end

-- A whole purchase: lines are {code, quantity, price, discount, unit}. Gives the number.
function buy(code, lines)
    local number = new_purchase(code)
    for _, each in ipairs(lines) do purchase_line(table.unpack(each)) end
    click "bttnSave"
    return number
end

function delete_purchase(number, sure)
    click "bttnDel"
    enter("TxtNoFaktur", number)
    answer(sure or "yes")
    click "bttnSave"
end

-- All rows of all tables that a purchase may touch.
Touched = {"Supplier", "Faktur", "FakturDetail", "Produk", "Persediaan", "FakturBayar", "FakturRetur",
           "FakturReturDetail", "PersediaanJual", "Bank", "BKK", "SupplierSaldo"}
function books()
    local all = {}
    for _, name in ipairs(Touched) do all[name] = sql("Select * From " .. name) end
    return all
end

local Widest = 25 -- columns of the widest table
-- What differs between two states of the books, cell by cell; columns count from 1 in the order of the schema.
function differences(before, after)
    local changed = {}
    for _, name in ipairs(Touched) do
        if #before[name] ~= #after[name] then changed[#changed + 1] = name .. " " .. #after[name] - #before[name] end
        for i = 1, math.min(#before[name], #after[name]) do
            for column = 1, Widest do
                local was, is = before[name][i][column], after[name][i][column]
                if was ~= is then
                    changed[#changed + 1] = name .. "." .. i .. "." .. column .. ": " .. tostring(was) .. " -> " .. tostring(is)
                end
            end
        end
    end
    return changed
end
