#include "common/Text.h"

#include "common/Elastic.h"

#include <gtest/gtest.h>

namespace varnik {
namespace {

TEST(Text, PositionsCountCharactersFromOne) {
    const std::string text = "Müller & Sohn";
    EXPECT_EQ(Len(text), 13);
    EXPECT_EQ(Mid(text, 2, 1), "ü");
    EXPECT_EQ(Mid(text, 10), "Sohn");
    EXPECT_EQ(Mid(text, 20, 3) + Mid(text, 12, 50), "hn");
    EXPECT_EQ(Left(text, 2), "Mü");
    EXPECT_EQ(Left(text, -1), "");
    EXPECT_EQ(Right(text, 4), "Sohn");
    EXPECT_EQ(Right(text, 99), text);
    EXPECT_EQ(InStr(text, "l"), 3);
    EXPECT_EQ(InStr(text, "l", 4), 4);
    EXPECT_EQ(InStr(text, "x"), 0);
    EXPECT_EQ(Mid("000000000107", 11, 2), "07");
    EXPECT_EQ(PadRight("ü", 3), "ü  ");
    EXPECT_EQ(PadRight("four", 3), "four");
}

TEST(Text, TrimTakesBlanksAlone) {
    EXPECT_EQ(Trim("  a b\t "), "a b\t");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(RTrim(" a "), " a");
    EXPECT_EQ(RTrim("  "), "");
}

TEST(Text, CapitalsReachBeyondEnglish) {
    EXPECT_EQ(Upper("varnik 1é ñ ÿ ž ç ω я"), "VARNIK 1É Ñ Ÿ Ž Ç Ω Я");
    EXPECT_TRUE(EqualsNoCase("Data\\VARNIK.mdb", "data\\varnik.MDB"));
    EXPECT_FALSE(EqualsNoCase("a", "ab"));
    EXPECT_EQ(Split("a;;b", ';'), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_EQ(Split("", ';').size(), 1u);
}

TEST(Text, PasswordTransformIsItsOwnInverse) {
    EXPECT_EQ(TransformPassword("kemiri"), "&=#*0?");
    EXPECT_EQ(TransformPassword(" kemiri "), "&=#*0?");
    EXPECT_EQ(TransformPassword(""), "");
    // The 50th character meets the key's first, and a character that equals its key becomes the null one.
    const std::string fifty(50, 'Z');
    EXPECT_EQ(TransformPassword(fifty).back(), '\0');
    for (const std::string text : {"kemiri", "Rahasia.1", "pé€\U0001F600", fifty.c_str(), "MX"})
        EXPECT_EQ(TransformPassword(TransformPassword(text)), text);
}

TEST(Elastic, OneGrowthForBothDirections) {
    class_Elastic elastic;
    const std::vector<ElasticControl> controls = {
        {ElasticControl::Kind::Ordinary, 120, 240, 375, 1215, 8, 0},
        {ElasticControl::Kind::Line, 10, 20, 110, 20, 0, 0},
        {ElasticControl::Kind::Image, 50, 60, 70, 80, 0, 0},
        {ElasticControl::Kind::Logo, 50, 60, 70, 80, 0, 0},
    };
    elastic.Init({5000, 8000}, controls);

    for (const ElasticSize unscaled :
         {ElasticSize{5000, 8000}, {6000, 8000}, {5000, 9000}, {4000, 12000}, {6000, 7000}, {2500, 4000}})
        EXPECT_EQ(elastic.FormResize(unscaled), controls);

    // 20% higher and 50% wider: everything grows by 1.2, cut to whole numbers; the picture stays.
    const std::vector<ElasticControl> grown = {
        {ElasticControl::Kind::Ordinary, 144, 288, 450, 1458, 9, 0},
        {ElasticControl::Kind::Line, 12, 24, 132, 24, 0, 0},
        {ElasticControl::Kind::Image, 50, 60, 70, 80, 0, 0},
        {ElasticControl::Kind::Logo, 60, 72, 84, 96, 0, 0},
    };
    EXPECT_EQ(elastic.FormResize({6000, 12000}), grown);
    EXPECT_EQ(elastic.FormResize({20000, 9600}), grown);

    EXPECT_EQ(elastic.Clamp({2000, 9000}), (ElasticSize{2500, 9000}));
    EXPECT_EQ(elastic.Clamp({2000, 10}), (ElasticSize{2500, 4000}));
}

} // namespace
} // namespace varnik
