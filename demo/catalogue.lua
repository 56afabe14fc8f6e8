-- What the demo's shop deals in, with and over: types, costs, accounts, suppliers and products.

local shop = {}

shop.company = {"KIOS MELATI", "Groceries, household and paper", "Jl. Kenanga 7, Cimahi", "Telp. 022-6650112"}

shop.productTypes = {
    {"CLE", "CLEANING AND HOUSEHOLD"}, {"DRK", "COFFEE, TEA AND DRINKS"}, {"FOO", "FOOD"}, {"SRV", "SERVICES"},
    {"STA", "PAPER AND STATIONERY"},
}

shop.customerTypes = {{"OFF", "OFFICES"}, {"RET", "HOUSEHOLDS"}, {"SHO", "SHOPS AND STALLS"}}

shop.costTypes = {"WAGES", "PREMISES", "TRANSPORT", "OFFICE", "TRANSFERS"}
-- Cost, and the place of its type above.
shop.costs = {
    {"DAILY WAGES", 1}, {"OVERTIME", 1}, {"SHOP RENT", 2}, {"ELECTRICITY", 2}, {"WATER", 2}, {"REPAIRS", 2},
    {"FUEL", 3}, {"DELIVERY HELP", 3}, {"TELEPHONE AND INTERNET", 4}, {"OFFICE SUPPLIES", 4}, {"BANK CHARGES", 4},
    {"CASH BROUGHT TO THE BANK", 5},
}

-- Customer receipts know an account by the first character of its code, supplier payments by three: so the
-- drawer and the account for what comes in have one, the account that suppliers are paid from has three.
shop.accounts = {
    {code = "1", name = "CASH DRAWER", number = "COUNTER", owner = "KIOS MELATI", kind = "CASH", opening = 2500000, default = true},
    {code = "2", name = "BANK NUSA RECEIPTS", number = "123-456-789", owner = "KIOS MELATI", kind = "GIRO", opening = 18000000},
    {code = "300", name = "BANK NUSA PAYMENTS", number = "123-456-902", owner = "KIOS MELATI", kind = "GIRO", opening = 120000000},
}

-- Name, street, city, telephone, contact, days until payment.
shop.suppliers = {
    {"CV SUMBER MAKMUR", "Jl. Industri 4", "Surabaya", "031-7301122", "Ratna", 30},
    {"PT ANEKA RASA", "Jl. Pelabuhan 88", "Semarang", "024-8456600", "Hendra", 30},
    {"UD TANI SEJAHTERA", "Jl. Raya Lembang 210", "Lembang", "022-2786041", "Wawan", 7},
    {"KEBUN KOPI ARJUNA", "Jl. Pangalengan 15", "Pangalengan", "022-5979033", "Sari", 14},
    {"PT TIRTA BENING", "Jl. Mata Air 3", "Sukabumi", "0266-224410", "Yudi", 14},
    {"CV BERSIH CEMERLANG", "Jl. Cihampelas 61", "Bandung", "022-2033187", "Lia", 30},
    {"PT KERTAS NUSANTARA", "Jl. Soekarno 455", "Bandung", "022-7564420", "Bambang", 30},
    {"TOKO ALAT TULIS PELANGI", "Jl. Otista 90", "Bandung", "022-4204556", "Mei", 14},
    {"PABRIK ROTI HARUM", "Jl. Gandum 12", "Cimahi", "022-6643001", "Dedi", 7},
    {"CV GULA AREN PRIANGAN", "Jl. Ciwidey 77", "Ciwidey", "022-5928110", "Asep", 14},
    {"PT SINAR PLASTIK", "Jl. Leuwigajah 32", "Cimahi", "022-6030228", "Tuti", 30},
    {"UD LAUT BIRU", "Jl. Pasar Ikan 9", "Cirebon", "0231-203344", "Karim", 14},
}

-- Name, type, unit, bought in, holding, for, sold in, holding, for, supplier, most on a line of a sale.
shop.products = {
    {"RICE 5 KG", "FOO", "BAG", "BAG", 1, 61000, "BAG", 1, 68000, 3, 4},
    {"RICE 25 KG", "FOO", "BAG", "BAG", 1, 292000, "BAG", 1, 325000, 3, 2},
    {"STICKY RICE 1 KG", "FOO", "PACK", "BOX", 20, 340000, "PACK", 1, 21000, 3, 5},
    {"COOKING OIL 1 L", "FOO", "BTL", "BOX", 12, 198000, "BTL", 1, 19500, 1, 6},
    {"COOKING OIL 5 L", "FOO", "CAN", "BOX", 4, 318000, "CAN", 1, 92000, 1, 3},
    {"WHEAT FLOUR 1 KG", "FOO", "PACK", "BOX", 12, 126000, "PACK", 1, 13000, 1, 6},
    {"SUGAR 1 KG", "FOO", "PACK", "BOX", 20, 290000, "PACK", 1, 17000, 1, 6},
    {"PALM SUGAR 500 G", "FOO", "PACK", "BOX", 24, 312000, "PACK", 1, 18000, 10, 5},
    {"SALT 250 G", "FOO", "PACK", "BOX", 40, 92000, "PACK", 1, 3500, 1, 8},
    {"INSTANT NOODLES", "FOO", "PCS", "BOX", 40, 98000, "BOX", 40, 112000, 2, 3},
    {"RICE NOODLES 300 G", "FOO", "PACK", "BOX", 30, 195000, "PACK", 1, 8500, 2, 6},
    {"SOY SAUCE 600 ML", "FOO", "BTL", "BOX", 12, 222000, "BTL", 1, 23500, 2, 4},
    {"CHILLI SAUCE 340 ML", "FOO", "BTL", "BOX", 24, 324000, "BTL", 1, 17500, 2, 4},
    {"COCONUT MILK 1 L", "FOO", "PACK", "BOX", 12, 252000, "PACK", 1, 28500, 2, 4},
    {"TINNED SARDINES", "FOO", "TIN", "BOX", 24, 420000, "TIN", 1, 22500, 12, 6},
    {"TUNA IN OIL", "FOO", "TIN", "BOX", 24, 504000, "TIN", 1, 27000, 12, 4},
    {"DRIED ANCHOVIES 250 G", "FOO", "PACK", "PACK", 1, 24000, "PACK", 1, 31000, 12, 3},
    {"SHRIMP CRACKERS 250 G", "FOO", "PACK", "BOX", 20, 270000, "PACK", 1, 18500, 12, 4},
    {"WHITE BREAD", "FOO", "PCS", "PCS", 1, 12500, "PCS", 1, 16000, 9, 6},
    {"GINGER BISCUITS", "FOO", "TIN", "BOX", 6, 225000, "TIN", 1, 49000, 9, 3},
    {"COCONUT COOKIES", "FOO", "PACK", "BOX", 12, 150000, "PACK", 1, 17500, 9, 5},
    {"PEANUTS ROASTED 500 G", "FOO", "PACK", "BOX", 10, 235000, "PACK", 1, 31000, 10, 4},
    {"BANANA CHIPS 200 G", "FOO", "PACK", "BOX", 24, 264000, "PACK", 1, 15000, 10, 5},
    {"EGGS", "FOO", "PCS", "CRATE", 180, 342000, "TRAY", 30, 66000, 3, 3},
    {"HONEY 350 ML", "FOO", "JAR", "BOX", 6, 300000, "JAR", 1, 68000, 10, 2},
    {"ARABICA COFFEE 250 G", "DRK", "PACK", "BOX", 20, 840000, "PACK", 1, 55000, 4, 4},
    {"ROBUSTA COFFEE 250 G", "DRK", "PACK", "BOX", 20, 560000, "PACK", 1, 37500, 4, 5},
    {"COFFEE BEANS 1 KG", "DRK", "BAG", "BAG", 1, 142000, "BAG", 1, 185000, 4, 2},
    {"COFFEE MIX 20 SACHETS", "DRK", "PACK", "BOX", 12, 276000, "PACK", 1, 29500, 2, 4},
    {"GREEN TEA LOOSE LEAF 100 G", "DRK", "TIN", "BOX", 12, 294000, "TIN", 1, 31500, 4, 3},
    {"JASMINE TEA 25 BAGS", "DRK", "PACK", "BOX", 24, 192000, "PACK", 1, 11000, 4, 5},
    {"GINGER DRINK 10 SACHETS", "DRK", "PACK", "BOX", 24, 288000, "PACK", 1, 16000, 10, 4},
    {"COCOA POWDER 200 G", "DRK", "PACK", "BOX", 12, 258000, "PACK", 1, 28000, 2, 3},
    {"CONDENSED MILK", "DRK", "TIN", "BOX", 48, 576000, "TIN", 1, 15500, 2, 6},
    {"UHT MILK 1 L", "DRK", "PACK", "BOX", 12, 204000, "PACK", 1, 21500, 2, 6},
    {"MINERAL WATER 600 ML", "DRK", "BTL", "BOX", 24, 42000, "BOX", 24, 54000, 5, 5},
    {"MINERAL WATER GALLON", "DRK", "GAL", "GAL", 1, 15500, "GAL", 1, 20000, 5, 4},
    {"ORANGE SYRUP 460 ML", "DRK", "BTL", "BOX", 12, 204000, "BTL", 1, 22000, 5, 3},
    {"LAUNDRY SOAP 800 G", "CLE", "PACK", "BOX", 12, 234000, "PACK", 1, 23500, 6, 4},
    {"BAR SOAP", "CLE", "PCS", "BOX", 72, 252000, "PCS", 1, 4800, 6, 12},
    {"DISH SOAP 750 ML", "CLE", "PACK", "BOX", 12, 150000, "PACK", 1, 16000, 6, 4},
    {"FLOOR CLEANER 800 ML", "CLE", "PACK", "BOX", 12, 132000, "PACK", 1, 14500, 6, 4},
    {"SHAMPOO 170 ML", "CLE", "BTL", "BOX", 24, 528000, "BTL", 1, 28500, 6, 3},
    {"TOOTHPASTE 190 G", "CLE", "PCS", "BOX", 36, 450000, "PCS", 1, 16500, 6, 4},
    {"TISSUE 250 SHEETS", "CLE", "PACK", "BOX", 40, 380000, "PACK", 1, 13000, 7, 6},
    {"TOILET ROLL 10", "CLE", "PACK", "BOX", 12, 318000, "PACK", 1, 34500, 7, 4},
    {"BROOM", "CLE", "PCS", "PCS", 1, 17500, "PCS", 1, 25000, 11, 2},
    {"PLASTIC BUCKET 15 L", "CLE", "PCS", "DOZ", 12, 216000, "PCS", 1, 26500, 11, 3},
    {"PLASTIC BAGS 100", "CLE", "PACK", "BOX", 50, 425000, "PACK", 1, 12500, 11, 8},
    {"LIGHT BULB 9 W", "CLE", "PCS", "BOX", 20, 330000, "PCS", 1, 23500, 11, 4},
    {"COPY PAPER A4", "STA", "REAM", "BOX", 5, 232500, "REAM", 1, 56000, 7, 5},
    {"COPY PAPER F4", "STA", "REAM", "BOX", 5, 257500, "REAM", 1, 62000, 7, 5},
    {"NOTEBOOK 58 SHEETS", "STA", "PCS", "PACK", 10, 46000, "PCS", 1, 6500, 8, 10},
    {"BALLPOINT BLACK", "STA", "PCS", "BOX", 12, 21000, "PCS", 1, 2900, 8, 12},
    {"MARKER PERMANENT", "STA", "PCS", "BOX", 12, 84000, "PCS", 1, 10500, 8, 4},
    {"ENVELOPES 100", "STA", "PACK", "PACK", 1, 17500, "PACK", 1, 24000, 7, 4},
    {"LEVER ARCH FILE", "STA", "PCS", "BOX", 24, 504000, "PCS", 1, 27500, 8, 5},
    {"STAPLES NO 10", "STA", "BOX", "PACK", 20, 52000, "BOX", 1, 4000, 8, 6},
    {"DELIVERY IN TOWN", "SRV", service = true, price = 15000},
    {"DELIVERY OUT OF TOWN", "SRV", service = true, price = 45000},
    {"GIFT WRAPPING", "SRV", service = true, price = 7500},
    {"PHOTOCOPY 100 SHEETS", "SRV", service = true, price = 25000},
}

return shop
