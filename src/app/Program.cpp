#include "app/Program.h"

#include "data/Schema.h"
#include "sales/Sales.h"
#include "shell/Main.h"

namespace varnik {

Program::Program(Desktop& desktop, const Regional& machine)
    : regional_(machine),
      registry_(desktop.ProgramFolder() / "Varnik.reg"),
      data_{.catalog = data::Catalog(), .regional = &regional_, .resolve = {}},
      services_{session_, desktop, data_, regional_, registry_} {
    data_.resolve = [&desktop](std::string_view) { return desktop.ProgramFolder() / "Data" / "Varnik.mdb"; };
    RegisterShell(services_);
    RegisterSales(services_);
}

void Program::Start() { Main(services_); }

} // namespace varnik
