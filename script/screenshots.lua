-- A few products, customers and sales, entered as a person would, for pictures of the screens.

start()
login("varnik", "kemiri")

open "F01"
for _, p in ipairs {
  {"ARABICA COFFEE 250 G", "PACK", "42000", "55000", "120"},
  {"GREEN TEA LOOSE LEAF 100 G", "TIN", "24500", "31500", "80"},
  {"PALM SUGAR 500 G", "PACK", "13000", "18000", "200"},
  {"GINGER BISCUITS", "TIN", "37500", "49000", "36"},
  {"COCONUT MILK 1 L", "PACK", "21000", "28500", "64"},
} do
  click "bttnAdd"
  type("txtKode", "{Enter}") -- goes on to the service box
  enter("txtNama", p[1])
  enter("TxtSatuan", p[2])
  enter("TxtSatuanBeli", p[2])
  enter("txtHargaBeli", p[3])
  enter("TxtSatuanJual", p[2])
  enter("TxtHargaJual", p[4])
  enter("TxtQGudang", p[5])
  click "bttnOK"
end

for _, c in ipairs {
  {"0000000001", "WARUNG BU TINI", "Jl. Kenanga 7", "Cimahi"},
  {"0000000002", "TOKO SINAR PAGI", "Jl. Melati 21", "Bandung"},
  {"0000000003", "KANTIN SEKOLAH HARAPAN", "Jl. Merdeka 110", "Bandung"},
} do
  sql("INSERT INTO Customer VALUES ('" .. c[1] .. "','001','" .. c[2] .. "','" .. c[3] .. "','" .. c[4] ..
      "','','','','','','',0,0,14,'',0,0,'')")
end

for _, a in ipairs {{"1", "Cash", "", "True"}, {"2", "Bank Nusa", "123-456-789", "False"}} do
  sql("INSERT INTO Bank (RekID,NamaBank,NamaPemilik,NoRek,SaldoAwal,SaldoAkhir,DefaultKas) VALUES ('" .. a[1] ..
      "','" .. a[2] .. "','Kopi Kita','" .. a[3] .. "',0,0," .. a[4] .. ")")
end

for _, s in ipairs {
  {"0000000001", "CV SUMBER MAKMUR", "Jl. Industri 4", "Surabaya", "031-7301122"},
  {"0000000002", "PT ANEKA RASA", "Jl. Pelabuhan 88", "Semarang", "024-8456600"},
} do
  sql("INSERT INTO Supplier (KodeSup,NamaSup,Alamat_1,Alamat_2,Alamat_3,Kota,Telp,Contax,Jabatan,nDis,nwDis,nJTP," ..
      "SaldoAwal,SaldoAkhir) VALUES ('" .. s[1] .. "','" .. s[2] .. "','" .. s[3] .. "','Blok C','','" .. s[4] ..
      "','" .. s[5] .. "','Ratna','Sales',0,0,30,0,1250000)")
end

-- The types and costs as they are typed in, one after the other.
for key, rows in pairs {
  F08 = {{"DRY", "DRY GOODS"}, {"TEA", "TEA AND COFFEE"}},
  F09 = {{"001", "RETAIL"}, {"002", "WHOLESALE"}},
  F06 = {{"001", "WAGES"}, {"002", "TRANSPORT"}},
  F07 = {{"0000000001", "DAILY WAGES", "001"}, {"0000000002", "FUEL", "002"}},
} do
  use "frmMainCode"
  open(key)
  for _, r in ipairs(rows) do
    click "bttnAdd"
    enter("txtKode", r[1])
    clear "txtNama"
    type("txtNama", r[2])
    if r[3] then
      sql("INSERT INTO Biaya (KodeBiaya,Diskripsi,KodeJenisBiaya) VALUES ('" .. r[1] .. "','" .. r[2] .. "','" ..
          r[3] .. "')")
      click "bttnCancel"
    else
      click "bttnOK"
    end
  end
end
