#pragma once
// What the report dialogs share: lists of filters, the period, and the way from the Print button to the
// preview. A dialog fills in a request (statement, titles, parameters) and hands it over; what it looks like
// on paper is the definition's business.

#include "platform/desktop/ProgramScreen.h"

#include <functional>
#include <string>

namespace varnik {

class ReportDialog : public ProgramScreen {
protected:
    using ProgramScreen::ProgramScreen;

    // Whether a failure shows as a box with its description alone, or goes to the screen's own report.
    enum class Failing { Reported, Escapes };
    // Ok runs `print`, Cancel closes.
    void Wire(forms::Button& ok, forms::Button& cancel, std::function<void()> print,
              Failing failing = Failing::Escapes);

    // Code and name of every row of a statement with these two columns, as "code / name". Padded takes the
    // trimmed code with blanks up to ten characters. The combo's text stays as it is.
    enum class CodeForm { Plain, Padded };
    void FillFilter(forms::ComboBox& combo, const std::string& statement, CodeForm form);
    // The code of what is chosen: what stands before the "/", trimmed; without one the whole text. "" when
    // nothing is chosen: no filter.
    static std::string CodeOf(const forms::ComboBox& combo);

    // The current month up to today.
    void ResetPeriod(forms::DatePicker& from, forms::DatePicker& upTo) const;
    // Both days as the statements and titles write them, with the session's mask.
    struct Period {
        std::string from, upTo;
        // "Datevalue('11/01/2026') and datevalue('11/22/2026')"
        std::string Bounds() const;
    };
    Period PeriodOf(const forms::DatePicker& from, const forms::DatePicker& upTo) const;

    // Whether the period ends before it begins; then it says so with this message.
    bool Backwards(const forms::DatePicker& from, const forms::DatePicker& upTo,
                   const std::string& message) const;

    // Hands over what `build` fills in, under the hourglass.
    void Launch(const std::function<ReportRequest()>& build) const;
    // A request for a definition ("\\LapJual1.rpt") as all dialogs fill it: the company's lines in the title
    // formulas from 15 on, a maximised window. A dialog that names its connection sets Connect itself.
    ReportRequest RequestFor(const std::string& file) const;
    // "Judul;text;True"
    static std::string ParameterText(const std::string& name, const std::string& value);
};

} // namespace varnik
