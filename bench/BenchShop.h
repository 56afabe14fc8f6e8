#pragma once
// A shop of a given size in a folder of its own, with the program on it and one sale at a time on the
// sales screen. Folders are removed at the end.

#include "app/Program.h"
#include "bench/BareLoop.h"
#include "tests/support/TestDesktop.h"

#include <filesystem>
#include <memory>

namespace varnik::bench {

class BenchShop {
public:
    explicit BenchShop(long sales, long masters = 1000);
    ~BenchShop();

    std::filesystem::path Database() const { return folder_ / "Data" / "Varnik.mdb"; }
    Services& Access() { return program_->Access(); }

    // Opens a screen by its menu key, as a click on the leaf does, and closes it again.
    void OpenAndClose(const std::string& key);
    // Enters a sale of this many lines up to the point where Save is pressed.
    void EnterSale(int lines);
    void Save();
    std::string NextNumber();
    // Runs a list of the first so many sales up to its first page; the number of its pages.
    int FirstPageOfSales(long rows);
    // On the master screens, opened once: a search that finds every row, the change of one record up to
    // the point where OK is pressed, and OK.
    void Search(const std::string& key, const std::string& screen);
    void Edit(const std::string& key, const std::string& screen, const std::string& code);
    void SaveRecord(const std::string& screen);
    // The look-up of all customers on the sales screen.
    void PrepareLookUp();
    void LookUpCustomers();
    BareLoop& Bare() { return *bare_; }

private:
    forms::Control& On(const std::string& control);
    forms::Screen& Master(const std::string& key, const std::string& screen);
    void Type(const std::string& control, const std::string& text);

    std::filesystem::path folder_;
    std::unique_ptr<TestDesktop> desktop_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<BareLoop> bare_;
    forms::Screen* invoice_ = nullptr;
    long filled_;    // sales that were there before
    long masters_;   // products, and as many customers
    long sales_ = 0; // of the bench itself
};

} // namespace varnik::bench
