#include "reports/engine/Output.h"

#include "platform/ado/Ado.h"
#include "reports/engine/Report.h"

namespace varnik::reports {

Output::Output(std::filesystem::path target) : target_(std::move(target)), draft_(target_) {
    draft_ += ".part";
}

Output::~Output() {
    std::error_code ignored;
    std::filesystem::remove(draft_, ignored);
}

void Output::Keep() {
    std::error_code failure;
    std::filesystem::rename(draft_, target_, failure);
    if (failure) Fail(failure.message());
}

void Output::Fail(const std::string& why) const {
    throw ado::DataError(CannotWrite,
                         "The file \"" + target_.string() + "\" cannot be written: " + why + ".");
}

} // namespace varnik::reports
