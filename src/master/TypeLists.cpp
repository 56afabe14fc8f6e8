#include "master/TypeLists.h"

#include "common/Numbers.h"
#include "platform/desktop/Failure.h"
#include "platform/desktop/Services.h"

namespace varnik {

namespace {

void Load(Services& services, std::vector<std::string>& list, std::string_view statement, const char* code,
          const char* name) {
    Resume([&] {
        ado::Connection connection(services.data, services.session.ConnectionString);
        ado::Recordset types(statement, connection, ado::CursorType::Static);
        const auto text = [&](const char* column) { return NullToText(types[column], services.regional); };
        list.clear();
        for (; !types.Eof(); types.MoveNext()) list.push_back(text(code) + text(name));
    });
}

} // namespace

void LoadProductTypes(Services& services) {
    Load(services, services.session.ProductTypes, "SELECT * FROM JenisProduk order by JenisProduk",
         "KodeJenisProduk", "JenisProduk");
}

void LoadCustomerTypes(Services& services) {
    Load(services, services.session.CustomerTypes, "SELECT * FROM JenisCustomer order by JenisCus",
         "KodeJenisCus", "JenisCus");
}

} // namespace varnik
