-- One workstation of several on one shop: station.lua users opens their accounts, station.lua USER SEED DOCUMENTS
-- does business by chance and says of every document what it was.
local Users = {"budi", "tini", "agus", "sari", "joko", "rina", "dewi"} -- beside the first one
User = arg[1] ~= "users" and arg[1] or nil
dofile(arg[0]:match ".*/" .. "../support/business.lua")
if arg[1] == "users" then
    open_shop(300) -- the stations meet on lots that one sale empties
    local password = value "Select [Password] From T_User"
    for i, name in ipairs(Users) do
        insert("T_User", {UserID = name, NoUser = "0" .. i, Password = password, Tambah = true, Ganti = true,
                          Hapus = true, Lihat = true})
        for _, key in pairs(Screens) do insert("SecurityUser", {UserID = "0" .. i, MenuID = key}) end
    end
    return
end

-- Partner and amount of a document, by its kind.
local Stored = {
    sale = "Select KodeCus, Total From Invoice Where NoInvoice = '",
    receipt = "Select KodeCus, Jumlah From InvoiceBayar Where NoBKM = '",
    take_back = "Select KodeCus, Total From InvoiceRetur Where ReturID = '",
    purchase = "Select KodeSup, Total From Faktur Where NoFaktur = '",
    send_back = "Select KodeSup, Total From FakturRetur Where NoFaktur = '",
    payment = "Select KodeSup, Jumlah From FakturBayar Where NoBKK = '",
    income = "Select 'nobody', Jumlah From BKM Where NoBKM = '",
    expense = "Select 'nobody', Jumlah From BKK Where NoBKK = '",
}
Stored.cash = Stored.receipt
for kind, post in pairs(Post) do
    local deleted = kind:match "^(.*)_deleted$"
    Post[kind] = function(first, lines)
        local function stored(number) return table.unpack(sql(Stored[deleted or kind] .. number .. "'")[1]) end
        local number, partner, amount = first
        if deleted then partner, amount = stored(first) end
        local given = post(first, lines)
        if not deleted then
            number = given
            partner, amount = stored(number)
        end
        scenario(("posted %s %s %s %s %d"):format(kind, number, partner, amount, 
                 type(lines) == "table" and #lines or 0))
        return given
    end
end

math.randomseed(tonumber(arg[2]))
open_screens()
for _ = 1, tonumber(arg[3]) do one_more() end
expect(messages(), {})
