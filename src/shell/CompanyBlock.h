#pragma once
// What splash and about screen show of the program and the company it works for.

#include "common/Session.h"
#include "common/Text.h"

namespace varnik {

inline constexpr const char* ProductTitle = "Varnik Ledger Suite";
inline constexpr const char* ProductVersion = "Version 1.0";

inline std::string CompanyBlock(const Session& session) {
    return session.CompanyName + std::string(CrLf) + session.CompanyLine1 + " " + Trim(session.CompanyLine2) +
           Trim(session.CompanyLine3);
}

} // namespace varnik
