#include "common/Numbering.h"

#include "common/Numbers.h"
#include "common/Text.h"

namespace varnik {
namespace {

// Receipts share one series, and so do payments: they stand in one table.
constexpr NumberingRule Rules[] = {
    {Document::Invoice, "Select NoInv From QryIDInvoice  Where NoUser ='", CounterReading::LeadingDigits},
    {Document::InvoiceRetur, "SELECT NOINV From QryIDReturJual Where noUser ='", CounterReading::PlusOne},
    {Document::Faktur, "Select ID  From QryIDFaktur  Where NoUser ='", CounterReading::WholeNumber},
    {Document::FakturRetur, "Select ID From QryIDReturBeli  Where NoUser ='", CounterReading::LeadingDigits},
    {Document::BayarInvoice, "Select Id From QryIDReceive  Where NoUser ='", CounterReading::LeadingDigits},
    {Document::Bayar, "Select Id From QryIDReceive  Where NoUser ='", CounterReading::LeadingDigits},
    {Document::BayarFaktur, "Select noBukti From QryIDBKK  Where NoUser ='", CounterReading::LeadingDigits},
    {Document::OtherReceive, "Select NoBukti From QryIdBKM Where NoUser ='", CounterReading::LeadingDigits},
    {Document::OtherPayment, "Select NoBukti From QryIdBKK Where NoUser ='", CounterReading::LeadingDigits},
};

// The counter's separator is the comma on every machine.
const Regional CounterStyle{};

// The next counter value.
double Next(const std::string& counter, CounterReading reading) {
    switch (reading) {
    case CounterReading::PlusOne:
        return Val(SqlNumber(NullToNumber(counter, CounterStyle) + 1));
    case CounterReading::WholeNumber:
        return Val(SqlNumber(NullToNumber(counter, CounterStyle))) + 1;
    case CounterReading::LeadingDigits:
        break;
    }
    return Val(counter) + 1;
}

} // namespace

const NumberingRule& NumberingOf(Document document) { return Rules[static_cast<std::size_t>(document)]; }

std::string NumberAfter(const std::optional<std::string>& counter, CounterReading reading,
                        std::string_view noUser) {
    const std::string next = counter ? FormatNumber(Next(*counter, reading), "#,##0", CounterStyle) : "1";
    return Repeat(10 - Len(next), '0') + next + std::string(noUser);
}

} // namespace varnik
