#pragma once
// The rows of a report, read once and kept small: eight bytes and a kind for each cell, all texts in one
// piece of memory. Column names are compared without regard to case.

#include "common/Value.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnik::reports {

class Rows {
public:
    explicit Rows(std::vector<std::string> names = {});

    // One value per column.
    void Add(std::span<const Value> values);

    std::size_t Count() const { return count_; }
    int Columns() const { return static_cast<int>(names_.size()); }
    const std::string& Name(int column) const { return names_[static_cast<std::size_t>(column)]; }
    // The first column of this name; -1 when there is none.
    int Find(std::string_view name) const;

    bool IsNull(std::size_t row, int column) const { return At(row, column).kind == Kind::Null; }
    bool IsText(std::size_t row, int column) const { return At(row, column).kind == Kind::Text; }
    bool IsDate(std::size_t row, int column) const { return At(row, column).kind == Kind::Date; }
    bool IsBoolean(std::size_t row, int column) const { return At(row, column).kind == Kind::Boolean; }
    bool IsNumber(std::size_t row, int column) const { return At(row, column).kind == Kind::Number; }
    // 0 for everything that is no number; yes counts as -1.
    double Number(std::size_t row, int column) const;
    std::string_view Text(std::size_t row, int column) const; // "" for everything that is no text
    Value Get(std::size_t row, int column) const;

private:
    enum class Kind : std::uint8_t { Null, Boolean, Number, Text, Date };
    struct Cell {
        std::uint64_t bits;
        Kind kind;
    };
    Cell At(std::size_t row, int column) const {
        const std::size_t place = row * names_.size() + static_cast<std::size_t>(column);
        return {bits_[place], kinds_[place]};
    }

    std::vector<std::string> names_;
    std::vector<std::uint64_t> bits_; // a double, a date, or offset and length of a text
    std::vector<Kind> kinds_;
    std::string texts_;
    std::size_t count_ = 0;
};

} // namespace varnik::reports
