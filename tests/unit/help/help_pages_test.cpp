#include "app/composition/program.hpp"
#include "app/help/pages/pages.hpp"
#include "app/help/pages/rows.hpp"
#include "platform/headless/surroundings.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

namespace kov::help {
namespace {

const HelpTopic* topicOf(int context) {
    for (const auto& topic : topics()) {
        if (std::find(topic.contexts.begin(), topic.contexts.end(), context) != topic.contexts.end()) {
            return &topic;
        }
    }
    return nullptr;
}

std::string introduction(std::string_view name) {
    std::ifstream file(std::filesystem::path(KOV_SOURCE_DIR) / "help" / (std::string(name) + ".html"));
    return {std::istreambuf_iterator<char>(file), {}};
}

const HelpTopic& topicNamed(std::string_view window) {
    const auto& all = topics();
    return *std::find_if(all.begin(), all.end(), [&](const HelpTopic& topic) { return topic.window == window; });
}

const std::multimap<std::string, int> ContextNumbers{
    {"General", 1110},  {"Options", 1101}, {"SimCtrl", 1120}, {"frmLSect", 1200}, {"lseg", 1210},     {"NodeDtl", 1230},
    {"frmVSect", 1240}, {"vshaft", 1250},  {"frmXFan", 1300}, {"frmIFan", 1310},  {"frmFires", 1350}, {"ECZones", 1360},
    {"Route1", 1410},   {"Route1", 1420},  {"Trains", 1500},  {"TrnInit", 1590},  {"FanTable", 1600}};

TEST(AContextNumber, LeadsToThePageOfItsWindow) {
    for (const auto& [window, context] : ContextNumbers) {
        const auto* topic = topicOf(context);
        ASSERT_NE(topic, nullptr) << context;
        EXPECT_EQ(topic->window, window) << context;
        const auto entry = "id=\"" + std::to_string(context) + "\" ref=\"" + window + ".html\"";
        EXPECT_NE(helpProject().find(entry), std::string::npos) << entry;
    }
}

TEST(AWindow, BearsTheContextNumberThatLeadsToItsPage) {
    Surroundings around{std::filesystem::temp_directory_path()};
    Program program{around.services(), "C:\\KOV"};
    auto& desk = program.desk();
    program.start("");
    desk.click(desk.find("About")->control("cmdOkay"));
    for (const auto& topic : topics()) {
        if (topic.contexts.empty()) {
            continue;
        }
        desk.act([&] { desk.show(topic.window); });
        ASSERT_FALSE(desk.ended()) << topic.window << ": " << desk.failure().value_or("");
        auto* window = desk.find(topic.window);
        ASSERT_NE(window, nullptr) << topic.window;
        EXPECT_EQ(window->helpContext, topic.contexts.front()) << topic.window;
        EXPECT_EQ(window->caption, topic.title);
        desk.act([&] { desk.unload(*window); });
    }
}

TEST(EveryPage, HasAnIntroductionWrittenForIt) {
    for (const auto& page : guide()) {
        EXPECT_GT(introduction(page.name).size(), 300U) << page.name;
    }
    for (const auto& topic : topics()) {
        EXPECT_GT(introduction(topic.window).size(), 200U) << topic.window;
    }
}

TEST(EveryPage, IsLinkedOnlyToPagesThatThereAre) {
    std::set<std::string> names;
    for (const auto& page : guide()) {
        names.insert(std::string(page.name) + ".html");
    }
    for (const auto& topic : topics()) {
        names.insert(topic.window + ".html");
    }
    for (const auto& name : names) {
        const auto text = introduction(name.substr(0, name.size() - 5));
        for (auto at = text.find("href=\""); at != std::string::npos; at = text.find("href=\"", at + 1)) {
            const auto begin = at + 6;
            const auto target = text.substr(begin, text.find('"', begin) - begin);
            EXPECT_TRUE(names.contains(target)) << name << " leads to " << target;
        }
    }
}

TEST(AWindowsPage, ShowsUnitRangeHintAndColumnsOfEachField) {
    const auto page = topicPage(topicNamed("General"), "<p>Introduction</p>");
    EXPECT_NE(page.find("<p>Introduction</p>"), std::string::npos);
    EXPECT_NE(page.find("<a name=\"tbPAmb\"></a><b>Barometric Pressure</b></td><td>In. Hg</td><td>20 to 32</td>"
                        "<td>Barometric Pressure: 20 to 32 in. Hg</td><td>Form 1F, columns 21-30</td>"),
              std::string::npos)
        << page;
}

TEST(AWindowsPage, NamesEachOfTheFourPercentagesOfTheBlock) {
    const auto page = topicPage(topicNamed("General"), "");
    EXPECT_NE(page.find("<a name=\"tbEFASux\"></a><b>Stopped Train, Propulsion and Braking</b></td><td>%</td>"),
              std::string::npos)
        << page;
}

TEST(AWindowsPage, ShowsTheColumnsOfItsGrid) {
    const auto page = topicPage(topicNamed("SimCtrl"), "");
    EXPECT_NE(page.find("<a name=\"grdPGroup.0\"></a><b># Intervals</b></td><td>&nbsp;</td><td>whole number, -1 to 1000</td>"),
              std::string::npos)
        << page;
}

TEST(AWindowsPage, ShowsTheEntriesOfAList) {
    const auto page = topicPage(topicNamed("Options"), "");
    EXPECT_NE(page.find("0 - Bypass; 1 - Implicit; 2 - Explicit (Heat Computed); 3 - Explicit (Heat Input)"),
              std::string::npos);
    EXPECT_NE(page.find("2 - Summary &amp; Arrays"), std::string::npos);
}

TEST(AWindowsPage, TellsBoxesThatAreAlikeOnce) {
    const auto page = topicPage(topicNamed("Trains"), "");
    const auto caption = std::string("<b>Tractive Effort</b>");
    const auto first = page.find(caption);
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(page.find(caption, first + 1), std::string::npos);
    EXPECT_NE(page.find("<a name=\"tbMtrDat(2)\"></a><a name=\"tbMtrDat(6)\"></a>"), std::string::npos);
}

TEST(AWindowsPage, IsInUtf8WhateverTheCaptionHolds) {
    EXPECT_NE(topicPage(topicNamed("Trains"), "").find("lb-ft\xC2\xB2"), std::string::npos);
}

TEST(ARange, ReadsAsAPersonWouldSayIt) {
    EXPECT_EQ(rangeText(real(0.1, 3600)), "0.1 to 3600");
    EXPECT_EQ(rangeText(real(1, 1000000)), "1 to 1000000");
    EXPECT_EQ(rangeText(integer(-1, 1000)), "whole number, -1 to 1000");
    EXPECT_EQ(rangeText(text()), "text");
    EXPECT_EQ(rangeText(checkBox()), "on or off");
    EXPECT_EQ(rangeText(real(0, 0)), "see the hint");
}

TEST(APlace, NamesItsColumns) {
    EXPECT_EQ(placeText("Form 2A, 1-10"), "Form 2A, columns 1-10");
    EXPECT_EQ(placeText("Form 1F, columns 21-30"), "Form 1F, columns 21-30");
    EXPECT_EQ(placeText("the line behind Form 13"), "the line behind Form 13");
    EXPECT_EQ(placeText(""), "");
}

/// A program in front of which a person presses F1.
class TheKeyF1 : public testing::Test {
protected:
    void SetUp() override {
        program.start("");
        desk.click(desk.find("About")->control("cmdOkay"));
    }
    Surroundings around{std::filesystem::temp_directory_path()};
    Program program{around.services(), "C:\\KOV"};
    Desk& desk = program.desk();
};

TEST_F(TheKeyF1, AsksForTheWindowsPageAtTheFieldThatHasTheFocus) {
    desk.act([&] { desk.show("General"); });
    desk.focusOn(desk.find("General")->control("tbPAmb"));
    desk.key(Key::F1);
    ASSERT_EQ(around.help.calls().size(), 1U);
    EXPECT_EQ(around.help.calls()[0].command, HelpContext);
    EXPECT_EQ(around.help.calls()[0].context, 1110);
    EXPECT_EQ(around.help.calls()[0].key, "tbPAmb");
    EXPECT_EQ(desk.focus(), &desk.find("General")->control("tbPAmb"));
}

TEST_F(TheKeyF1, AsksForTheContentsInAWindowWithoutAPageNumber) {
    desk.focusOn(desk.find("frmMain")->control("tbDgnHr"));
    desk.key(Key::F1);
    ASSERT_EQ(around.help.calls().size(), 1U);
    EXPECT_EQ(around.help.calls()[0].command, HelpContents);
    EXPECT_EQ(around.help.calls()[0].context, 0);
}

} // namespace
} // namespace kov::help
