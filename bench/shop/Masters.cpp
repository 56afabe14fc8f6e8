// Products, parties, accounts, costs and users of the made-up shop. Its rows are written last, with the stock
// and the balances that the documents leave.

#include "bench/shop/Books.h"

#include "common/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace varnik::bench {

namespace {

constexpr std::array Goods{"Rice",  "Sugar", "Coffee", "Tea",    "Soap",   "Candle", "Rope",    "Nail",
                           "Paint", "Brush", "Cement", "Bucket", "Noodle", "Flour",  "Biscuit", "Lamp"};
constexpr std::array Makes{"Mawar", "Melati", "Garuda", "Merak", "Bintang", "Kemiri", "Anggrek", "Rajawali"};
constexpr std::array Units{"PCS", "KG", "BTL", "LTR", "MTR", "PAK"};
constexpr std::array Packs{"DUS", "BOX", "KRT", "BAL"};
constexpr std::array Towns{"Bandung", "Bogor", "Cirebon", "Garut", "Jakarta", "Solo", "Tegal"};
constexpr std::array<std::int64_t, 4> PerPack{10, 12, 24, 6};
constexpr int Types = 8, CostTypes = 4, Costs = 20;

template <typename List>
std::string Of(const List& list, std::size_t at) {
    return list[at % list.size()];
}

std::string Padded(const char* mask, std::size_t number) {
    char text[32];
    std::snprintf(text, sizeof text, mask, static_cast<unsigned long>(number));
    return text;
}

} // namespace

void Books::MakeMasters() {
    const auto sales = static_cast<std::size_t>(sales_);
    products_.resize(std::clamp<std::size_t>(sales / 10, 100, 100'000));
    customers_.resize(std::clamp<std::size_t>(sales / 20, 30, 50'000));
    suppliers_.resize(std::clamp<std::size_t>(products_.size() / 50, 5, 1'000));
    productsOf_.resize(suppliers_.size());
    nextOf_.resize(suppliers_.size());
    accounts_.resize(AccountCount, OpeningBalance());
    for (std::size_t i = 0; i < products_.size(); ++i) {
        Product& product = products_[i];
        product.code = Padded("%010lu", i + 1);
        product.name = Of(Goods, i) + " " + Of(Makes, i / Goods.size()) + " " + std::to_string(i + 1);
        product.type = Padded("%03lu", 1 + i % Types);
        product.supplier = i % suppliers_.size();
        product.unit = product.sellUnit = Of(Units, i);
        product.buyUnit = Of(Packs, i);
        product.perBuy = PerPack[i % PerPack.size()];
        // Some goods are sold by half the pack.
        if (i % 9 == 4) product.sellUnit = "SET", product.perSell = product.perBuy / 2;
        product.price = 500 * Chance(1, 40);
        product.buyPrice =
            std::floor(product.price * static_cast<double>(product.perBuy) * Chance(60, 85) / 100);
        product.service = i % 25 == 24;
        if (!product.service) productsOf_[product.supplier].push_back(i);
    }
    for (std::size_t i = 0; i < customers_.size(); ++i)
        customers_[i] = {Padded("C%09lu", i + 1),
                         "Toko " + Of(Makes, i) + " " + std::to_string(i + 1),
                         Chance(0, 4) * 15,
                         0,
                         {}};
    for (std::size_t i = 0; i < suppliers_.size(); ++i)
        suppliers_[i] = {Padded("S%09lu", i + 1),
                         "CV " + Of(Goods, i) + " " + std::to_string(i + 1),
                         Chance(1, 4) * 15,
                         0,
                         {}};
}

void Books::WriteMasters() {
    RowWriter type(engine_, "JenisProduk", {"KodeJenisProduk", "JenisProduk"});
    for (std::size_t i = 0; i < Types; ++i)
        type.Write({Padded("%03lu", i + 1), "Goods " + std::to_string(i + 1)});
    RowWriter customerType(engine_, "JenisCustomer", {"KodeJenisCus", "JenisCus"});
    for (std::size_t i = 0; i < 3; ++i)
        customerType.Write({Padded("%03lu", i + 1), "Customers " + std::to_string(i + 1)});
    RowWriter account(engine_, "Bank",
                      {"RekID", "NamaBank", "NamaPemilik", "NoRek", "JenisRek", "SaldoAwal", "SaldoAkhir",
                       "Keterangan", "DefaultKas"});
    for (std::size_t i = 0; i < accounts_.size(); ++i)
        account.Write({AccountCodes[i], i % 2 == 0 ? std::string("Cash") : "Bank " + Of(Makes, i), "Varnik",
                       Padded("%08lu", 1234 * i), i % 2 == 0 ? "CASH" : "BANK", OpeningBalance(),
                       accounts_[i], "", i == 0});
    RowWriter costType(engine_, "JenisBiaya", {"KodeJenisBiaya", "JenisBiaya", "KodeAcc"});
    RowWriter cost(engine_, "Biaya", {"KodeBiaya", "Diskripsi", "KodeJenisBiaya", "KodeAcc"});
    for (std::size_t i = 0; i < CostTypes; ++i)
        costType.Write({Padded("%03lu", i + 1), "Costs " + std::to_string(i + 1), Value()});
    for (std::size_t i = 0; i < Costs; ++i)
        cost.Write({Padded("B%03lu", i + 1), "Cost " + std::to_string(i + 1),
                    Padded("%03lu", 1 + i % CostTypes), Value()});

    RowWriter product(engine_, "Produk",
                      {"KodeBrg",    "NamaBrg",     "JenisBrg",   "Satuan",      "Pecahan",
                       "SatuanBeli", "PecahanBeli", "SatuanJual", "PecahanJual", "QGudang",
                       "QCounter",   "OnOrder",     "OnHand",     "HPPAwal",     "HPPAkhir",
                       "HPPRata",    "QAwal",       "QJual",      "QBeli",       "HargaBeli",
                       "HargaJual",  "KodeSup",     "KodeRef",    "Jasa",        "Ket"});
    for (const Product& each : products_)
        product.Write({each.code,
                       each.name,
                       each.type,
                       each.unit,
                       1,
                       each.buyUnit,
                       each.perBuy,
                       each.sellUnit,
                       each.perSell,
                       each.onHand,
                       0,
                       0,
                       each.onHand,
                       each.firstCost,
                       each.lastCost,
                       each.average,
                       0,
                       0,
                       0,
                       each.lastCost,
                       each.price,
                       suppliers_[each.supplier].code,
                       "",
                       each.service,
                       ""});
    const auto parties = [&](const char* table, const char* code, const char* name,
                             const std::vector<Party>& list, bool customers) {
        RowWriter party(engine_, table,
                        {code, name, "Alamat_1", "Alamat_2", "Alamat_3", "Kota", "Telp", "Fax", "Contax",
                         "Jabatan", "nDIS", "nwDis", "nJTP", "Ket", "SaldoAwal", "SaldoAkhir"});
        for (std::size_t i = 0; i < list.size(); ++i)
            party.Write({list[i].code, list[i].name,
                         "Jl. " + Of(Goods, i / 3) + " " + std::to_string(i % 200 + 1),
                         "Blok " + std::to_string(i % 30 + 1), "", Of(Towns, i), Padded("022-%07lu", i), "",
                         "", "", 0, 0, list[i].days, "", 0, list[i].balance});
        if (customers)
            Prepared(engine_, "UPDATE Customer SET JenisCus = printf('%03d', 1 + rowid % 3)").Step();
    };
    parties("Customer", "KodeCus", "NamaCus", customers_, true);
    parties("Supplier", "KodeSup", "NamaSup", suppliers_, false);

    RowWriter user(engine_, "T_User", {"UserID", "NoUser", "Password", "Tambah", "Ganti", "Hapus", "Lihat"});
    for (const auto& [name, number] : {std::pair{"siti", "01"}, {"budi", "02"}}) {
        user.Write({name, number, TransformPassword(name), true, true, true, true});
        Prepared(engine_, "INSERT INTO SecurityUser (MenuID, UserID) SELECT DISTINCT MenuID, ? FROM MenuList")
            .Run({number});
    }
}

} // namespace varnik::bench
