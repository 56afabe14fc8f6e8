#include "shell/frmAbout.h"

#include "platform/registry/Registry.h"
#include "shell/CompanyBlock.h"

#include <filesystem>
#include <system_error>

namespace varnik {

frmAbout::frmAbout(Services& services) : ProgramScreen(services, "frmAbout", "About Varnik") {
    cmdOK.onClick = [this] { Close(); };
    cmdSysInfo.onClick = [this] { StartSystemInformation(); };
    lb_email.onClick = [this] { Desk().OpenWithShell("mailto:support@varnik.example"); };
    SetDefault(&cmdOK);
    SetCancel(&cmdOK);
}

void frmAbout::Load() {
    Label1.SetCaption(ProductTitle);
    Lblversi1.SetCaption(ProductVersion);
    LblVersi2.SetCaption(CompanyBlock(Sess()));
}

void frmAbout::StartSystemInformation() {
    const auto tool = SystemInformationTool();
    if (!tool || !Desk().OpenWithShell(*tool)) Say("System Information Is Unavailable At This Time");
}

// Its path as the machine has registered it, else the folder of the shared tools when it stands there.
std::optional<std::string> frmAbout::SystemInformationTool() const {
    const registry::Registry& registry = services_.registry;
    if (auto path = registry.QueryText(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)", "PATH")) return path;
    const auto folder = registry.QueryText(R"(SOFTWARE\Microsoft\Shared Tools Location)", "MSINFO");
    std::error_code ignored;
    if (folder && std::filesystem::exists(std::filesystem::path(*folder) / "MSINFO32.EXE", ignored))
        return *folder + R"(\MSINFO32.EXE)";
    return std::nullopt;
}

} // namespace varnik
