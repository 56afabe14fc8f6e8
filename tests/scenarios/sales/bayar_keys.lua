-- How many keys a cash sale costs the till, beyond what is typed as data: Enter, and Alt with a letter.
dofile(arg[0]:match ".*/" .. "../support/receipts.lua")
product{KodeBrg = "0000000001", HargaJual = 55000}
product{KodeBrg = "0000000002", HargaJual = 20000}
customer{KodeCus = "0000000001", NamaCus = "Toko Maju"}
purchase("P00000000100", "0000000001", 100, 4000000)
purchase("P00000000200", "0000000002", 100, 1000000)
account{RekID = "1", NamaBank = "Cash", DefaultKas = true}
open "T01"

local pressed = 0
local function press(key)
    pressed = pressed + 1
    keys(key)
end
-- Entering a field selects what stands in it, so that typing replaces it.
local function data(text)
    clear(focused())
    type(focused(), text)
end

scenario "A cash sale of two lines with its receipt"
press "{Alt+N}"
press "{Alt+C}" -- number, dates and tax stay as proposed
data "0000000001"
press "{Enter}"
expect(focused(), "txtKodeBrg")
data "0000000001" -- goes on by itself
expect(focused(), "txtQty")
data "2"
press "{Alt+A}"
press "{Enter}" -- the next line
data "0000000002"
data "3"
press "{Alt+A}"
press "{Alt+S}"
press "{Alt+R}"
expect(current(), "Bayar")
expect(text "txtDibayar", "170,000")
press "{Alt+S}"
press "{Alt+L}"
expect(current(), "Invoice")
expect(sql "Select Total, Bayar, Saldo From Invoice", {{170000, 170000, 0}})
expect(value "Select SaldoAkhir From Customer", 0)
expect(value "Select SaldoAkhir From Bank", 170000)
expect(sql "Select Jumlah From BKM", {{170000}})
print(pressed .. " command keys")
expect(pressed <= 12, true)
