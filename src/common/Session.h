#pragma once
// Who works here and for which company: the one record that outlives a screen. Everybody may read it;
// only start-up, login and company setup write it.

#include <array>
#include <string>
#include <vector>

namespace varnik {

struct Session {
    std::string DateMask;         // "mm/dd/yyyy": turns dates into text for SQL and display
    std::string ConnectionString; // always "DSN=VarNik"
    std::string UserName;
    std::string NoUser = "00"; // two characters
    bool RightTambah = false;
    bool RightGanti = false;
    bool RightLihat = true; // held, tested by no screen
    bool RightHapus = false;
    bool LoggedIn = false;
    std::string CompanyName; // as stored; the three lines are trimmed
    std::string CompanyLine1;
    std::string CompanyLine2;
    std::string CompanyLine3;
    std::array<std::string, 4> PaymentMethod; // 1 to 3
    std::array<std::string, 10> WordOnes;     // 1 to 9; filled at start, read by no routine
    std::array<std::string, 5> WordScale;     // 1 to 4; the same
    int StockCostingMethod = 2;               // lot costing; no setting changes it
    std::vector<std::string> ProductTypes;    // code and name joined, filled on demand
    std::vector<std::string> CustomerTypes;
};

} // namespace varnik
