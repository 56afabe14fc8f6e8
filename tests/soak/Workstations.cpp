// Workstations, each a process with a user of its own, post into one file at once. No box shows, the file
// stays sound, every document is whole, and balances of customers, suppliers and accounts, the stock of the
// goods and what is left of each lot are what the documents make them, however many post beside.

#include "tests/soak/Books.h"
#include "tests/soak/Stage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <map>
#include <memory>

namespace varnik::soak {
namespace {

constexpr const char* Users[] = {"varnik", "budi", "tini", "agus", "sari", "joko", "rina", "dewi"};

struct Document {
    double amount = 0;
    long lines = 0;
};
// What the stations said to have posted.
struct Said {
    std::map<std::string, std::map<std::string, Document>> standing{}; // by kind and number
    std::map<std::string, double> owed{};                              // by partner
    long documents = 0;

    void Hear(std::istringstream& words) {
        std::string kind, number, partner;
        Document posted;
        words >> kind >> number >> partner >> posted.amount >> posted.lines;
        ++documents;
        if (kind == "cash") kind = "receipt";
        const auto cut = kind.find("_deleted");
        const bool deleted = cut != std::string::npos;
        const std::string of = kind.substr(0, cut);
        // A purchase that is deleted stays owed, and a receipt that is deleted is taken off once more.
        const bool raises = of == "sale" || of == "purchase";
        double sign = raises ? 1 : -1;
        if (deleted) sign = of == "purchase" ? 0 : of == "receipt" ? -1 : -sign;
        owed[partner] += sign * posted.amount;
        if (deleted)
            standing[of].erase(number);
        else
            standing[of][number] = posted;
    }
};

struct Lost {
    long partners = 0, goods = 0, lots = 0;
    double money = 0, pieces = 0, cash = 0;
    bool Any() const { return partners + goods + lots > 0 || cash > 0; }
};

bool Near(double a, double b) { return std::abs(a - b) < 1e-6 * std::max({1.0, std::abs(a), std::abs(b)}); }
double Number(const std::string& text) { return text.empty() ? 0 : std::stod(text); }

class Audit {
public:
    Audit(Soak& soak, const std::filesystem::path& folder, const Said& said, std::string where)
        : soak_(soak), said_(said), where_(std::move(where)), reader_(Database(folder)) {}

    void Documents() {
        soak_.Holds(reader_.Integrity() == "ok", where_ + "the file is damaged");
        // Number, total, lines, their totals, pieces sold, drawn from lots, moved in the ledger.
        Whole("sale",
              "SELECT NoInvoice, Total, (SELECT count(*) FROM InvoiceDetail d WHERE d.NoInvoice = "
              "i.NoInvoice), "
              "(SELECT sum(Total) FROM InvoiceDetail d WHERE d.NoInvoice = i.NoInvoice), "
              "(SELECT sum(Qty * Qty2) FROM InvoiceDetail d WHERE d.NoInvoice = i.NoInvoice AND NOT Jasa), "
              "coalesce((SELECT sum(Qty) FROM PersediaanJual p WHERE p.NoInvoice = i.NoInvoice), 0) + "
              "coalesce((SELECT sum(Qty) FROM PersediaanRetur p WHERE p.NoInvoice = i.NoInvoice), 0), "
              "(SELECT sum(Qty2 - Qty1) FROM Persediaan p WHERE p.NoRef = i.NoInvoice AND NoJurnal IN "
              "('31','32')) "
              "FROM Invoice i");
        Whole(
            "purchase",
            "SELECT NoFaktur, Total, (SELECT count(*) FROM FakturDetail d WHERE d.NoFaktur = f.NoFaktur), "
            "(SELECT sum(Total) FROM FakturDetail d WHERE d.NoFaktur = f.NoFaktur), (SELECT sum(Qty * Qty2) "
            "FROM "
            "FakturDetail d JOIN Produk USING (KodeBrg) WHERE d.NoFaktur = f.NoFaktur AND NOT Produk.Jasa), "
            "NULL, (SELECT sum(CASE NoJurnal WHEN '11' THEN Qty1 * Pecahan ELSE Qty1 END) FROM Persediaan p "
            "WHERE p.NoRef = f.NoFaktur AND NoJurnal IN ('11','12')) FROM Faktur f");
        Whole("take_back",
              "SELECT ReturID, Total, 0, (SELECT sum(Total) FROM InvoiceReturDetail d WHERE d.ReturID = "
              "r.ReturID), NULL, NULL, NULL FROM InvoiceRetur r");
        Whole("send_back",
              "SELECT NoFaktur, Total, 0, (SELECT sum(Total) FROM FakturReturDetail d WHERE d.NoFaktur = "
              "r.NoFaktur), NULL, NULL, NULL FROM FakturRetur r");
        Whole("receipt",
              "SELECT NoBKM, Jumlah, 0, (SELECT sum(Jumlah) FROM InvoiceBayar d WHERE d.NoBKM = b.NoBKM), "
              "NULL, NULL, NULL FROM BKM b WHERE RekID = '1'");
        Whole("income", "SELECT NoBKM, Jumlah, 0, Jumlah, NULL, NULL, NULL FROM BKM b WHERE RekID = '3'");
        Whole("expense",
              "SELECT NoBKK, max(Jumlah), 0, sum(JumlahBiaya), NULL, NULL, NULL FROM BKK WHERE RekID = '2' "
              "GROUP BY NoBKK");
        Whole("payment",
              "SELECT NoBKK, Jumlah, 0, (SELECT sum(Jumlah) FROM FakturBayar d WHERE d.NoBKK = b.NoBKK), "
              "NULL, NULL, NULL FROM BKK b WHERE RekID = '901'");
        for (const auto& [orphans, sql] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"lines of sales", "SELECT count(*) FROM InvoiceDetail WHERE NoInvoice NOT IN (SELECT "
                                    "NoInvoice FROM Invoice)"},
                 {"lines of receipts",
                  "SELECT count(*) FROM InvoiceBayar WHERE NoBKM NOT IN (SELECT NoBKM FROM BKM)"},
                 {"lines of payments",
                  "SELECT count(*) FROM FakturBayar WHERE NoBKK NOT IN (SELECT NoBKK FROM BKK)"},
                 {"drawn lots", "SELECT count(*) FROM PersediaanJual WHERE NoInvoice NOT IN (SELECT "
                                "NoInvoice FROM Invoice)"}})
            soak_.Holds(One(sql) == 0, where_ + orphans + std::string(" without a document"));
    }

    // What single statements change: exact, whoever posts beside.
    void ExactSums() {
        Same("the bank account", One("SELECT SaldoAkhir FROM Bank WHERE RekID = '901'"),
             -One("SELECT coalesce(sum(Jumlah), 0) FROM FakturBayar"));
        Same("the account of other receipts", One("SELECT SaldoAkhir FROM Bank WHERE RekID = '3'"),
             One("SELECT coalesce(sum(Jumlah), 0) FROM BKM WHERE RekID = '3'"));
        Same("purchases whose balance is not what is left to pay",
             One("SELECT count(*) FROM Faktur f WHERE abs(Saldo - Total + coalesce((SELECT sum(Jumlah) FROM "
                 "FakturBayar b "
                 "WHERE b.NoFaktur = f.NoFaktur), 0) + coalesce((SELECT sum(Total) FROM FakturRetur r WHERE "
                 "r.NoPO = "
                 "f.NoFaktur), 0)) > 0.001"),
             0);
        // A return that was deleted leaves the answer to a comparison in the balance: 0 or -1.
        Same("sales whose balance is not what is left to pay",
             One("SELECT count(*) FROM Invoice f WHERE Saldo > 0 AND abs(Saldo - Total + coalesce((SELECT "
                 "sum(Jumlah) FROM "
                 "InvoiceBayar b WHERE b.NoInvoice = f.NoInvoice), 0) + coalesce((SELECT sum(Total) FROM "
                 "InvoiceRetur r "
                 "WHERE r.NoInvoice = f.NoInvoice), 0)) > 0.001"),
             0);
    }

    Lost Losses() {
        Lost lost;
        for (const char* partners :
             {"SELECT KodeCus, SaldoAkhir FROM Customer", "SELECT KodeSup, SaldoAkhir FROM Supplier"})
            for (const auto& row : reader_.Rows(partners)) {
                const auto owed = said_.owed.find(row[0]);
                const double off = Number(row[1]) - (owed == said_.owed.end() ? 0 : owed->second);
                if (Near(off, 0)) continue;
                ++lost.partners;
                lost.money += std::abs(off);
            }
        // The accounts that a receipt at the counter and an expense read, change and write back.
        lost.cash = std::abs(One("SELECT SaldoAkhir FROM Bank WHERE RekID = '1'") -
                             One("SELECT coalesce(sum(Jumlah), 0) FROM InvoiceBayar")) +
                    std::abs(One("SELECT SaldoAkhir FROM Bank WHERE RekID = '2'") +
                             One("SELECT coalesce(sum(JumlahBiaya), 0) FROM BKK WHERE RekID = '2'"));
        for (const auto& row :
             reader_.Rows("SELECT OnHand, (SELECT sum(CASE NoJurnal WHEN '11' THEN Qty1 * p.Pecahan ELSE "
                          "Qty1 END - Qty2) FROM "
                          "Persediaan p WHERE p.KodeBrg = b.KodeBrg) FROM Produk b WHERE NOT Jasa")) {
            if (Near(Number(row[0]), Number(row[1]))) continue;
            ++lost.goods;
            lost.pieces += std::abs(Number(row[0]) - Number(row[1]));
        }
        for (const auto& row : reader_.Rows("SELECT QtySisa + QtyRetur + coalesce((SELECT sum(Qty) FROM "
                                            "PersediaanJual j WHERE j.NoPO = d.NoFaktur AND "
                                            "j.KodeBrg = d.KodeBrg), 0), Qty * Qty2 FROM FakturDetail d JOIN "
                                            "Produk USING (KodeBrg) WHERE NOT Produk.Jasa"))
            if (!Near(Number(row[0]), Number(row[1]))) ++lost.lots;
        return lost;
    }

private:
    double One(const std::string& sql) { return Number(reader_.Rows(sql).at(0).at(0)); }
    void Same(const std::string& what, double is, double expected) {
        soak_.Holds(Near(is, expected),
                    where_ + what + ": " + std::to_string(is) + " instead of " + std::to_string(expected));
    }
    void Whole(const char* kind, const std::string& sql) {
        static const std::map<std::string, Document> None;
        const auto of = said_.standing.find(kind);
        const auto& standing = of == said_.standing.end() ? None : of->second;
        std::size_t found = 0;
        for (const auto& row : reader_.Rows(sql)) {
            const std::string name = where_ + kind + " " + row[0] + " ";
            const auto posted = standing.find(row[0]);
            if (!soak_.Holds(posted != standing.end(), name + "stands and nobody posted it")) continue;
            ++found;
            soak_.Holds(Near(Number(row[1]), posted->second.amount), name + "has another total");
            if (posted->second.lines > 0 && (std::string(kind) == "sale" || std::string(kind) == "purchase"))
                soak_.Holds(static_cast<long>(Number(row[2])) == posted->second.lines, name + "lacks lines");
            soak_.Holds(Near(Number(row[3]), Number(row[1])), name + "has lines of another sum");
            for (const std::size_t moved : {std::size_t{5}, std::size_t{6}})
                if (!row[4].empty() && !row[moved].empty())
                    soak_.Holds(Near(Number(row[moved]), Number(row[4])),
                                name + "moved other goods than its lines");
        }
        soak_.Holds(found == standing.size(),
                    where_ + std::to_string(standing.size() - found) + " of kind " + kind + " are gone");
    }

    Soak& soak_;
    const Said& said_;
    std::string where_;
    BookReader reader_;
};

} // namespace

long Workstations(Soak& soak) {
    std::filesystem::create_directories(soak.Folder("shop"));
    Play play{soak.options.scripts / "station.lua", {"users"}};
    const std::string failed = PlayApart(play, soak.Folder("shop"));
    if (!soak.Holds(failed.empty(), "the shop cannot be opened: " + failed)) return 1;

    const long documents = soak.options.until ? 500 : 30; // of each station, well below 1000 of a kind
    std::map<std::size_t, std::pair<long, Lost>> totals;
    for (long round = 0; soak.GoesOn(); ++round) {
        const std::size_t stations =
            std::array<std::size_t, 4>{8, 2, 4, 1}[static_cast<std::size_t>(round % 4)];
        const auto folder = soak.Copy("shop", "shared");
        std::vector<std::unique_ptr<Child>> children;
        const std::string seed = std::to_string(soak.Chance(1000000));
        for (std::size_t i = 0; i < stations; ++i) {
            play.arguments = {Users[i], seed + std::to_string(i), std::to_string(documents)};
            children.push_back(std::make_unique<Child>([&](int out) {
                Play own = play;
                own.onLine = [&](const std::string& line) {
                    if (line.starts_with("posted")) Tell(out, line);
                };
                std::string said;
                const int status = Run(own, folder, said);
                if (status != 0) Tell(out, "said " + said);
                return status;
            }));
        }
        const std::string where = std::to_string(stations) + " stations, seed " + seed + ": ";
        Said said;
        for (std::size_t i = 0; i < stations; ++i) {
            const long before = said.documents;
            children[i]->Hear(
                [&](const std::string& first, std::istringstream& words, const std::string& line) {
                    if (first == "posted")
                        said.Hear(words);
                    else
                        soak.Holds(false, where + line);
                });
            soak.Holds(children[i]->Wait() == 0, where + "a station failed");
            soak.Holds(said.documents > before, where + Users[i] + " posted nothing");
        }
        Audit audit(soak, folder, said, where);
        audit.Documents();
        audit.ExactSums();
        const Lost lost = audit.Losses();
        soak.Holds(!lost.Any(), where + "balances, goods or lots are not what the documents make them");
        auto& [posted, all] = totals[stations];
        posted += said.documents;
        all.partners += lost.partners, all.goods += lost.goods, all.lots += lost.lots;
        all.money += lost.money, all.pieces += lost.pieces, all.cash += lost.cash;
    }
    for (const auto& [stations, total] : totals)
        std::cout << stations << " at once: " << total.first << " documents; lost: balances of "
                  << total.second.partners << " partners by " << total.second.money << " in all, accounts by "
                  << total.second.cash << ", stock of " << total.second.goods << " goods by "
                  << total.second.pieces << " pieces, " << total.second.lots << " lots\n";
    std::cout << soak.Faults() << " faults\n";
    return soak.Faults();
}

} // namespace varnik::soak
