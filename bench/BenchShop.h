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
    explicit BenchShop(long sales);
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
    BareLoop& Bare() { return *bare_; }

private:
    forms::Control& On(const std::string& control);
    void Type(const std::string& control, const std::string& text);

    std::filesystem::path folder_;
    std::unique_ptr<TestDesktop> desktop_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<BareLoop> bare_;
    forms::Screen* invoice_ = nullptr;
    long filled_;    // sales that were there before
    long sales_ = 0; // of the bench itself
};

} // namespace varnik::bench
