#include "shell/frmSplash.h"

#include "shell/CompanyBlock.h"

namespace varnik {

frmSplash::frmSplash(Services& services) : ProgramScreen(services, "frmSplash", "Varnik") {}

void frmSplash::SetCaptions() {
    lblProductName.SetCaption(ProductTitle);
    Lblversi1.SetCaption(ProductVersion);
    LblVersi2.SetCaption(CompanyBlock(Sess()));
}

} // namespace varnik
