-- What a person at the screens does: a word for each paper that comes over the counter of the demo's shop.

-- Prices are always typed: a price proposed is that of the last document, for one base unit.
function price_text(amount) return string.format("%d", math.floor(amount + 0.5)) end

-- Shows a screen of the menu tree, opening it when it is not open yet.
function at(key, screen)
    for _, name in ipairs(screens()) do
        if name == screen then return use(screen) end
    end
    use "frmMainCode"
    open(key)
end

-- Products, customers, suppliers, accounts ------------------------------------------------------------------

function keep_types(key, rows)
    at(key)
    click "bttnAdd"
    for _, row in ipairs(rows) do
        enter("txtKode", row[1])
        enter("txtNama", row[2]) -- saves, and starts the next
    end
    click "bttnCancel"
end

function keep_costs(types, costs)
    at "F06"
    for _, name in ipairs(types) do
        click "bttnAdd"
        type("txtKode", "{Enter}")
        enter("txtNama", name)
        click "bttnOK"
    end
    click "bttnClose"
    at "F07"
    for number, cost in ipairs(costs) do
        click "bttnAdd"
        enter("txtKode", string.format("%010d", number))
        enter("txtNama", cost[1])
        enter("TxtKodeAcc", string.format("%03d", cost[2]))
        click "bttnOK"
    end
    click "bttnClose"
end

-- An opening balance from 1,000 on is not taken while an account is added: it goes in by an edit.
function keep_account(account)
    click "bttnAdd"
    enter("txtRekID", account.code)
    enter("TxtNamaBank", account.name)
    enter("txtNoRek", account.number)
    enter("txtJenisRek", account.kind)
    enter("txtNamaPemilik", account.owner)
    check("Check1", account.default or false)
    click "bttnOK"
    enter("txtRekID", account.code)
    click "bttnEdit"
    enter("txtSaldoAwal", price_text(account.opening))
    enter("txtSaldoAkhir", price_text(account.opening))
    click "bttnOK"
end

function keep_supplier(row)
    local name, street, city, telephone, contact, days = table.unpack(row)
    click "bttnAdd"
    type("txtKode", "{Enter}")
    enter("txtNama", name)
    enter("txtAlamat_1", street)
    enter("txtKota", city)
    enter("txtTelp", telephone)
    enter("txtContax", contact)
    enter("txtnJTP", tostring(days))
    click "bttnOK"
end

function keep_customer(row)
    local name, kind, street, city, telephone, contact, days = table.unpack(row)
    click "bttnAdd"
    type("txtKode", "{Enter}")
    enter("txtNama", name)
    enter("TxtJenis", kind)
    enter("txtAlamat_1", street)
    enter("txtKota", city)
    if telephone ~= "" then enter("txtTelp", telephone) end
    if contact ~= "" then enter("txtContax", contact) end
    enter("txtnJTP", tostring(days))
    click "bttnOK"
end

function keep_product(product)
    click "bttnAdd"
    type("txtKode", "{Enter}") -- the code as proposed
    enter("txtNama", product.name)
    enter("TxtJenis", product.type)
    if product.service then
        check("Check1", true)
    else
        enter("TxtSatuan", product.unit)
        enter("TxtPecahanBeli", tostring(product.buyPer))
        enter("TxtSatuanBeli", product.buyUnit)
        enter("txtHargaBeli", price_text(product.cost / product.buyPer))
        enter("TxtPecahanJual", tostring(product.sellPer))
    end
    enter("TxtSatuanJual", product.sellUnit)
    enter("TxtHargaJual", price_text(product.price))
    if not product.service then enter("TxtKodeSup", product.supplier) end
    click "bttnOK"
end

-- Sales --------------------------------------------------------------------------------------------------------

-- Lines are {product, quantity, discount in percent}. Gives the number and the total.
function sell(customer, tax, lines)
    at("T01", "Invoice")
    click "bttnNew"
    local number = text "TxtNoInvoice"
    enter("TxtPPN", tax)
    enter("TxtKodeCus", customer)
    for _, line in ipairs(lines) do
        local product, quantity, discount = table.unpack(line)
        if not visible "txtKodeBrg" then doubleclick("OrderGrid", rows "OrderGrid") end
        enter("txtKodeBrg", product.code)
        enter("txtQty", tostring(quantity))
        enter("txtHarga", price_text(product.price))
        if discount then enter("TxtDis", tostring(discount)) end
        click "bttnAddLine"
    end
    click "bttnSave"
    return number
end

-- The invoice on the screen is paid at once, into the account that is offered first.
function pay_at_counter(receiver)
    click "bttnBayar"
    enter("TxtNamaPenerima", receiver)
    click "bttnSave"
    click "bttnClose"
end

function delete_sale(number)
    at("T01", "Invoice")
    click "bttnDel"
    enter("TxtNoInvoice", number)
    click "bttnSave"
end

-- One product of an invoice comes back; the other lines are emptied first, so that the totals follow.
function take_back(number, code, quantity, reason, note)
    at("T03", "InvoiceRetur")
    click "bttnNew"
    local id = text "TxtReturID"
    enter("TxtNoInvoice", number)
    local kept
    for line = 1, rows "OrderGrid" do
        if cell("OrderGrid", line, 0) == code then
            kept = line
        elseif cell("OrderGrid", line, 0) ~= "" then
            row("OrderGrid", line)
            if visible "txtQty" then click "cmdBatalLine" end
            row("OrderGrid", line)
            type("OrderGrid", "{Del}")
        end
    end
    row("OrderGrid", kept)
    enter("txtQty", tostring(quantity))
    click "bttnAddLine"
    enter("Combo1", reason)
    enter("txtket", note)
    click "bttnSave"
    return id
end

-- Invoices is a list of {number, amount or nil for all of it}.
function receive(method, account, invoices, receiver, cheque)
    at("T02", "BayarInvoice")
    click "bttnNew"
    local number = text "txtNoBukti"
    choose("TxtCaraBayar", method)
    choose("TxtRekening", account)
    if method ~= "CASH" then
        enter("TxtNamaBank", cheque.bank)
        enter("TxtNoCek", cheque.number)
        enter("TxtPemilik", cheque.owner)
    end
    for _, invoice in ipairs(invoices) do
        enter("TxtNoInvoice", invoice[1])
        if invoice[2] then enter("TxtJumlah", price_text(invoice[2])) end
        click "bttnAddLine"
    end
    enter("TxtNamaPenerima", receiver)
    click "bttnSave"
    return number
end

-- Purchases ----------------------------------------------------------------------------------------------------

-- Lines are {product, quantity in its buying unit, discount in percent}.
function buy(supplier, their_number, lines)
    at("T04", "Faktur")
    click "bttnNew"
    local number = text "TxtNoFaktur"
    enter("TxtNoFaktur", number)
    enter("txtFaksup", their_number)
    enter("TxtKodeSup", supplier)
    for _, line in ipairs(lines) do
        local product, quantity, discount = table.unpack(line)
        row("OrderGrid", rows "OrderGrid")
        enter("txtKodeBrg", product.code)
        enter("txtQty", tostring(quantity))
        enter("txtHarga", price_text(product.cost))
        if discount then enter("TxtDis", tostring(discount)) end
        click "bttnAddLine"
    end
    click "bttnSave"
    return number
end

-- So many of one product go back to the supplier; the other lines are taken out first.
function send_back(number, code, quantity)
    at("T06", "FakturRetur")
    click "bttnNew"
    local id = text "TxtNoFaktur"
    enter("TxtNoFaktur", id)
    enter("txtNoPO", number)
    for line = rows "OrderGrid", 1, -1 do
        local there = cell("OrderGrid", line, 0)
        if there ~= "" and there ~= code then
            row("OrderGrid", line)
            if visible "txtQty" then click "bttnBatalLine" end
            row("OrderGrid", line)
            type("OrderGrid", "{Del}")
        end
    end
    row("OrderGrid", 1)
    enter("txtQty", tostring(quantity))
    click "bttnAddLine"
    answer "yes"
    click "bttnSave"
    messages() -- the question
    return id
end

-- Purchases is a list of {number, amount or nil for all of it}, all of one supplier.
function pay_supplier(method, account, purchases, payee, cheque)
    at("T05", "BayarFaktur")
    click "bttnNew"
    local number = text "txtNoBukti"
    enter("txtNoBukti", number)
    enter("TxtCaraBayar", method)
    enter("TxtRekening", account)
    if method ~= "CASH" then enter("TxtNoCek", cheque) end
    enter("TxtNamaPenerima", payee)
    for _, purchase in ipairs(purchases) do
        enter("TxtNoFaktur", purchase[1])
        if purchase[2] then enter("TxtJumlah", price_text(purchase[2])) end
        click "bttnAddLine"
    end
    click "bttnSave"
    return number
end

-- The cash book ------------------------------------------------------------------------------------------------

local function voucher(key, screen, method, account, payee)
    at(key, screen)
    click "bttnNew"
    local number = text "txtNoBukti"
    choose("TxtCaraBayar", method)
    enter("TxtRekening", account)
    enter("TxtNamaPenerima", payee)
    return number
end

function receive_other(account, from, memo, amount)
    local number = voucher("T08", "OtherReceive", "CASH", account, from)
    enter("TxtMemo", memo)
    enter("TxtJumlah", price_text(amount))
    click "bttnSave"
    return number
end

-- One cost a payment: the book of an account counts a payment of several once for each of them.
function pay_cost(account, payee, memo, cost, amount)
    local number = voucher("T09", "OtherPayment", "CASH", account, payee)
    enter("TxtMemo", memo)
    enter("TxtBiaya", cost)
    enter("TxtJumlah", price_text(amount))
    click "bttnAddLine"
    click "bttnSave"
    return number
end
