#pragma once
// Document numbers: a ten-character counter, filled with zeros on the left, then the two characters of the
// user who entered the document. Every user counts in a series of his own, so two never clash and no
// counter is kept anywhere: the next number follows from the documents that stand.
//
// The counter carries a comma from 1,000 on (000001,000). Screens that read it by its leading digits alone
// then offer the second number of the series again, which their test for an existing number reports; the
// purchase invoice and the sales return read past the comma. All of that is wanted.

#include <optional>
#include <string>
#include <string_view>

namespace varnik {

enum class Document {
    Invoice,
    InvoiceRetur,
    Faktur,
    FakturRetur,
    BayarInvoice,
    Bayar,
    BayarFaktur,
    OtherReceive,
    OtherPayment
};

enum class CounterReading {
    LeadingDigits, // stops at the comma
    PlusOne,       // the text taken as a number by adding to it
    WholeNumber    // text to number, to text, to number
};

struct NumberingRule {
    Document document;
    std::string_view statement; // the highest counter of a user; NoUser and a closing quote follow
    CounterReading reading;
};

const NumberingRule& NumberingOf(Document document);

// The number after a user's highest counter, nothing when he has none yet.
std::string NumberAfter(const std::optional<std::string>& counter, CounterReading reading,
                        std::string_view noUser);

} // namespace varnik
