#include "common/CuteCat.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>
#include <vector>

namespace varnik {
namespace {

// A form that passes its keys on, and what it noticed.
class Scanner : public testing::Test {
protected:
    Scanner() {
        cat.onStart = [this] { log.emplace_back("start"); };
        cat.onEnd = [this](const std::string& type, const std::string& data) {
            log.push_back(type + "/" + data);
        };
        cat.setPointer = [this](int next) { return std::exchange(pointer, next); };
    }
    void LeadIn() { EXPECT_TRUE(cat.KeyDown(121, 4)); }
    bool Keys(std::string_view text) {
        bool taken = true;
        for (const char c : text) taken = cat.KeyPress(static_cast<unsigned char>(c)) && taken;
        return taken;
    }
    // What a whole reading brought; "" for a broken one.
    std::string Read(const std::string& text) {
        log.clear();
        LeadIn();
        EXPECT_EQ(pointer, 11);
        Keys(text + "\r");
        EXPECT_EQ(pointer, 7) << text;
        EXPECT_EQ(log, (std::vector<std::string>{"start", cat.BarcodeType() + "/" + cat.BarcodeData()}));
        EXPECT_EQ(cat.BarcodeValid(), !cat.BarcodeData().empty());
        return cat.BarcodeType() + "/" + cat.BarcodeData();
    }

    CuteCat cat;
    int pointer = 7;
    std::vector<std::string> log;
};

TEST_F(Scanner, ReadsTypeAndDataBetweenTheirDots) {
    EXPECT_EQ(Read(".mdaWmdaWmdaWmtiZndu3odaX.rufolteZ.otC4mdiWmtm3otyYna."), "EAN-13/9780201379624");
    EXPECT_EQ(Read("..vvbb.mti4."), "UPA/128");
    const std::pair<std::string, std::string> fields[] = {
        {"mq", "1"},
        {"mte", "11"},
        {"mq==", "1"},
        {"mt\ni4", "128"},
        {"6F8aqq", std::string("\xC3\xA9\xC3\xBF\0A", 6)},
        {"+++-", "\xC3\xBB\xC3\xAF\xC2\xBF"},
    };
    for (const auto& [field, text] : fields) EXPECT_EQ(Read("..mq." + field + "."), "1/" + text) << field;
    std::string longest, digits;
    for (int i = 0; i < 240; ++i) {
        longest += "mti4";
        digits += "128";
    }
    EXPECT_EQ(Read("..mq." + longest + "."), "1/" + digits);
}

TEST_F(Scanner, ABrokenReadingEndsCleanlyAndTheNextOneIsRead) {
    // Nothing, too few and too many fields, no dot at an end, characters without a value, a cut-off field.
    for (const char* text : {"", ".", "...", ".a.mq.mq", ".a.b.mq.mq.", "12", ".a.m q.mq.", ".a.mq.m\xE9q.",
                             ".a.mq.mti4m.", ".a.mq.."}) {
        EXPECT_EQ(Read(text).back(), '/') << text;
        EXPECT_EQ(cat.BarcodeData(), "") << text;
        EXPECT_EQ(Read("..mq.mte."), "1/11") << text;
    }
    // One without an end does not take the keys for ever, nor does a character that no scanner types.
    LeadIn();
    EXPECT_TRUE(Keys("." + std::string(CuteCat::LongestReading, 'x')));
    EXPECT_FALSE(Keys("typed"));
    LeadIn();
    Keys(".");
    EXPECT_TRUE(cat.KeyPress(0x2022));
    EXPECT_FALSE(Keys("typed"));
    EXPECT_EQ(pointer, 7);
}

TEST_F(Scanner, TellsAReadingFromTyping) {
    EXPECT_FALSE(cat.KeyDown(121, 0)); // F10 alone, Ctrl+F10, Alt and another key
    EXPECT_FALSE(cat.KeyDown(121, 2));
    EXPECT_FALSE(cat.KeyDown(65, 4));
    EXPECT_FALSE(Keys("..mq.mte.\r"));
    EXPECT_TRUE(log.empty());
    // The lead-in once more in the middle: the first reading is over, and the pointer is not lost.
    LeadIn();
    Keys("..mq.");
    LeadIn();
    EXPECT_TRUE(Keys("..mq.mte.\r"));
    EXPECT_EQ(log, (std::vector<std::string>{"start", "/", "start", "1/11"}));
    EXPECT_EQ(pointer, 7);
}

} // namespace
} // namespace varnik
