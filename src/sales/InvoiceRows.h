#pragma once
// A posted invoice as it is read back: by its own screen, and by a return from it.

#include <string>

namespace varnik {

// The header with its customer; nothing for an invoice whose customer is gone.
inline std::string InvoiceHeaderOf(const std::string& number) {
    return "SELECT Customer.KodeCus, Customer.NamaCus, Customer.Alamat_1, Customer.Alamat_2, "
           "Customer.Alamat_3, Customer.Kota, Invoice.NoInvoice, Invoice.TglInvoice, Invoice.CusPo, "
           "Invoice.TglJTP, nPPN,Invoice.Bruto, Invoice.Disc, Invoice.Netto, Invoice.PPN, "
           "Invoice.Total, Invoice.Bayar, Invoice.Saldo  FROM Customer INNER JOIN Invoice ON "
           "Customer.KodeCus = Invoice.KodeCus Where Invoice.NoInvoice ='" +
           number + "'";
}

inline std::string InvoiceLinesOf(const std::string& number) {
    return "Select KodeBrg, Diskripsi, Qty,Satuan,Harga, Disc,Total, Qty2 From InvoiceDetail Where NoInvoice "
           "='" +
           number + "'";
}

} // namespace varnik
