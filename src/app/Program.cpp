#include "app/Program.h"

#include "cashbook/Cashbook.h"
#include "data/DataSource.h"
#include "master/Master.h"
#include "purchases/Purchases.h"
#include "reports/Reports.h"
#include "sales/Sales.h"
#include "shell/Main.h"

namespace varnik {

Program::Program(Desktop& desktop, const Regional& machine)
    : regional_(machine),
      registry_(desktop.ProgramFolder() / "Varnik.reg"),
      data_(data::MakeEnvironment(regional_, registry_)),
      services_{session_, desktop, data_, regional_, registry_} {
    RegisterShell(services_);
    RegisterMaster(services_);
    RegisterSales(services_);
    RegisterPurchases(services_);
    RegisterCashbook(services_);
    RegisterReports(services_);
}

void Program::Start() { Main(services_); }

} // namespace varnik
