// The fan table printed to PDF through the real printer, turned back into text.
#include "platform/qt/printer.hpp"
#include "vent/editor/fan_table_print.hpp"

#include <QPageLayout>
#include <QPrinter>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <string>

namespace kov::qt {
namespace {

// Vent, title, fan type, start, stop and status, each behind a bar and a blank.
constexpr std::array Widths{10, 20, 20, 6, 6, 12};
constexpr double TwipsPerInch = 1440;

std::string rowOf(int number) {
    const auto id = std::to_string(100 + number);
    return " " + id + "- " + id + "\tShaft " + id + " with a title that is too long\tMain fan                            \t" +
           std::to_string(number) + ".\t90000.    \tExhaust";
}

/// A table of many shafts on paper, once for all tests.
class FanTableOnPaper : public testing::Test {
protected:
    static constexpr int Rows = 150;

    void SetUp() override {
        Grid grid;
        grid.setCols(static_cast<int>(Widths.size()));
        for (int number = 1; number <= Rows; ++number) {
            grid.addItem(rowOf(number));
        }
        grid.removeItem(0);
        QtPrinter printer;
        const auto path = folder_.filePath(QStringLiteral("table.pdf"));
        printer.printToPdf(path.toStdString());
        printFanTable(printer, grid, "C:\\runs\\harbor.kov", "HARBOR LINE");
        printer.setFont("Courier New", 10, false);
        column_ = printer.textWidth("X").value;
        room_ = printer.pageWidth().value;
        QProcess reader;
        // A letter of ten points is six points wide.
        reader.start(QStringLiteral("pdftotext"),
                     {QStringLiteral("-layout"), QStringLiteral("-fixed"), QStringLiteral("6"), path, QStringLiteral("-")});
        ASSERT_TRUE(reader.waitForFinished(60000) && reader.exitCode() == 0);
        pages_ = QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f'));
        pages_.removeLast(); // every page ends with a form feed
    }
    [[nodiscard]] QStringList rows() const {
        QStringList found;
        for (const auto& page : pages_) {
            for (const auto& line : page.split(QLatin1Char('\n'))) {
                if (line.contains(QLatin1Char('|'))) {
                    found += line;
                }
            }
        }
        return found;
    }

    QTemporaryDir folder_;
    QStringList pages_;
    double column_ = 0;
    double room_ = 0;
};

TEST_F(FanTableOnPaper, BeginsWithTheNameOfTheFileAndTheIdentification) {
    const auto lines = pages_.value(0).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(lines.value(0).trimmed(), QStringLiteral("Fan Table for C:\\runs\\harbor.kov"));
    EXPECT_EQ(lines.value(1).trimmed(), QStringLiteral("HARBOR LINE"));
    EXPECT_TRUE(lines.value(2).contains(QLatin1Char('|')));
}

TEST_F(FanTableOnPaper, HasEachColumnInItsWidthBehindABar) {
    const auto line = rows().value(0);
    int bar = static_cast<int>(line.indexOf(QLatin1Char('|')));
    for (const int width : Widths) {
        EXPECT_EQ(line.mid(bar, 2), QStringLiteral("| ")) << qPrintable(line);
        bar += 2 + width;
    }
    EXPECT_EQ(line.mid(bar), QStringLiteral(" |")) << qPrintable(line);
    EXPECT_EQ(line.trimmed(),
              QStringLiteral("|  101- 101 | Shaft 101 with a tit| Main fan            | 1.    | 90000.| Exhaust      |"));
}

TEST_F(FanTableOnPaper, StandsTwoColumnsToTheRightOfTheHeading) {
    const auto heading = pages_.value(0).split(QLatin1Char('\n'), Qt::SkipEmptyParts).value(0);
    EXPECT_EQ(rows().value(0).indexOf(QLatin1Char('|')) - heading.indexOf(QLatin1Char('F')), 2);
}

TEST_F(FanTableOnPaper, LosesNoRowBetweenTwoPages) {
    ASSERT_GT(pages_.size(), 2);
    const auto lines = rows();
    ASSERT_EQ(lines.size(), Rows);
    for (int number = 1; number <= Rows; ++number) {
        EXPECT_TRUE(lines.value(number - 1).contains(QStringLiteral("Shaft %1 with").arg(100 + number))) << number;
    }
}

TEST_F(FanTableOnPaper, FitsAcrossThePage) {
    const int columns = std::accumulate(Widths.begin(), Widths.end(), 0) + 2 * static_cast<int>(Widths.size()) + 2 + 2;
    EXPECT_NEAR(column_, TwipsPerInch / 12, 0.5) << "ten points: twelve letters to the inch";
    EXPECT_LE(columns * column_, room_);
}

} // namespace
} // namespace kov::qt
