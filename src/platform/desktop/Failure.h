#pragma once
// The three shapes in which a failing statement is met: resumed, reported, guarded. A failure is any
// std::exception but memory that has run out, which goes through all of them.

#include "platform/ado/Ado.h"
#include "platform/desktop/Desktop.h"

#include <concepts>
#include <functional>
#include <initializer_list>
#include <string>

namespace varnik {

// Resumed: a failing statement is skipped. True when it went through; the description of the last
// failure is kept in `failure` when one is given, and stays as it was on success.
bool Resume(const std::function<void()>& statement, std::string* failure = nullptr);

// Reported: normal pointer, the description alone in a box, and the routine ends. True when it ran through.
bool Reported(Desktop& desktop, const std::function<void()>& routine);

// A failure that no handler met: from now on it shows in a critical box, and the screen goes on. Both faces
// call it for every screen that they show.
void ReportFailures(forms::Screen& screen, Desktop& desktop);

// One column of a row to write. A value given as a lambda or as a field of a recordset is computed when its
// step runs, so that a failure in it belongs to that step and Retry computes it anew.
struct Cell {
    template <typename T>
    Cell(std::string_view name, T&& from) : column(name), value(Later(std::forward<T>(from))) {}
    std::string_view column;
    std::function<Value()> value;

private:
    template <typename T>
    static std::function<Value()> Later(T&& from) {
        if constexpr (std::invocable<T&>)
            return [from] { return Value(from()); };
        else if constexpr (std::same_as<std::remove_cvref_t<T>, ado::Field>)
            return [from] { return from.Value(); };
        else
            return [value = Value(std::forward<T>(from))] { return value; };
    }
};

// Guarded: statement by statement. A failing one shows prefix + number + line break + text with Abort,
// Retry and Ignore: Abort leaves the routine, Retry repeats the statement, Ignore goes on with the next.
//
//     Guard guard(Desk(), "Err No ");
//     guard.Run([&](Guard& step) {
//         ado::Connection connection(services_.data);
//         step.Step([&] { connection.Open(Sess().ConnectionString); });
//         step.AddRow(invoice, {{"NoInvoice", TxtNoInvoice.Text()},
//                               {"HPP", [&] { return ado::Divide(cost, quantity); }},
//                               {"KodeCus", customer["KodeCus"]}}); // AddNew, a step a column, Update
//     });
//
// One step is one statement; what fails outside a step goes to the screen's own report. A screen that is
// asked for a result declares it before the step with the value that it has when the step is passed over.
class Guard {
public:
    Guard(Desktop& desktop, std::string prefix) : desktop_(desktop), prefix_(std::move(prefix)) {}

    // Runs the routine; inside it every statement is one step: guard.Step([&] { ... }). False on Abort.
    bool Run(const std::function<void(Guard&)>& routine);
    void Step(const std::function<void()>& statement);
    // Columns of the row under edit, each one step.
    void Put(ado::Recordset& rows, std::initializer_list<Cell> cells);
    // Saves the row under edit. A value that its column refuses is asked about; passed over, it is left out
    // and the rest of the row is saved: goods and balances never depend on a price or memo that did not fit.
    void Update(ado::Recordset& rows);
    void PutRow(ado::Recordset& rows, std::initializer_list<Cell> cells); // the columns, then Update
    void AddRow(ado::Recordset& rows, std::initializer_list<Cell> cells); // AddNew, the columns, Update
    // The same with the description alone in the box, where a routine shows it so.
    void ShowDescriptionAlone() { descriptionAlone_ = true; }
    // No box at all: a failing step is passed over silently, as by Resume, and the routine goes on.
    void SkipFailures() { skipFailures_ = true; }

private:
    struct Aborted {};
    Answer AskAbout(long number, const std::string& text);
    Desktop& desktop_;
    std::string prefix_;
    bool descriptionAlone_ = false, skipFailures_ = false;
};

} // namespace varnik
