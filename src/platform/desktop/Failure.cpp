#include "platform/desktop/Failure.h"

#include "common/Text.h"

#include <new>

namespace varnik {

namespace {

// The numbers of failures that come from a rule's own arithmetic rather than from the data.
constexpr long SubscriptOutOfRange = 9, InternalError = 51;

long NumberOf(const std::exception& failure) {
    if (const auto* data = dynamic_cast<const ado::DataError*>(&failure)) return data->Number();
    if (dynamic_cast<const std::out_of_range*>(&failure)) return SubscriptOutOfRange;
    if (dynamic_cast<const std::overflow_error*>(&failure)) return ado::Overflow;
    return InternalError;
}

} // namespace

bool Resume(const std::function<void()>& statement, std::string* failure) {
    try {
        statement();
        return true;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& met) {
        if (failure) *failure = met.what();
        return false;
    }
}

bool Reported(Desktop& desktop, const std::function<void()>& routine) {
    std::string failure;
    if (Resume(routine, &failure)) return true;
    desktop.Hourglass(false);
    desktop.MessageBox({.text = failure});
    return false;
}

void ReportFailures(forms::Screen& screen, Desktop& desktop) {
    screen.onFailure = [&desktop](const std::string& description) {
        desktop.MessageBox({.text = description, .icon = Icon::Critical});
    };
}

bool Guard::Run(const std::function<void(Guard&)>& routine) {
    try {
        routine(*this);
        return true;
    } catch (const Aborted&) {
        return false;
    }
}

void Guard::Step(const std::function<void()>& statement) {
    for (;;) {
        Answer answer;
        try {
            statement();
            return;
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& failure) {
            answer = AskAbout(NumberOf(failure), failure.what());
        }
        if (answer == Answer::Ignore) return;
        if (answer != Answer::Retry) throw Aborted{};
    }
}

Answer Guard::AskAbout(long number, const std::string& text) {
    if (skipFailures_) return Answer::Ignore;
    Box box{.text = text, .icon = Icon::Critical, .buttons = Buttons::AbortRetryIgnore};
    if (!descriptionAlone_) box.text = prefix_ + std::to_string(number) + std::string(CrLf) + text;
    return desktop_.MessageBox(box);
}

} // namespace varnik
