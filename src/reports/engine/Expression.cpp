#include "reports/engine/Expression.h"

#include "common/Numbers.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace varnik::reports {

namespace {
constexpr std::size_t MaximumSteps = 64; // and with that the depth of the stack
}

// Recursive descent over: sum = product {(+|-) product}; product = factor {(*|/) factor}.
struct Expression::Reader {
    std::string_view text;
    std::vector<Step>& steps;
    std::size_t at = 0, depth = 0;

    char Peek() {
        while (at < text.size() && text[at] == ' ') ++at;
        return at < text.size() ? text[at] : '\0';
    }
    bool Take(char character) {
        if (Peek() != character) return false;
        ++at;
        return true;
    }
    [[noreturn]] void Fail(const std::string& what) const {
        throw std::invalid_argument("the formula \"" + std::string(text) + "\" cannot be read: " + what);
    }
    void Sum() {
        Product();
        while (Peek() == '+' || Peek() == '-') {
            const char operation = text[at++];
            Product();
            steps.push_back({operation});
        }
    }
    void Product() {
        Factor();
        while (Peek() == '*' || Peek() == '/') {
            const char operation = text[at++];
            Factor();
            steps.push_back({operation});
        }
    }
    void Factor() {
        if (++depth > MaximumSteps) Fail("it is nested too deep");
        ReadFactor();
        --depth;
    }
    void ReadFactor() {
        if (Take('-')) {
            Factor();
            steps.push_back({'~'});
        } else if (Take('(')) {
            Sum();
            if (!Take(')')) Fail("a closing parenthesis is missing");
        } else if (const std::string word = Word(); word.empty()) {
            Fail("a column or a number is missing");
        } else if (word[0] >= '0' && word[0] <= '9') {
            steps.push_back({'n', Val(word)});
        } else {
            steps.push_back({'c', 0, -1, word});
        }
    }
    std::string Word() {
        Peek();
        const std::size_t start = at;
        const auto inWord = [](char c) {
            return c == '_' || c == '.' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') ||
                   (c >= 'A' && c <= 'Z');
        };
        while (at < text.size() && inWord(text[at])) ++at;
        return std::string(text.substr(start, at - start));
    }
};

Expression::Expression(std::string_view text) {
    Reader reader{text, steps_};
    reader.Sum();
    if (reader.Peek() != '\0') reader.Fail("it does not end where it should");
    if (steps_.size() > MaximumSteps) reader.Fail("it is too long");
}

void Expression::Bind(const Rows& rows) {
    for (Step& step : steps_)
        if (step.operation == 'c') step.column = rows.Find(step.name);
}

bool Expression::HasColumns() const {
    return std::any_of(steps_.begin(), steps_.end(), [](const Step& step) { return step.column >= 0; });
}

bool Expression::HasAllColumns() const {
    return std::none_of(steps_.begin(), steps_.end(),
                        [](const Step& step) { return step.operation == 'c' && step.column < 0; });
}

double Expression::Evaluate(const Rows& rows, std::size_t row) const {
    std::array<double, MaximumSteps> stack{};
    std::size_t top = 0;
    for (const Step& step : steps_) {
        if (step.operation == 'n' || step.operation == 'c') {
            stack[top++] = step.operation == 'n' ? step.number
                           : step.column < 0     ? 0
                                                 : rows.Number(row, step.column);
            continue;
        }
        double& last = stack[top - 1];
        if (step.operation == '~') {
            last = -last;
            continue;
        }
        double& left = stack[top - 2];
        switch (step.operation) {
        case '+':
            left += last;
            break;
        case '-':
            left -= last;
            break;
        case '*':
            left *= last;
            break;
        default:
            left = last == 0 ? 0 : left / last;
            break;
        }
        --top;
    }
    return top > 0 ? stack[0] : 0;
}

} // namespace varnik::reports
