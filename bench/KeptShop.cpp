#include "bench/KeptShop.h"

#include "bench/shop/Fill.h"
#include "data/DataSource.h"

#include <sqlite3.h>

#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace varnik::bench {

namespace {

std::filesystem::path FreshFolder(const std::filesystem::path& beside) {
    std::filesystem::create_directories(beside);
    std::string name = (beside / "varnik-bench-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no folder can be made in " + beside.string());
    return name;
}

// Tables, keys, views and indexes of a fresh database: a shop of another schema is another shop.
std::string SchemaOf(const std::filesystem::path& database) {
    sqlite3* engine = nullptr;
    sqlite3_open_v2(database.c_str(), &engine, SQLITE_OPEN_READONLY, nullptr);
    std::string schema;
    sqlite3_exec(
        engine, "SELECT sql FROM sqlite_master ORDER BY type, name",
        [](void* all, int, char** cells, char**) {
            static_cast<std::string*>(all)->append(cells[0] ? cells[0] : "");
            return 0;
        },
        &schema, nullptr);
    sqlite3_close(engine);
    return schema;
}

std::filesystem::path KeptShop(long sales) {
    const std::filesystem::path shops = VARNIK_KEPT_SHOPS;
    const std::filesystem::path fresh = FreshFolder(shops);
    MakeShop(fresh, 0);
    const std::string schema = SchemaOf(data::DatabaseFile(fresh));
    std::filesystem::remove_all(fresh);
    const std::filesystem::path kept =
        shops / (std::to_string(sales) + "-v" + std::to_string(ShopVersion) + "-" +
                 std::to_string(std::hash<std::string>()(schema) % 1'000'000));
    if (std::filesystem::exists(kept)) return kept;
    std::printf("filling a shop of %ld sales ...\n", sales);
    std::fflush(stdout);
    const std::filesystem::path filled = FreshFolder(shops);
    MakeShop(filled, sales);
    std::filesystem::rename(filled, kept);
    return kept;
}

} // namespace

ShopCopy::ShopCopy(long sales) : folder_(FreshFolder(VARNIK_KEPT_SHOPS)) {
    const std::filesystem::path kept = KeptShop(sales);
    std::filesystem::create_directories(Database().parent_path());
    std::filesystem::copy_file(data::DatabaseFile(kept), Database());
}

ShopCopy::~ShopCopy() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::filesystem::path ShopCopy::Database() const { return data::DatabaseFile(folder_); }

} // namespace varnik::bench
