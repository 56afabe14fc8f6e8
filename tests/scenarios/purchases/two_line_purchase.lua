dofile(arg[0]:match ".*/" .. "../support/purchases.lua")
product{KodeBrg = "0000000001", NamaBrg = "Semen 40 kg", HargaBeli = 48000, SatuanBeli = "PALET",
        PecahanBeli = 50, Satuan = "SAK", SatuanJual = "SAK"}
product{KodeBrg = "0000000002", NamaBrg = "Antar", HargaBeli = 0, Jasa = true, SatuanBeli = "", PecahanBeli = 1}
supplier{KodeSup = "S1", NamaSup = "PT Pabrik", nJTP = 30, SaldoAkhir = 1000}

scenario "A purchase of two lines with the keyboard alone"
open "T04"
expect(caption(), "Purchases")
expect(enabled "bttnAddLine", false)
keys "{Alt+N}"
expect(text "TxtNoFaktur", "000000000100")
expect(focused(), "TxtNoFaktur")
expect(enabled "bttnFirst", false)
keys "{Enter}"
expect(focused(), "TxtTglFaktur")
keys "{Enter}"
enter(focused(), "F-99/A")
expect(focused(), "TxtJTP")
keys "{Enter}"
enter(focused(), "s1")
expect(focused(), "OrderGrid")
expect({text "TxtKodeSup", text "TxtNamaSup", text "TxtAlamat2", text "TxtJTP"},
       {"S1", "PT Pabrik", "Gudang 3", "12/22/2026"})
expect(text "txtket", "Purchases No. 000000000100 Sup. S1 PT Pabrik")
keys "{Enter}"
enter(focused(), "0000000001")
expect(focused(), "txtQty")
expect({text "txtHarga", text "TxtBru", text "TxtDis", text "TxtHrgTot"}, {"48,000.00", "48000", "0", "48000"})
expect(items "TxtSatuan", {"PALET", "SAK", "SAK"})
enter(focused(), "2")
expect({text "TxtBru", text "TxtHrgTot"}, {"96,000.00", "96,000.00"})
keys "{Enter}"
enter(focused(), "2400000")
expect(focused(), "TxtDis")
enter(focused(), "10")
expect({text "TxtBru", text "TxtDis", text "TxtHrgTot"}, {"4,800,000.00", "480,000.00", "4,320,000.00"})
expect(focused(), "bttnAddLine")
keys "{Enter}"
expect(focused(), "OrderGrid")
expect(visible "FrameIsiBarang", false)
keys "{Enter}"
enter(focused(), "0000000002")
keys "{Enter}{Enter}"
enter(focused(), "150000.49")
keys "{Enter}{Enter}"
expect(grid_row(1), {"0000000001", "Semen 40 kg", "2", "PALET", "2,400,000", "4,800,000", "480,000", "4,320,000", "50"})
expect(grid_row(2), {"0000000002", "Antar", "1", "", "150,000", "150,000", "0", "150,000", "1"})
expect({text "TxtJumBru", text "TxtJumDis", text "TxtJumNetto", text "txtJumTotal"},
       {"4,950,000", "480,000", "4,470,000", "4,470,000"})
keys "{Alt+S}"
expect(visible "FrameBawah", true)
expect({enabled "bttnFirst", focused()}, {true, "bttnNew"})

scenario "What it left in the books"
expect(sql "Select NoFaktur, NoFakSup, TglFaktur, TglJtp, KodeSup, Bruto, Disc, Netto, Total, Bayar, Saldo, NoUser, Ket From Faktur",
       {{"000000000100", "F-99/A", "2026-11-22", "2026-12-22", "S1", 4950000, 480000, 4470000, 4470000, 0, 4470000,
         "00", "Purchases No. 000000000100 Sup. S1 PT Pabrik"}})
expect(sql "Select KodeBrg, Diskripsi, Qty, Qty2, Satuan, Harga, Disc, Total, QtyOrder, QtyRetur, QtySisa, KodeSup From FakturDetail",
       {{"0000000001", "Semen 40 kg", 2, 50, "PALET", 2400000, 480000, 4320000, 100, 0, 100, "S1"},
        {"0000000002", "Antar", 1, 1, "", 150000, 0, 150000, 1, 0, 1, "S1"}})
expect(sql "Select OnHand, QGudang, HPPRata, HPPAwal, HPPAkhir, HargaBeli, QBeli, QCounter, SatuanBeli From Produk",
       {{100, 100, 43200, 43200, 43200, 43200, 0, 0, "PALET"}, {0, 0, 0, 0, 0, 150000, 0, 0, ""}})
expect(sql "Select NoJurnal, NoRef, Tanggal, Memo, KodeBrg, NamaBrg, JenisBrg, Satuan, Pecahan, Qty1, Harga1, QtySisa, Qty2, Harga2, Saldo From Persediaan",
       {{"11", "000000000100", "2026-11-22", "Purchases No. 000000000100 Sup. PT Pabrik", "0000000001", "Semen 40 kg",
         "A", "PALET", 50, 2, 43200, 100, 0, 0, 100}})
expect(value "Select SaldoAkhir From Supplier", 4471000)

scenario "The purchase on paper"
keys "{Alt+P}"
local paper = report()
expect(paper.formulas[1], "Judul1 ='" .. value "Select NamaPerusahaan From Company" .. "'")
for _, shown in ipairs{"000000000100", "PT Pabrik", "F-99/A", "Semen 40 kg", "Antar", "4,470,000",
                       "Four Million Four Hundred Seventy Thousand"} do
    expect({shown, paper:text():find(shown, 1, true) ~= nil}, {shown, true})
end
paper:close()

scenario "The saved purchase shows base units and divided prices, and the due date"
expect(grid_row(1), {"0000000001", "Semen 40 kg", "100", "SAK", "24,000", "2,400,000", "480,000", "4,320,000", "50"})
expect({text "TxtAlamat1", text "TxtAlamat2", text "TxtAlamat3"}, {"Jl. Dua Gudang 3 Blok C", "Bandung", "022-1"})
expect(rows "OrderGrid", 2)
