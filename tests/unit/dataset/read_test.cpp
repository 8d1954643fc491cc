#include "core/cards/failure.hpp"
#include "unit/dataset/support.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kov {
namespace {

using test::joined;
using test::linesOf;
using test::Reading;
using test::written;

/// The lines of the smallest file: no network, two title lines. A test changes the line that it is about.
class SmallFile : public testing::Test {
protected:
    enum Line : std::size_t { Sysid, Title1, Title2, Form1B, Form1C, Form1D, Form1E, Form1F, Form1G, Form12, Form13 };
    std::vector<std::string> lines{"Identification",
                                   "First line",
                                   "Second line",
                                   "17.       7.        1997.     ",
                                   " 0         0         1         0         0         0         0         0",
                                   " 0         0         0         0         0                   0         0",
                                   " 0         0         0         2         0         0         0         0",
                                   "90.       75.       29.9      70.       65.       80.       70.       15.",
                                   "150.      1.        2.        3.        4.        30.        1        .8",
                                   "10.        0",
                                   "10.       120.       5         6"};
    [[nodiscard]] Reading read() const { return Reading(joined(lines)); }
    void expectFailure(const std::string& form) const {
        const auto reading = read();
        EXPECT_FALSE(reading.done);
        EXPECT_EQ(reading.data.CurForm, form);
        ASSERT_EQ(reading.boxes.shown.size(), 1U);
        EXPECT_EQ(reading.boxes.shown[0].prompt, "Error Reading " + form + "\r\nIn File RUN1.KOV");
    }
};

TEST_F(SmallFile, FillsEveryGeneralMember) {
    lines[Form1C] = " 0         2         3         0         5         6         7        -1";
    lines[Form1E] = " 0         0         0         1         0         0         4         0";
    const auto reading = read();
    ASSERT_TRUE(reading.done);
    const auto& data = reading.data;
    EXPECT_EQ(data.Sysid.trimmed(), "Identification");
    EXPECT_EQ(data.Title(), "First line\r\nSecond line");
    EXPECT_EQ(data.DgnHr.view(), "17.       ");
    EXPECT_EQ(data.DgnMon.view(), "7.        ");
    EXPECT_EQ(data.DgnYr.view(), "1997.     ");
    EXPECT_EQ(data.THOpt, 2);
    EXPECT_EQ(data.HDOpt, 3);
    EXPECT_EQ(data.HSOpt, 5);
    EXPECT_EQ(data.SupOpt, 6);
    EXPECT_EQ(data.SimErr, 7);
    EXPECT_EQ(data.InErr, -1);
    EXPECT_EQ(data.FanOpt, 1);
    EXPECT_EQ(data.RstWrite, 4);
    EXPECT_EQ(data.RstRead, 0);
    EXPECT_EQ(data.TDBAmb.trimmed(), "90.");
    EXPECT_EQ(data.TWBAmb.trimmed(), "75.");
    EXPECT_EQ(data.PAmb.trimmed(), "29.9");
    EXPECT_EQ(data.TAmbA.trimmed(), "70.");
    EXPECT_EQ(data.TWAmbA.trimmed(), "65.");
    EXPECT_EQ(data.TAmbM.trimmed(), "80.");
    EXPECT_EQ(data.TWAmbE.trimmed(), "70.");
    EXPECT_EQ(data.TAnnAmp.trimmed(), "15.");
    EXPECT_EQ(data.PatWht.trimmed(), "150.");
    EXPECT_EQ(data.EFSux.trimmed(), "1.");
    EXPECT_EQ(data.EFMux.trimmed(), "2.");
    EXPECT_EQ(data.EFASux.trimmed(), "3.");
    EXPECT_EQ(data.EFAMux.trimmed(), "4.");
    EXPECT_EQ(data.UMaxUx.trimmed(), "30.");
    EXPECT_EQ(data.FireOpt, 1);
    EXPECT_EQ(data.EECPG.trimmed(), ".8");
    EXPECT_EQ(data.TempTabInc.trimmed(), "10.");
    EXPECT_EQ(data.DeltaT.trimmed(), "10.");
    EXPECT_EQ(data.TMax.trimmed(), "120.");
    EXPECT_EQ(data.NCTrain, 5);
    EXPECT_EQ(data.NCWall, 6);
    EXPECT_TRUE(reading.boxes.shown.empty());
}

TEST_F(SmallFile, KeepsTheDesignDateWithItsLeadingBlanks) {
    lines[Form1B] = "  17.5       7.0      1998";
    auto reading = read();
    ASSERT_TRUE(reading.done);
    EXPECT_EQ(reading.data.DgnHr.view(), "  17.5    ");
    EXPECT_EQ(linesOf(written(reading.data))[Form1B], "  17.5       7.0      1998    ");
}

TEST_F(SmallFile, TrimsTheOtherRealsOnTheLeftOnly) {
    lines[Form1F] = "     90.50   1.2E1      +3";
    auto reading = read();
    EXPECT_EQ(linesOf(written(reading.data))[Form1F].substr(0, 30), "90.50     1.2E1     +3        ");
}

TEST_F(SmallFile, ReadsIntegersHalfToEven) {
    lines[Form1C] = " 0.5       2.5       3.5      -0.5       1.5       6kg      1E1       3 4";
    const auto reading = read();
    EXPECT_EQ(reading.data.TPOpt, 0);
    EXPECT_EQ(reading.data.THOpt, 2);
    EXPECT_EQ(reading.data.HDOpt, 4);
    EXPECT_EQ(reading.data.ECLOpt, 0);
    EXPECT_EQ(reading.data.HSOpt, 2);
    EXPECT_EQ(reading.data.SupOpt, 6);
    EXPECT_EQ(reading.data.SimErr, 10);
    EXPECT_EQ(reading.data.InErr, 34);
}

TEST_F(SmallFile, NeedsASecondLine) {
    lines.resize(1);
    expectFailure("Form 1A");
}

TEST(AnEmptyFile, FailsInForm1A) {
    const Reading reading("");
    EXPECT_FALSE(reading.done);
    ASSERT_EQ(reading.boxes.shown.size(), 1U);
    EXPECT_EQ(reading.boxes.shown[0].style, 16);
    EXPECT_EQ(reading.boxes.shown[0].title, "Open Data File");
    EXPECT_EQ(reading.boxes.shown[0].prompt, "Error Reading Form 1A\r\nIn File RUN1.KOV");
}

TEST_F(SmallFile, CutsIdentificationAndTitleAt80Columns) {
    lines[Sysid] = std::string(95, 's');
    lines[Title1] = std::string(95, 't');
    const auto reading = read();
    EXPECT_EQ(reading.data.Sysid.text(), std::string(80, 's'));
    EXPECT_EQ(reading.data.titleLines()[0].text(), std::string(80, 't'));
}

TEST_F(SmallFile, MayHaveNoTitleAtAll) {
    lines.erase(lines.begin() + Title1, lines.begin() + Form1B);
    const auto reading = read();
    EXPECT_TRUE(reading.done);
    EXPECT_EQ(reading.data.Title(), "");
    EXPECT_EQ(reading.data.DgnHr.trimmed(), "17.");
}

TEST_F(SmallFile, EndsItsTitleAtALineThatLooksLikeADesignDate) {
    lines[Title2] = "12.       7.        tunnels";
    const auto reading = read();
    EXPECT_EQ(reading.data.Title(), "First line");
    EXPECT_EQ(reading.data.DgnHr.trimmed(), "12.");
    EXPECT_EQ(reading.data.DgnYr.view(), "tunnels   ");
    EXPECT_EQ(reading.data.HDOpt, 1997) << "the true design date is then taken for Form 1C";
}

TEST_F(SmallFile, TakesADesignDateWithABlankFieldForATitle) {
    lines[Form1B] = "          7.        1997.";
    const auto reading = read();
    EXPECT_EQ(reading.data.Title(), "First line\r\nSecond line\r\n          7.        1997.");
    EXPECT_EQ(reading.data.DgnHr.trimmed(), " 0") << "the next card begins with two numbers";
}

TEST_F(SmallFile, BlanksTheTitleLinesBehindTheDesignDate) {
    lines.insert(lines.begin() + Title1, 3, "more");
    KOVDataSet data;
    std::string nineteen;
    for (int i = 0; i < 19; ++i) {
        nineteen += "old\r\n";
    }
    data.setTitle(nineteen);
    const std::string text = joined(lines);
    CardReader reader(text);
    NoProgress bar;
    test::Boxes boxes;
    ASSERT_TRUE(data.ReadFile(reader, bar, boxes, "X"));
    EXPECT_EQ(data.titleLines()[4].trimmed(), "Second line");
    for (std::size_t i = 5; i < 19; ++i) {
        EXPECT_TRUE(data.titleLines()[i].blank());
    }
    EXPECT_EQ(data.DgnHr.trimmed(), "17.");
}

TEST_F(SmallFile, TakesAnyCardAsDesignDateBehindNineteenTitleLines) {
    lines.insert(lines.begin() + Title1, 17, "more");
    lines[Form1B + 17] = "          7.        1997.";
    const auto reading = read();
    EXPECT_TRUE(reading.done);
    EXPECT_TRUE(reading.data.DgnHr.blank());
    EXPECT_EQ(reading.data.DgnMon.trimmed(), "7.");
    EXPECT_EQ(reading.data.titleLines()[18].trimmed(), "Second line");
}

TEST_F(SmallFile, ClosesUpBlankTitleLinesOnWriting) {
    lines.insert(lines.begin() + Title2, "     ");
    auto reading = read();
    EXPECT_EQ(reading.data.Title(), "First line") << "what stands behind a blank line isn't shown";
    const auto out = linesOf(written(reading.data));
    EXPECT_EQ(out[1], "First line");
    EXPECT_EQ(out[2], "Second line");
    EXPECT_EQ(out[3].substr(0, 3), "17.");
}

TEST_F(SmallFile, IgnoresTheSixthFieldOfForm1D) {
    lines[Form1D] = " 0         0         0         0         0        40000      0         0";
    auto reading = read();
    EXPECT_TRUE(reading.done);
    EXPECT_EQ(linesOf(written(reading.data))[Form1D].substr(50, 10), "          ");
}

TEST_F(SmallFile, TakesTheLineSectionsAsTheDifferenceOfTwoCounts) {
    lines[Form1D] = " 0         5         3         0";
    const auto reading = read();
    EXPECT_EQ(reading.data.cardCounts().NLSections, 2);
}

TEST_F(SmallFile, FailsWhereAnIntegerIsTooLarge) {
    for (const auto& [line, form] : std::vector<std::pair<Line, std::string>>{
             {Form1C, "Form 1C"}, {Form1D, "Form 1D"}, {Form1E, "Form 1E"}, {Form12, "Form 12"}, {Form13, "Form 13"}}) {
        const auto before = lines[line];
        lines[line] = line == Form13 ? "10.       120.      40000" : line == Form12 ? "10.       40000" : "40000";
        expectFailure(form);
        lines[line] = before;
    }
    lines[Form1G].replace(60, 5, "40000");
    expectFailure("Form 1G");
    EXPECT_EQ(read().data.UMaxUx.trimmed(), "30.") << "what stands ahead of it is stored";
}

TEST_F(SmallFile, NormalisesTheIntervalLengthOfAPrintGroup) {
    lines[Form12] = "10.        2";
    lines.insert(lines.end() - 1, {" 3        300.       1         2         4         5", "-1        .50"});
    auto reading = read();
    ASSERT_TRUE(reading.done);
    EXPECT_EQ(reading.data.PGroup(1)->getPGroup().IntLength.view(), " 300      ");
    EXPECT_EQ(reading.data.PGroup(2)->getPGroup().IntLength.view(), " .5       ");
    EXPECT_EQ(reading.data.PGroup(2)->getPGroup().NIntervals, -1);
    const auto out = linesOf(written(reading.data));
    EXPECT_EQ(out[Form12 + 1], " 3         300       1         2         4         5        ");
    EXPECT_EQ(linesOf(test::rewritten(joined(out)))[Form12 + 1], out[Form12 + 1]);
}

TEST_F(SmallFile, FailsOnAPrintGroupWithoutAnIntervalLength) {
    lines[Form12] = "10.        1";
    lines.insert(lines.end() - 1, "");
    for (const auto* card : {" 3                   1", " 3        5 sec      1", "x"}) {
        lines[Form12 + 1] = card;
        expectFailure("Form 12");
    }
}

TEST_F(SmallFile, CutsALongIntervalLengthToTenColumns) {
    lines[Form12] = "10.        1";
    lines.insert(lines.end() - 1, " 3        1234567.89");
    EXPECT_EQ(read().data.PGroup(1)->getPGroup().IntLength.view(), " 1234567.8");
}

TEST_F(SmallFile, HoldsAtMost25PrintGroups) {
    lines[Form12] = "10.        25";
    lines.insert(lines.end() - 1, 25, " 3         300");
    EXPECT_TRUE(read().done);
    lines[Form12] = "10.        26";
    lines.insert(lines.end() - 1, " 3         300");
    expectFailure("Form 12");
    EXPECT_NE(read().data.PGroup(25), nullptr) << "what was read stays";
}

TEST_F(SmallFile, CantBeWrittenWithPrintGroupsMissing) {
    lines[Form12] = "10.        3";
    lines.resize(Form12 + 1);
    lines.emplace_back(" 3         300");
    auto reading = read();
    EXPECT_FALSE(reading.done);
    EXPECT_NE(reading.data.PGroup(1), nullptr);
    EXPECT_EQ(reading.data.PGroup(2), nullptr);
    EXPECT_THROW(static_cast<void>(written(reading.data)), Failure);
}

TEST_F(SmallFile, HasARestartFileWhenRestartInputIsOn) {
    lines[Form1E] = " 0         0         0         2         0         0         3         1";
    expectFailure("Form 13");
    lines.emplace_back(R"(  C:\runs\old run.RST)");
    auto reading = read();
    ASSERT_TRUE(reading.done);
    EXPECT_EQ(reading.data.RstFileName.trimmed(), R"(  C:\runs\old run.RST)");
    const auto out = linesOf(written(reading.data));
    EXPECT_EQ(out.back(), reading.data.RstFileName.text());
    EXPECT_EQ(out.back().size(), 260U);
    EXPECT_EQ(out[Form1E].substr(60), " 3         1        ") << "restart output stands ahead of restart input";
}

TEST_F(SmallFile, IgnoresLinesBehindTheLastForm) {
    lines.emplace_back("anything");
    auto reading = read();
    EXPECT_TRUE(reading.done);
    EXPECT_EQ(linesOf(written(reading.data)).size(), lines.size() - 1);
}

TEST_F(SmallFile, TakesShortCardsForForms12And13) {
    lines[Form12] = "10.       0                   40000";
    lines[Form13] = "10.       120.       5         6        40000";
    EXPECT_TRUE(read().done) << "nobody looks at the other fields";
    lines[Form13] = "10";
    const auto reading = read();
    EXPECT_TRUE(reading.done);
    EXPECT_TRUE(reading.data.TMax.blank());
    EXPECT_EQ(reading.data.NCWall, 0);
}

TEST_F(SmallFile, ReadsFiresOnlyWhenTheirCountIsAboveZero) {
    lines[Form1D] = " 0         0         0         0         0                  -1         0";
    EXPECT_TRUE(read().done);
    lines[Form1D] = " 0         0         0         0         0                   1         0";
    EXPECT_FALSE(read().done) << "the cards of the fire are missing";
    lines.insert(lines.begin() + Form12, {"Fire                                     1         1", "1000.     0."});
    const auto reading = read();
    EXPECT_TRUE(reading.done);
    EXPECT_EQ(reading.data.Fires.Count(), 1);
}

TEST_F(SmallFile, LeavesOutTheTrainFormsWithoutATrainOption) {
    lines[Form1E] = " 2         3         0         2         4         0         0         0";
    auto reading = read();
    EXPECT_TRUE(reading.done) << "the counts don't matter then";
    EXPECT_EQ(reading.data.Routes.Count(), 0);
    EXPECT_EQ(linesOf(written(reading.data))[Form1E].substr(0, 20), " 0         0        ");
    lines[Form1C].replace(1, 1, "1");
    expectFailure("Form 8");
}

TEST_F(SmallFile, LeavesOutTheZonesWithoutTheirOption) {
    lines[Form1E] = " 0         0         2         2         0         0         0         0";
    EXPECT_TRUE(read().done);
    lines[Form1C].replace(31, 1, "1");
    expectFailure("Form 11");
}

TEST(ADataSetWithoutTrainOption, WritesNoRoutesButKeepsThem) {
    KOVDataSet data;
    const auto route = data.Routes.Add(Position{0});
    const auto lines = linesOf(written(data));
    EXPECT_EQ(lines.size(), 9U);
    EXPECT_EQ(lines[4].substr(0, 10), " 0        ");
    EXPECT_EQ(data.Routes.Count(), 1);
}

TEST(AFireThatIsAdded, IsWrittenAlthoughTheCardsHadNone) {
    KOVDataSet data;
    data.Fires.Add();
    EXPECT_EQ(data.cardCounts().NFires, 0);
    const auto lines = linesOf(written(data));
    EXPECT_EQ(lines.size(), 11U);
    EXPECT_EQ(lines[3].substr(60, 10), " 1        ");
}

TEST_F(SmallFile, KeepsTheLineEndThatItWasReadWith) {
    std::string text;
    for (const auto& line : lines) {
        text += line + "\r\n";
    }
    Reading reading(text);
    ASSERT_TRUE(reading.done);
    EXPECT_EQ(reading.data.lineEnd, "\r\n");
    EXPECT_EQ(written(reading.data).substr(80, 2), "\r\n");
    EXPECT_EQ(read().data.lineEnd, "\n");
}

TEST_F(SmallFile, ShowsAndHidesTheBarAndThePointer) {
    const auto good = read();
    EXPECT_TRUE(good.bar.words.starts_with("busy shown value max value "));
    EXPECT_TRUE(good.bar.words.ends_with("ready hidden "));
    lines.resize(5);
    const auto bad = read();
    EXPECT_EQ(bad.bar.words, "busy shown value ready hidden ");
    EXPECT_EQ(bad.bar.values, std::vector<std::int32_t>{10});
}

TEST_F(SmallFile, WeighsItsFormsOnTheBar) {
    lines[Form1C].replace(1, 1, "1");
    lines[Form1C].replace(31, 1, "1");
    lines[Form1D] = " 1         5         2         3         4                   0         6";
    lines[Form1E] = " 7         8         9         2         10        0         0         0";
    EXPECT_EQ(read().bar.max, 1 + 10 + 5 + 2 + 3 + 6 + 15 * 7 + 10 * 8 + 10 + 9);
}

} // namespace
} // namespace kov
