// varnik-fill FOLDER SALES: makes a program folder with a made-up shop of this many sales in it, to measure
// in and to look at.

#include "bench/shop/Fill.h"

#include <iostream>

int main(int count, char** words) {
    if (count != 3) {
        std::cerr << "varnik-fill FOLDER SALES\n";
        return 1;
    }
    try {
        varnik::bench::MakeShop(words[1], std::stol(words[2]));
    } catch (const std::exception& failure) {
        std::cerr << "varnik-fill: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
