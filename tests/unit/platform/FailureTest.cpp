#include "platform/desktop/Failure.h"
#include "platform/desktop/ProgramScreen.h"
#include "tests/support/TestDesktop.h"

#include <new>

namespace varnik {
namespace {

// A routine of three steps whose second fails `failures` times.
struct Routine {
    int failures;
    std::string done;
    bool Run(Guard& guard) {
        return guard.Run([this](Guard& step) {
            step.Step([&] { done += "1"; });
            step.Step([&] {
                if (failures-- > 0) throw ado::DataError(3021, "No current record.");
                done += "2";
            });
            step.Step([&] { done += "3"; });
        });
    }
};

TEST(Guard, ItsThreeAnswers) {
    const struct {
        int failures;
        std::deque<Answer> answers;
        const char* done;
        bool through;
    } cases[] = {{0, {}, "123", true},
                 {1, {Answer::Retry}, "123", true},
                 {2, {Answer::Retry, Answer::Retry}, "123", true},
                 {1, {Answer::Ignore}, "13", true},
                 {1, {Answer::Abort}, "1", false},
                 {9, {Answer::Retry, Answer::Abort}, "1", false}};
    for (const auto& c : cases) {
        TestDesktop desktop;
        desktop.answers = c.answers;
        Guard guard(desktop, "Err No ");
        Routine routine{c.failures, ""};
        EXPECT_EQ(routine.Run(guard), c.through);
        EXPECT_EQ(routine.done, c.done);
        EXPECT_EQ(desktop.boxes.size(), c.answers.size());
    }
}

TEST(Guard, ItsBox) {
    TestDesktop desktop;
    desktop.answers = {Answer::Abort, Answer::Abort};
    Guard numbered(desktop, "Err  ID "), plain(desktop, "");
    plain.ShowDescriptionAlone();
    for (Guard* guard : {&numbered, &plain}) Routine{1, ""}.Run(*guard);
    EXPECT_EQ(desktop.Message(), "Err  ID 3021\r\nNo current record.");
    EXPECT_EQ(desktop.Message(), "No current record.");
    for (const Box& box : desktop.boxes) {
        EXPECT_EQ(box.title, "Varnik");
        EXPECT_EQ(box.icon, Icon::Critical);
        EXPECT_EQ(box.buttons, Buttons::AbortRetryIgnore);
    }
}

TEST(Guard, CellsAreComputedInTheirStep) {
    int computed = 0;
    const Cell late("HPP", [&] { return ++computed; });
    const Cell text("NoInvoice", "000000000100"), none("TglClear", nullptr);
    EXPECT_EQ(computed, 0);
    EXPECT_EQ(late.value(), Value(1));
    EXPECT_EQ(late.value(), Value(2)) << "Retry computes it anew";
    EXPECT_EQ(text.value(), Value("000000000100"));
    EXPECT_TRUE(none.value().IsNull());
}

TEST(Failure, ResumedAndReported) {
    TestDesktop desktop;
    std::string failure = "as it was";
    EXPECT_TRUE(Resume([] {}, &failure));
    EXPECT_EQ(failure, "as it was");
    const auto fails = [] { throw ado::DataError(11, "Division by zero"); };
    EXPECT_FALSE(Resume(fails, &failure));
    EXPECT_EQ(failure, "Division by zero");
    EXPECT_THROW(Resume([] { throw std::bad_alloc(); }), std::bad_alloc);

    desktop.Hourglass(true);
    EXPECT_TRUE(Reported(desktop, [] {}));
    EXPECT_FALSE(Reported(desktop, fails));
    EXPECT_EQ(desktop.hourglass, 0);
    EXPECT_EQ(desktop.Message(), "Division by zero");
}

TEST(Failure, UnmetOnesShowInACriticalBox) {
    TestDesktop desktop;
    forms::Screen screen("Probe", "");
    forms::Button button(screen, "bttn");
    button.onClick = [] { throw ado::DataError(3704, "The recordset is closed."); };
    ReportFailures(screen, desktop);
    screen.Click(button);
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].text, "The recordset is closed.");
    EXPECT_EQ(desktop.boxes[0].title, "Varnik");
    EXPECT_EQ(desktop.boxes[0].icon, Icon::Critical);
}

TEST(Failure, AScreenThatFailsToUnloadIsClosedAllTheSame) {
    struct Stubborn : forms::Screen {
        Stubborn() : Screen("Stubborn", "") {
            bttnClose.onClick = [this] { Close(); };
        }
        void Unload() override { throw ado::DataError(ado::EngineFault, "The disk is gone."); }
        forms::Button bttnClose{*this, "bttnClose"};
    };
    TestDesktop desktop;
    desktop.Show(std::make_unique<Stubborn>());
    forms::Screen& screen = *desktop.FindScreen("Stubborn");
    ReportFailures(screen, desktop);
    screen.Click(*screen.FindControl("bttnClose"));
    EXPECT_EQ(desktop.Message(), "The disk is gone.");
    EXPECT_EQ(desktop.FindScreen("Stubborn"), nullptr);
}

TEST(Report, TitleFormulasStandAsTheTextsAre) {
    ReportRequest request;
    request.SetTitles(15, "Toko Jaya", "Jl. O'Hara", "", "x");
    const std::map<int, std::string> expected = {
        {15, "Judul1 ='Toko Jaya'"}, {16, "Judul2 ='Jl. O'Hara'"}, {17, "Judul3 =''"}, {18, "Judul4 ='x'"}};
    EXPECT_EQ(request.Formulas, expected);
}

} // namespace
} // namespace varnik
