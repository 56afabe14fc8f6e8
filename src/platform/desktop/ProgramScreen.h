#pragma once
// A screen of this program: it carries the services and the short words in which rules are written.

#include "common/Numbers.h"
#include "common/Text.h"
#include "platform/desktop/Services.h"
#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"
#include "platform/forms/Screen.h"

namespace varnik {

class ProgramScreen : public forms::Screen {
public:
    ProgramScreen(Services& services, std::string name, std::string caption)
        : Screen(std::move(name), std::move(caption)), services_(services) {}

protected:
    Services& services_;
    const Session& Sess() const { return services_.session; }
    Desktop& Desk() const { return services_.desktop; }

    double Number(const forms::TextControl& field) const {
        return ToNumber(field.Text(), services_.regional);
    }
    double Number(const std::string& text) const { return ToNumber(text, services_.regional); }
    double Number(const Value& value) const { return ToNumber(value, services_.regional); }
    std::string Masked(double number, std::string_view mask = "#,##0") const {
        return FormatNumber(number, mask, services_.regional);
    }
    std::string MaskedInSql(double number) const { return varnik::MaskedInSql(number, services_.regional); }
    std::string TextOf(const Value& value) const { return NullToText(value, services_.regional); }
    std::string Shown(const Value& value) const { return ShowValue(value, services_.regional); }
    bool Numeric(std::string_view text) const { return IsNumeric(text, services_.regional); }
    std::string SqlDate(DateTime date) const { return FormatDate(date, services_.session.DateMask); }
    DateTime Today() const { return DateTime{services_.desktop.Now().day, 0}; }
    // A yes/no column.
    bool Yes(const Value& value) const { return NullToNumber(value, services_.regional) != 0; }
    // A request for one of the printed documents in the folder of reports ("\\Invoice.rpt").
    ReportRequest ReportOf(const std::string& file) const {
        ReportRequest request;
        request.ReportFileName = Desk().ProgramFolder().string() + "\\Report" + file;
        return request;
    }

    // Boxes in one line. The title is the application's unless another is given.
    void Say(const std::string& text, Icon icon = Icon::None, const std::string& title = "Varnik") const {
        services_.desktop.MessageBox({text, title, icon, Buttons::Ok});
    }
    bool Ask(const std::string& text, const std::string& title = "Varnik") const {
        return services_.desktop.MessageBox({text, title, Icon::Question, Buttons::YesNo}) == Answer::Yes;
    }
};

} // namespace varnik
