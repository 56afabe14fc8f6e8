#include "tests/walk/support/WalkDesktop.h"

#include "reports/engine/Report.h"

#include <typeinfo>

namespace varnik::walk {

namespace {

constexpr int PatienceInAction = 40;   // questions after which a person gives up
constexpr int QuestionsInAction = 400; // after which the action will never end

} // namespace

void WalkDesktop::CountQuestion() {
    ++asked;
    if (++askedInAction_ > QuestionsInAction) throw AsksWithoutEnd{};
}

// A box that shows while a failure is under way shows that failure. Statements and the arithmetic of rules
// may fail, and the screens say so; anything else is a mistake of the program.
void WalkDesktop::LookAtFailure(const Box& box) {
    const std::exception_ptr underWay = std::current_exception();
    if (!underWay) return;
    const bool unmetByScreen = box.buttons == Buttons::Ok && box.icon == Icon::Critical;
    try {
        std::rethrow_exception(underWay);
    } catch (const ado::DataError& failure) {
        if (unmetByScreen && Top()) ++unmet[Top()->Name() + ": " + failure.what()];
    } catch (const std::exception& failure) {
        onFinding(std::string("a failure of the program shows: ") + typeid(failure).name() + " " +
                  failure.what());
    } catch (...) {
    }
}

Answer WalkDesktop::MessageBox(const Box& box) {
    CountQuestion();
    LookAtFailure(box);
    const bool tired = askedInAction_ > PatienceInAction;
    const auto byChance = [&](const std::vector<Answer>& possible) {
        if (always_ == Always::Yes) return possible.front();
        return tired || always_ == Always::No ? possible.back() : chance_.Of(possible);
    };
    switch (box.buttons) {
    case Buttons::Ok:
        break;
    case Buttons::OkCancel:
        return byChance({Answer::Ok, Answer::Cancel});
    case Buttons::YesNo:
        return byChance({Answer::Yes, Answer::No});
    case Buttons::YesNoCancel:
        return byChance({Answer::Yes, Answer::No, Answer::Cancel});
    case Buttons::AbortRetryIgnore:
        return byChance({Answer::Retry, Answer::Ignore, Answer::Abort});
    }
    return Answer::Ok;
}

std::optional<std::string> WalkDesktop::InputBox(const std::string&, const std::string&) {
    CountQuestion();
    if (always_ == Always::No || chance_.Percent(20)) return std::nullopt;
    return chance_.Percent(30) ? texts_.Code() : texts_.Anything();
}

// Names in the shop's own folder alone: a walk writes nowhere else.
std::string WalkDesktop::FileName() {
    static const std::vector<std::string> names = {
        "a.bck", "b 'quoted' %s.bck", "\xD0\x9F\xD1\x80.bck", "Data/Varnik.mdb",
        "Data",  "missing/x.bck",     "Varnik.reg",
    };
    return (ProgramFolder() / chance_.Of(names)).string();
}

std::optional<std::string> WalkDesktop::OpenFile(const std::string&, const std::string&) {
    CountQuestion();
    return chance_.Percent(20) ? std::nullopt : std::optional(FileName());
}

std::optional<std::string> WalkDesktop::SaveFile(const std::string&, const std::string&) {
    CountQuestion();
    return chance_.Percent(20) ? std::nullopt : std::optional(FileName());
}

bool WalkDesktop::PrintDialog(const std::string&) { return chance_.Percent(50); }

// Whoever asks for a report looks at it, and saves some.
void WalkDesktop::LaunchReport(const ReportRequest& request) {
    ++launched;
    const std::unique_ptr<reports::Report> report = reports::OpenReport(request, *services);
    report->BuildPage(1);
    report->BuildPage(report->PageCount());
    report->Text();
    if (chance_.Percent(10)) report->WriteCsv(ProgramFolder() / "report.csv");
    if (chance_.Percent(5)) report->WriteXlsx(ProgramFolder() / "report.xlsx");
}

bool WalkDesktop::OpenWithShell(const std::string&) { return chance_.Percent(50); }

} // namespace varnik::walk
