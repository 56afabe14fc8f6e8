#include "platform/regional/MachineRegional.h"

#include "common/Text.h"

#include <langinfo.h>
#include <locale.h>

#include <memory>
#include <type_traits>

namespace varnik::regional {
namespace {

using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, decltype(&freelocale)>;

// The environment's locale for one category; null when it names one that is not installed.
Locale OfEnvironment(int mask) { return {newlocale(mask, "", nullptr), &freelocale}; }

} // namespace

Regional FromPatterns(std::string_view date, std::string_view decimal, std::string_view group) {
    Regional regional;
    if (date == "%F") date = "%Y-%m-%d";
    if (date == "%D") date = "%m/%d/%Y";
    std::string order, separator;
    for (std::size_t i = 0; i < date.size(); ++i) {
        if (date[i] != '%') {
            if (order.size() == 1) separator += date[i];
            continue;
        }
        ++i;
        while (i < date.size() && std::string_view("-_0EO").find(date[i]) != std::string_view::npos) ++i;
        if (i < date.size()) order += date[i] == 'e' ? 'd' : date[i] == 'y' ? 'Y' : date[i];
    }
    // Years always have four digits here, in locales with short ones too: a due date of 2030 would be
    // read back as 1930. Blanks around the separator are dropped, so that a date has ten characters.
    separator = Trim(separator);
    const bool known = order == "mdY" || order == "dmY" || order == "Ymd" || order == "Ydm";
    if (known && separator.size() == 1) {
        regional.order = order == "mdY"   ? DateOrder::MonthDayYear
                         : order == "dmY" ? DateOrder::DayMonthYear
                         : order == "Ymd" ? DateOrder::YearMonthDay
                                          : DateOrder::YearDayMonth;
        regional.dateSeparator = separator;
    }
    if (decimal.size() == 1) regional.decimal = decimal[0];
    regional.group = regional.decimal == ',' ? '.' : ',';
    if (group.size() == 1)
        regional.group = group[0];
    else if (group == "\u00A0" || group == "\u202F" || group == "\u2009") // blanks of several widths
        regional.group = ' ';
    else if (group == "\u2019")
        regional.group = '\'';
    return regional;
}

Regional ReadMachine() {
    const Locale time = OfEnvironment(LC_TIME_MASK), numeric = OfEnvironment(LC_NUMERIC_MASK);
    const auto tells = [](const Locale& locale, nl_item item) -> std::string {
        return locale ? nl_langinfo_l(item, locale.get()) : "";
    };
    return FromPatterns(tells(time, D_FMT), tells(numeric, RADIXCHAR), tells(numeric, THOUSEP));
}

} // namespace varnik::regional
