dofile(arg[0]:match ".*/" .. "../support/shop.lua")

scenario "A sale of two lines with the keyboard alone"
product{KodeBrg = "0000000001", NamaBrg = "Semen 40 kg", HargaJual = 55000, SatuanJual = "SAK", Satuan = "SAK"}
product{KodeBrg = "0000000002", NamaBrg = "Paku 5 cm", HargaJual = 20000}
customer{KodeCus = "0000000001", NamaCus = "Toko Maju", nJTP = 30}
purchase("000000000100", "0000000001", 100, 4000000)
purchase("000000000200", "0000000002", 100, 1000000)

open "T01"
expect(caption(), "Sales - Varnik")
expect(focused(), "bttnNew")
expect(visible "FrameAtas", false)
keys "{Enter}"
expect(text "TxtNoInvoice", "000000000100")
expect(focused(), "TxtNoInvoice")
expect(visible "FrameBawah", false)
keys "{Enter}"
expect(focused(), "TxtTglInvoice")
keys "{Enter}"
enter(focused(), "po-7")
expect(text "txtCusPO", "PO-7")
expect(focused(), "TxtJTP")
keys "{Enter}"
enter(focused(), "10")
expect(focused(), "TxtKodeCus")
enter(focused(), "0000000001")
expect(text "TxtNamaCus", "Toko Maju")
expect(text "TxtAlamat2", "Blok B")
expect(text "TxtJTP", "12/22/2026")
expect(focused(), "txtKodeBrg")
enter(focused(), "0000000001")
expect(focused(), "txtQty")
expect(text "TxtDiskripsi", "Semen 40 kg")
expect(text "txtHarga", "55,000")
enter(focused(), "2")
expect(text "TxtBru", "110,000")
expect(focused(), "TxtSatuan")
keys "{Enter}"
expect(focused(), "txtHarga")
keys "{Enter}"
enter(focused(), "10")
expect(text "TxtDis", "11,000.00")
expect(text "TxtHrgTot", "99,000")
expect(focused(), "bttnAddLine")
keys "{Enter}"
expect(focused(), "OrderGrid")
expect(visible "FrameIsiBarang", false)
expect(text "txtJumTotal", "99,000")
keys "{Enter}"
expect(focused(), "txtKodeBrg")
enter(focused(), "0000000002")
enter(focused(), "3")
keys "{Enter}{Enter}{Enter}{Enter}"
expect(rows "OrderGrid", 3)
expect(grid_row(1), {"0000000001", "Semen 40 kg", "2", "SAK", "55,000", "110,000", "11,000", "99,000", "1"})
expect(grid_row(2), {"0000000002", "Paku 5 cm", "3", "PCS", "20,000", "60,000", "0", "60,000", "1"})
expect(grid_row(3), {"", "", "", "0", "", "0", "0", "0", "0"})
expect(text "txtJumTotal", "159,000")
expect(text "TxtJumNetto", "144,545")
expect(text "TxtJumPPN", "14,455")
keys "{Alt+S}"
expect(sql "Select Total, Saldo, Bayar, NoUser, CusPO From Invoice", {{159000, 159000, 0, "00", "PO-7"}})
expect(sql "Select KodeBrg, Qty, HPP From InvoiceDetail", {{"0000000001", 2, 80000}, {"0000000002", 3, 30000}})
expect(value "Select SaldoAkhir From Customer", 159000)
expect(visible "FrameBawah", true)

scenario "The invoice on paper"
keys "{Alt+P}"
expect(report().title, "Print Invoice")
local paper = report():text()
for _, shown in ipairs{"000000000100", "Toko Maju", "PO-7", "Semen 40 kg", "Paku 5 cm", "159,000",
                       "One Hundred Fifty Nine Thousand"} do
    expect(paper:find(shown, 1, true) ~= nil, true)
end
report():close()
expect(enabled "bttnPrint", true)
expect(focused(), "bttnPrint")

scenario "The next invoice takes the next number"
keys "{Alt+N}"
expect(text "TxtNoInvoice", "000000000200")
expect(text "txtCusPO", "")
expect(text "txtJumTotal", "0")
