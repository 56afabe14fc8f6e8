#pragma once
// The title that wanders through the first panel of the status bar, one step a tick: it moves right until
// it has left the panel, then comes back in from the left, tail first, and starts over.

#include <string>
#include <string_view>

namespace varnik {

class ScrollingTitle {
public:
    ScrollingTitle() = default;
    explicit ScrollingTitle(std::string_view companyName);

    std::string Next(); // the text of this step; the credit line where the panel is empty

private:
    std::string title_;
    int length_ = 0, width_ = 0; // characters
    int step_ = 0;
};

} // namespace varnik
