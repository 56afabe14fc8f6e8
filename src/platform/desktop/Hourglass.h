#pragma once
// The pointer shows the hourglass for as long as this lives; the normal one comes back however the work ends.

#include "platform/desktop/Desktop.h"

namespace varnik {

class Hourglass {
public:
    explicit Hourglass(Desktop& desktop) : desktop_(desktop) { desktop_.Hourglass(true); }
    ~Hourglass() { desktop_.Hourglass(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    Desktop& desktop_;
};

} // namespace varnik
