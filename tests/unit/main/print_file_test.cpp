#include "shell/main/print_file.hpp"

#include "core/dataset/progress.hpp"
#include "platform/headless/surroundings.hpp"
#include "shell/entry/application.hpp"
#include "shell/main/file_commands.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <stdexcept>
#include <string>

namespace kov {
namespace {

constexpr double Width = HeadlessPrinter::CharacterWidth, Height = HeadlessPrinter::LineHeight;
constexpr std::size_t FullPage = 57;

std::string lines(std::size_t count) {
    std::string content;
    for (std::size_t i = 1; i <= count; ++i) {
        content += "line " + std::to_string(i) + "\n";
    }
    return content;
}

HeadlessPrinter::Document print(std::string_view content, const std::string& name = "job.kov") {
    HeadlessPrinter printer;
    PrintFile(printer, {content, name, "11/21/2026"});
    return printer.documents().at(0);
}

std::string line(const HeadlessPrinter::Page& page, std::size_t number) {
    return number <= page.lines.size() ? page.lines[number - 1] : "";
}

std::string footer(int page) {
    return std::string(7, ' ') + "11/21/2026" + std::string(66, ' ') + "Pg " + std::to_string(page);
}

TEST(ThePageHeader, HasTheTitleAtTheLeftAndTheFileAtTheRightOf84Columns) {
    const auto header = pageHeader("job.kov");
    EXPECT_EQ(header.size(), 84U);
    EXPECT_EQ(header.substr(0, 13), "KOV DATA FILE");
    EXPECT_EQ(header.find("File: job.kov"), 84U - 13 - 1) << "column 84 less the length, counted from 1";
}

TEST(ThePageHeader, MovesALongNameToTheLeftUntilItTouchesTheTitle) {
    EXPECT_EQ(pageHeader(std::string(64, 'n')), "KOV DATA FILEFile: " + std::string(64, 'n') + " ");
    EXPECT_EQ(pageHeader(std::string(65, 'n')), "KOV DATA FILFile: " + std::string(65, 'n') + " ");
    EXPECT_EQ(pageHeader(std::string(77, 'n')), "File: " + std::string(77, 'n') + " ");
}

TEST(ThePageHeader, LeavesANameOf78CharactersOut) {
    EXPECT_EQ(pageHeader(std::string(78, 'n')), "KOV DATA FILE" + std::string(71, ' '));
}

TEST(APrintedFile, HasItsHeaderRuleAndLinesAtTheirTabColumns) {
    const auto document = print("first\nsecond\n");
    ASSERT_EQ(document.pages.size(), 1U);
    const auto& page = document.pages[0];
    EXPECT_EQ(document.name, "job.kov");
    EXPECT_EQ(line(page, 1), "");
    EXPECT_EQ(line(page, 2), "");
    EXPECT_EQ(line(page, 3).find("KOV DATA FILE"), 7U);
    EXPECT_EQ(line(page, 4), "");
    EXPECT_EQ(line(page, 5), "");
    EXPECT_EQ(line(page, 6), "          first");
    EXPECT_EQ(line(page, 7), "          second");
    ASSERT_EQ(page.rules.size(), 2U);
    EXPECT_EQ(page.rules[0].x1, Twips{6 * Width});
    EXPECT_EQ(page.rules[0].x2, Twips{(6 + 84) * Width});
    EXPECT_EQ(page.rules[0].y1, Twips{3 * Height});
    EXPECT_EQ(page.rules[0].y2, page.rules[0].y1);
}

TEST(APrintedFile, HasTheLastFooterUnderTheBottomLimitHoweverFewLinesThereAre) {
    const auto page = print("only\n").pages.at(0);
    const double bottom = 66 - 5;
    EXPECT_EQ(page.rules.at(1).y1, Twips{(bottom + 2) * Height});
    EXPECT_EQ(page.rules.at(1).x1, Twips{6 * Width});
    EXPECT_EQ(page.rules.at(1).x2, Twips{90 * Width});
    EXPECT_EQ(line(page, 64), footer(1));
    EXPECT_EQ(page.lines.size(), 64U);
}

TEST(APrintedFile, BreaksThePageOnlyWhenAPlaceBehindTheBottomLimitIsReached) {
    EXPECT_EQ(print(lines(FullPage)).pages.size(), 1U);
    const auto document = print(lines(FullPage + 1));
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(line(document.pages[0], 62), "          line 57");
    EXPECT_EQ(line(document.pages[0], 65), footer(1)) << "two empty lines and a quarter behind the last line";
    EXPECT_EQ(line(document.pages[1], 3), line(document.pages[0], 3));
    EXPECT_EQ(line(document.pages[1], 6), "          line 58");
    EXPECT_EQ(line(document.pages[1], 64), footer(2));
}

TEST(APrintedFile, OfNoLinesIsOnePageWithHeaderAndFooter) {
    const auto document = print("");
    ASSERT_EQ(document.pages.size(), 1U);
    EXPECT_EQ(line(document.pages[0], 6), "");
    EXPECT_EQ(line(document.pages[0], 64), footer(1));
}

TEST(APrintedFile, TakesBothLineEndsAndALastLineWithoutOne) {
    const auto page = print("a\r\n\r\nb").pages.at(0);
    EXPECT_EQ(line(page, 6), "          a");
    EXPECT_EQ(line(page, 7), "");
    EXPECT_EQ(line(page, 8), "          b");
}

/// Writes down which fonts were chosen.
class FontWatcher : public Printer {
public:
    void begin(const std::string& documentName) override { paper.begin(documentName); }
    void setFont(const std::string& name, double points, bool bold) override {
        fonts.push_back(name + "|" + std::to_string(static_cast<int>(points)) + (bold ? "|bold" : ""));
    }
    [[nodiscard]] Twips textWidth(const std::string& text) const override { return paper.textWidth(text); }
    [[nodiscard]] Twips textHeight(const std::string& text) const override { return paper.textHeight(text); }
    [[nodiscard]] Twips pageWidth() const override { return paper.pageWidth(); }
    [[nodiscard]] Twips pageHeight() const override { return paper.pageHeight(); }
    void print(Twips x, Twips y, const std::string& text) override { paper.print(x, y, text); }
    void line(Twips x1, Twips y1, Twips x2, Twips y2) override { paper.line(x1, y1, x2, y2); }
    void newPage() override { paper.newPage(); }
    void end() override { paper.end(); }

    HeadlessPrinter paper;
    std::vector<std::string> fonts;
};

TEST(APrintedFile, ChoosesItsFontWithAZeroBehindTheNameAndAgainOnEveryPage) {
    FontWatcher printer;
    PrintFile(printer, {lines(FullPage + 1), "job.kov", ""});
    using namespace std::string_literals;
    EXPECT_EQ(printer.fonts, (std::vector{"Courier New\0|10"s, "Courier New|10"s, "Courier New|10"s}));
}

class BrokenPrinter final : public FontWatcher {
public:
    void newPage() override { throw std::runtime_error("Printer error"); }
};

TEST(APrintedFile, HoldsTheErrorsOfThePrinterBack) {
    BrokenPrinter printer;
    EXPECT_NO_THROW(PrintFile(printer, {lines(FullPage + 1), "job.kov", ""}));
    EXPECT_TRUE(printer.paper.documents().empty());
}

TEST(ThePrintDate, IsMonthDayAndYear) {
    EXPECT_TRUE(std::regex_match(printDate(), std::regex("[0-9]{1,2}/[0-9]{1,2}/20[0-9]{2}"))) << printDate();
}

/// The file commands with a data set of their own, and no window.
class ThePrintCommand : public testing::Test {
protected:
    ThePrintCommand() {
        app.DataSet = std::make_shared<KOVDataSet>();
        app.current = {(folder / "job.kov").string(), "job.kov"};
        std::ofstream(folder / "job.kov") << "on disc\n";
    }
    static std::filesystem::path made() {
        auto place = std::filesystem::temp_directory_path() / "kov-print-test";
        std::filesystem::create_directories(place);
        return place;
    }

    std::filesystem::path folder = made();
    Surroundings around{folder};
    Desk desk{around.services()};
    Application app{desk};
    NoProgress silent;
    FileCommands commands{app,
                          {.showFields = [] {},
                           .storeFields = [] {},
                           .setCaption = [](const std::string&) {},
                           .showRecent = [] {},
                           .saveSettings = [] {},
                           .progress = [this]() -> ProgressSink& { return silent; }}};
};

TEST_F(ThePrintCommand, AsksForTheDefaultPrinterWithoutSelectionPagesAndPrintToFile) {
    around.dialogs.queuePrint();
    commands.print();
    ASSERT_EQ(around.dialogs.requests().size(), 1U);
    EXPECT_EQ(around.dialogs.requests()[0].kind, DialogKind::Print);
    EXPECT_EQ(around.dialogs.requests()[0].flags, 0x10000CU);
    EXPECT_TRUE(around.dialogs.requests()[0].printerDefault);
}

TEST_F(ThePrintCommand, LeavesTheFileOpenForInput) {
    around.dialogs.queuePrint();
    commands.print();
    EXPECT_EQ(commands.channel().state(), CardChannel::State::Input);
    EXPECT_EQ(line(around.printer.documents().at(0).pages.at(0), 6), "          on disc");
    EXPECT_FALSE(desk.busy());
}

TEST_F(ThePrintCommand, LeavesTheFileOpenForInputAlsoWhenItHadBeenOpenForOutput) {
    around.files.setRescueFolder(folder / "rescue");
    commands.save();
    ASSERT_EQ(commands.channel().state(), CardChannel::State::Output);
    around.dialogs.queuePrint();
    commands.print();
    EXPECT_EQ(commands.channel().state(), CardChannel::State::Input);
}

TEST_F(ThePrintCommand, DoesNothingWhenItsDialogIsCancelled) {
    app.FileDirty = true;
    around.dialogs.queueError(DialogCancelled);
    commands.print();
    EXPECT_TRUE(app.FileDirty);
    EXPECT_TRUE(around.printer.documents().empty());
    EXPECT_EQ(commands.channel().state(), CardChannel::State::Closed);
}

} // namespace
} // namespace kov
