#pragma once
// The program on a folder, with somebody at its screens: enters documents up to the point where Save is
// pressed, finds, lists and loads. What is timed is one call each.

#include "app/Program.h"
#include "platform/forms/Grid.h"
#include "tests/support/TestDesktop.h"

#include <filesystem>
#include <memory>
#include <set>

namespace varnik::bench {

// A list that opens over a screen, and what is done to see it.
struct LookUp {
    std::string label, key;  // of the screen
    std::string field, part; // what is typed first; nothing for the whole list
    std::string asks;        // the control at which F5 is pressed, or the button that is clicked
    std::string list;        // the control that shows it
    bool button = false;
};

class Till {
public:
    explicit Till(std::filesystem::path folder);
    ~Till();

    Services& Access() { return program_->Access(); }
    TestDesktop& Desk() { return *desktop_; }

    // The screen of a menu key, opened when it is not open yet.
    forms::Screen& Open(const std::string& key);
    forms::Screen& Fresh(const std::string& key);
    void Close(const std::string& key);
    // A second one beside it, shown; the next call of CloseShown takes it away.
    void ShowAnother(const std::string& key);
    void CloseShown();

    void EnterSale(int lines);
    void EnterPurchase(int lines);
    void EnterReceipt(int invoices);
    // Stands before the Save that deletes the document which was saved last on the screen.
    void ChooseToDelete(const std::string& key);
    void Save(const std::string& key);

    // A document by its number, as typed in the number's field of a screen that is ready for it.
    void ReadyToLoad(const std::string& key);
    void Load(const std::string& key, const std::string& number);

    // On the search panel of a screen: a criterion and its value are typed; Execute searches and looks at the
    // first rows. The number of rows found.
    struct Panel {
        std::string frame, criterion, value, execute, list;
    };
    static const std::vector<Panel>& Panels();
    std::vector<std::string> Criteria(const std::string& key, const Panel& panel);
    void PrepareSearch(const std::string& key, const Panel& panel, const std::string& criterion,
                       const std::string& value);
    int Execute(const std::string& key, const Panel& panel);

    static const std::vector<LookUp>& LookUps();
    void PrepareLookUp(const LookUp& lookUp);
    int OpenLookUp(const LookUp& lookUp);

    // On a report dialog: the kinds of report that it offers, by the names of their buttons; one is chosen,
    // for one party and last month where it asks for them; and what Print hands over.
    std::vector<std::string> Kinds(const std::string& key);
    std::string CaptionOf(const std::string& key, const std::string& control);
    void Choose(const std::string& key, const std::string& kind);
    ReportRequest Print(const std::string& key);

    std::string Asked(const std::string& sql); // the first cell of a statement
    std::vector<std::string> Column(const std::string& sql);

private:
    forms::Control& On(forms::Screen& screen, const std::string& control);
    void Enter(forms::Screen& screen, const std::string& control, const std::string& text);
    void Look(const forms::ListGrid& list);
    void CheckLines(forms::Screen& screen, int lines);

    std::unique_ptr<TestDesktop> desktop_;
    std::unique_ptr<Program> program_;
    std::vector<std::string> goods_;           // with enough in their first open lot
    std::map<std::string, std::string> saved_; // by menu key: the number of the last document
    forms::Screen* shown_ = nullptr;
    long documents_ = 0;
};

} // namespace varnik::bench
