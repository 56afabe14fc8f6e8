-- A small shop for the scenarios of money and returns: all tables before and after, and what differs.
dofile(arg[0]:match ".*/" .. "../support/shop.lua")

-- The columns that count, of every table that a sale, a receipt or a return may touch.
local Touched = {
    Customer = "KodeCus, SaldoAkhir",
    Bank = "RekID, SaldoAkhir",
    BKM = "NoBKM, Jumlah, RekID, Setor, Clear",
    Invoice = "NoInvoice, Total, Bayar, Saldo",
    InvoiceBayar = "NoBKM, NoInvoice, KodeCus, Jumlah",
    InvoiceDetail = "NoInvoice, KodeBrg, Qty, QtyOrder, QtyRetur, HPP",
    InvoiceRetur = "ReturID, NoInvoice, Total, Bayar, Saldo",
    InvoiceReturDetail = "ReturID, KodeBrg, Qty, Total, HPP",
    Produk = "KodeBrg, OnHand, QGudang, HPPRata, HargaJual, HargaBeli",
    FakturDetail = "NoFaktur, KodeBrg, QtySisa",
    Persediaan = "NoJurnal, NoRef, KodeBrg, Qty1, Qty2, QtySisa, Saldo",
    PersediaanJual = "NoInvoice, NoPO, KodeBrg, Qty, Harga",
    PersediaanRetur = "ReturID, NoPO, KodeBrg, Qty",
    CustomerSaldo = "*", BankSaldo = "*", JurnalBank = "*", BKK = "*", Supplier = "*", Faktur = "*",
}

function books()
    local all = {}
    for name, columns in pairs(Touched) do all[name] = sql("Select " .. columns .. " From " .. name) end
    return all
end

-- What differs between two states of the books, in order: "Invoice 1.Bayar: 0 -> 500", "BKM +1".
function differences(before, after)
    local found = {}
    for name, columns in pairs(Touched) do
        local names = {}
        for column in columns:gmatch "[%w_*]+" do names[#names + 1] = column end
        if #before[name] ~= #after[name] then
            found[#found + 1] = ("%s %+d"):format(name, #after[name] - #before[name])
        end
        for i = 1, math.min(#before[name], #after[name]) do
            for column = 1, #after[name][i] do
                local was, is = before[name][i][column], after[name][i][column]
                if was ~= is then
                    found[#found + 1] = ("%s %d.%s: %s -> %s"):format(name, i, names[column] or column, was, is)
                end
            end
        end
    end
    table.sort(found)
    return found
end

-- The rows of the lines below the headings, each as a list of its first cells.
function lines(columns)
    local all = {}
    for i = 1, rows "OrderGrid" do
        all[i] = {}
        for column = 0, columns - 1 do all[i][column + 1] = cell("OrderGrid", i, column) end
    end
    return all
end

-- What the open search panel finds by a criterion, as the texts of one column.
function found(criterion, what, column)
    enter("txtKreteria", criterion)
    enter("txtValue", what)
    click "cmdExecute"
    local texts = {}
    for i = 1, rows "grdCari" do texts[i] = cell("grdCari", i, column) end
    return texts
end
