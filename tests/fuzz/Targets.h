#pragma once
// Readers that take what people, scanners and files bring: each gets bytes of any kind and may refuse them in
// the way it says, and in no other. A fuzzer feeds them by coverage ("script/soak fuzz MINUTES"); the inputs
// that it found stay in corpus/TARGET/, and an ordinary test gives them to the readers again.

#include <ostream>
#include <span>
#include <stdexcept>
#include <string_view>

namespace varnik::fuzz {

struct Target {
    const char* name;
    void (*run)(std::string_view input); // anything that escapes is a fault
    friend void PrintTo(const Target& target, std::ostream* out) { *out << target.name; }
};
std::span<const Target> Targets();

void FuzzStatement(std::string_view input);  // a statement of the screens' dialect, down to the engine
void FuzzCriterion(std::string_view input);  // a record find, and patterns
void FuzzNumber(std::string_view input);     // masks and the tolerant readings
void FuzzWords(std::string_view input);      // amounts in words
void FuzzDate(std::string_view input);       // dates in every order of the machine
void FuzzText(std::string_view input);       // characters, capitals, passwords
void FuzzBarcode(std::string_view input);    // keys of a scanner
void FuzzFormula(std::string_view input);    // formulas and texts with places of report definitions
void FuzzDefinition(std::string_view input); // a whole report definition, laid out on a few rows
void FuzzRegistry(std::string_view input);   // the file of keys and values

// A property that has to hold for every input.
inline void Require(bool holds, const char* what) {
    if (!holds) throw std::logic_error(what);
}

} // namespace varnik::fuzz
