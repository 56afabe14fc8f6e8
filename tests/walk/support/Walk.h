#pragma once
// A walk by chance through the program, below the toolkit: a seeded hand types what nobody expects into every
// field and presses whatever can be pressed, answering every box by chance. Afterwards the file has to be
// sound, its schema as it was, and the program has to start on it again. What was found and what led there
// is kept; the same seed walks the same way again.

#include "app/Program.h"
#include "tests/walk/support/WalkDesktop.h"

#include <deque>
#include <memory>

namespace varnik::walk {

struct Rights {
    bool add = true, change = true, remove = true;
};

// What follows a text that was typed.
enum class Then { Anything, Enter, Tab, Nothing };

struct Tally {
    long actions = 0, characters = 0, questions = 0, reports = 0, starts = 0, writes = 0;
    Tally& operator+=(const Tally& other);
};

class Walk {
public:
    // A shop of its own in a folder of its own, gone afterwards; the user is logged in with these rights.
    explicit Walk(std::uint64_t seed, Rights rights = {});
    ~Walk();
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    // The keys of all screens that the program has, as the menus know them; the main window is "".
    std::vector<std::string> Keys() const;
    // So many actions on the screen of this key and on whatever it opens. It is opened again when closed.
    void On(const std::string& key, int actions);
    // So many actions on all screens together, opened by the main window's tree and menus.
    void Everywhere(int actions);
    // Closes everything, and looks at the file.
    void End();

    // Goes to a field, types over its text, and leaves it. Nothing for a field that a person cannot reach.
    void TypeInto(forms::Screen& screen, forms::TextControl& field, const std::string& text,
                  Then then = Then::Anything);
    void Press(forms::Screen& screen, forms::Control& control);
    forms::Screen* Open(const std::string& key);
    // Runs it as one action of a person, with the bounds of one.
    void Act(const std::string& what, const std::function<void()>& action);

    WalkDesktop& Desktop() { return *desktop_; }
    Program& TheProgram() { return *program_; }
    Services& Access() { return program_->Access(); }
    // All rows of all tables, table by table.
    using AllTables = std::map<std::string, std::vector<std::string>>;
    AllTables Books();
    const AllTables& AtFirst() const { return atFirst_; }

    std::vector<std::string> findings; // each with the actions that led there
    Tally tally;
    std::vector<std::string> written; // the writing statements of all actions so far

private:
    void Start();
    void Step();
    void WorkOn(forms::Screen& screen);
    void StepOn(forms::Screen& screen);
    void HandOn(forms::Screen& screen, forms::Control& control);
    void ChooseAnywhere();
    void Found(const std::string& what);
    std::string Schema();

    std::uint64_t seed_;
    Rights rights_;
    Chance chance_;
    Texts texts_;
    std::filesystem::path folder_;
    std::unique_ptr<WalkDesktop> desktop_;
    std::unique_ptr<Program> program_;
    std::string schema_;
    AllTables atFirst_;
    std::deque<std::string> trail_; // the last actions
    bool locked_ = false;           // nobody can log in any more
};

} // namespace varnik::walk
