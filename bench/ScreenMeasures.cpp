#include "bench/Measures.h"

#include "bench/Recorder.h"
#include "common/Numbering.h"
#include "common/Text.h"
#include "data/DataSource.h"
#include "data/Numbering.h"

#include <algorithm>

namespace varnik::bench {

Floor::Floor(const std::filesystem::path& folder) : till(folder), bare(data::DatabaseFile(folder)) {}

namespace {

using Work = std::function<void()>;

// Work that reads, beside its own statements done again by the bare loop. What they are is found out when it
// is first run; the preparation counts in neither.
void AddReading(std::vector<Measure>& all, const std::string& name, const std::string& size,
                const Work& prepare, const Work& work, const Work& after, int iterations) {
    auto replay = std::make_shared<std::unique_ptr<Replay>>();
    all.push_back({name, size,
                   [=] {
                       prepare();
                       const double seconds = Seconds(work);
                       after();
                       return seconds;
                   },
                   [=] {
                       if (!*replay) {
                           prepare();
                           *replay = std::make_unique<Replay>(StatementsOf(work));
                           after();
                       }
                       return Seconds([&] { (*replay)->Run(); });
                   },
                   iterations});
}

void Nothing() {}

void AddPosting(std::vector<Measure>& all, Floor& floor, const std::string& size) {
    Till& till = floor.till;
    BareBooks& bare = floor.bare;
    struct Kind {
        std::string name, key;
        int lines;
        void (Till::*enter)(int);
        void (BareBooks::*post)(int);
        void (BareBooks::*remove)(int);
    };
    const Kind kinds[] = {
        {"a sale of 1 line", "T01", 1, &Till::EnterSale, &BareBooks::PostSale, &BareBooks::DeleteSale},
        {"a sale of 10 lines", "T01", 10, &Till::EnterSale, &BareBooks::PostSale, &BareBooks::DeleteSale},
        {"a purchase of 10 lines", "T04", 10, &Till::EnterPurchase, &BareBooks::PostPurchase,
         &BareBooks::DeletePurchase},
        {"a receipt over 10 invoices", "T02", 10, &Till::EnterReceipt, &BareBooks::PostReceipt,
         &BareBooks::DeleteReceipt}};
    for (const Kind& kind : kinds) {
        const auto save = [&till, key = kind.key] { till.Save(key); };
        const auto remove = [&till, key = kind.key] { till.ChooseToDelete(key); };
        const auto post = [=, &till](auto seconds) {
            return [=, &till] {
                (till.*kind.enter)(kind.lines);
                const double took = seconds(save);
                remove(), save();
                return took;
            };
        };
        const auto barePost = [=, &bare](auto seconds) {
            return [=, &bare] {
                const double took = seconds([&] { (bare.*kind.post)(kind.lines), bare.Sync(); });
                (bare.*kind.remove)(kind.lines);
                return took;
            };
        };
        all.push_back({"post " + kind.name, size, post(Seconds), barePost(Seconds), 10});
        all.push_back({"post " + kind.name + ", by the clock with its sync", size, post(WallSeconds),
                       barePost(WallSeconds), 10});
        all.push_back({"delete " + kind.name, size,
                       [=, &till] {
                           (till.*kind.enter)(kind.lines);
                           save(), remove();
                           return Seconds(save);
                       },
                       [=, &bare] {
                           (bare.*kind.post)(kind.lines);
                           return Seconds([&] { (bare.*kind.remove)(kind.lines), bare.Sync(); });
                       },
                       10});
    }
}

void AddNumbers(std::vector<Measure>& all, Floor& floor, const std::string& size) {
    for (const auto& [name, document] : {std::pair{"sales", Document::Invoice},
                                         {"sales returns", Document::InvoiceRetur},
                                         {"purchases", Document::Faktur},
                                         {"purchase returns", Document::FakturRetur}}) {
        const auto work = [&till = floor.till, document = document] {
            till.Access().session.NoUser = "00"; // a user with documents
            data::NextNumber(till.Access(), document);
            till.Access().session.NoUser = "98";
        };
        AddReading(all, std::string("next number of ") + name, size, Nothing, work, Nothing, 20);
    }
}

void AddLoading(std::vector<Measure>& all, Floor& floor, const std::string& size) {
    Till& till = floor.till;
    for (const auto& [name, key, statement] :
         {std::tuple{"a sale", "T01", "Select NoInvoice From InvoiceDetail Where Qty > 5"},
          {"a receipt", "T02", "Select NoBKM From InvoiceBayar"},
          {"a purchase", "T04", "Select NoFaktur From FakturDetail Where QtySisa > 0"},
          {"a supplier payment", "T05", "Select NoBKK From FakturBayar"}}) {
        const auto fresh = [&till, key = std::string(key)] { till.ReadyToLoad(key); };
        const auto work = [&till, key = std::string(key), number = till.Asked(statement)] {
            till.Load(key, number);
        };
        AddReading(all, std::string("load ") + name, size, fresh, work, Nothing, 5);
    }
}

// What a person looks for. Nothing typed finds everything, which is the most that a search can cost.
std::string ValueFor(const std::string& criterion) {
    const auto has = [upper = Upper(criterion)](const char* word) {
        return upper.find(word) != std::string::npos;
    };
    if (has("DATE")) return "11/20/2026";
    if (has("BALANCE")) return "50000";
    if (has("NAME") || has("DESCRIPTION")) return "Merak";
    return "0099";
}

// A criterion under which nothing typed finds everything: a date would be refused.
std::string AnyText(const std::vector<std::string>& criteria) {
    return *std::ranges::find_if(criteria, [](const std::string& one) {
        return !one.empty() && Upper(one).find("DATE") == std::string::npos;
    });
}

void AddSearches(std::vector<Measure>& all, Floor& floor, const std::string& size) {
    Till& till = floor.till;
    for (const auto& [key, entry] : till.Access().screens) {
        if (key.front() != 'T' && key.front() != 'F') continue;
        for (const Till::Panel& panel : Till::Panels()) {
            std::vector<std::string> criteria = till.Criteria(key, panel);
            if (criteria.empty()) continue;
            std::erase(criteria,
                       "Payment Date"); // its statement fails on one of the screens, which is wanted
            criteria.insert(criteria.begin(), "");
            for (const std::string& criterion : criteria) {
                const std::string of = criterion.empty() ? AnyText(criteria) : criterion;
                const auto prepare = [&till, key = key, panel, of,
                                      value = criterion.empty() ? "" : ValueFor(criterion)] {
                    till.PrepareSearch(key, panel, of, value);
                };
                const auto work = [&till, key = key, panel] { till.Execute(key, panel); };
                AddReading(all,
                           "search " + entry.name + (panel.frame == "frmCari" ? ": " : ", second: ") +
                               (criterion.empty() ? "everything" : criterion),
                           size, prepare, work, Nothing, 1);
            }
        }
        till.Close(key);
    }
}

} // namespace

void AddScreenMeasures(std::vector<Measure>& all, Floor& floor, const std::string& size) {
    Till& till = floor.till;
    AddPosting(all, floor, size);
    AddNumbers(all, floor, size);
    AddLoading(all, floor, size);
    for (const auto& [key, entry] : till.Access().screens) {
        const auto show = [&till, key = key] { till.ShowAnother(key); };
        AddReading(
            all, "open " + entry.name, size, Nothing, show, [&till] { till.CloseShown(); }, 5);
    }
    AddSearches(all, floor, size);
    for (const LookUp& lookUp : Till::LookUps()) {
        const auto work = [&till, &lookUp] { till.OpenLookUp(lookUp); };
        const auto prepare = [&till, &lookUp] { till.PrepareLookUp(lookUp); };
        AddReading(all, "list " + lookUp.label, size, prepare, work, Nothing, 1);
    }
}

} // namespace varnik::bench
