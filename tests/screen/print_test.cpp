// A card file printed to PDF through the real printer, turned back into text and into a picture.
#include "platform/qt/printer.hpp"
#include "shell/main/print_file.hpp"

#include <QFile>
#include <QImage>
#include <QPageLayout>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace kov::qt {
namespace {

constexpr double TwipsPerInch = 1440, Dpi = 144;
constexpr int HeaderTab = 8, LineTab = 11, PageTab = 84, RuleFrom = 6, RuleTo = 90;

QByteArray sample() {
    QFile file(QStringLiteral(KOV_SOURCE_DIR "/samples/two-station-line.kov"));
    static_cast<void>(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QStringList linesOf(const QString& text) {
    auto lines = text.split(QLatin1Char('\n'));
    if (lines.back().isEmpty()) {
        lines.removeLast();
    }
    for (auto& line : lines) {
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
    }
    return lines;
}

/// The sample on paper, once for all tests.
class PaperSample : public testing::Test {
protected:
    static void SetUpTestSuite() {
        made = new Made; // NOLINT(cppcoreguidelines-owning-memory): freed with the suite
        QtPrinter printer;
        const auto path = made->folder.filePath(QStringLiteral("sample.pdf"));
        printer.printToPdf(path.toStdString());
        const auto content = sample().toStdString();
        PrintFile(printer, {content, "two-station-line.kov", "11/21/2026"});
        printer.setFont("Courier New", 10, false);
        made->column = printer.textWidth("X").value;
        made->line = printer.textHeight("X").value;
        made->pageHeight = printer.pageHeight().value;
        made->margin = printer.device().pageLayout().margins(QPageLayout::Inch).left();
        made->top = printer.device().pageLayout().margins(QPageLayout::Inch).top();
        made->text = output(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-fixed"),
                                                          QStringLiteral("6"), path, QStringLiteral("-")});
        made->fonts = output(QStringLiteral("pdffonts"), {path});
        output(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(Dpi), QStringLiteral("-gray"),
                                            QStringLiteral("-png"), path, made->folder.filePath(QStringLiteral("page"))});
    }
    static void TearDownTestSuite() {
        delete made; // NOLINT(cppcoreguidelines-owning-memory)
        made = nullptr;
    }

    static QString output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60000) && process.exitCode() == 0) << qPrintable(program);
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    /// The lines of a page, counted from 1.
    static QStringList page(int number) { return linesOf(made->text.split(QLatin1Char('\f')).value(number - 1)); }
    static int pages() { return static_cast<int>(made->text.split(QLatin1Char('\f')).size()) - 1; }
    /// How many lines of the file stand on a full page: from the sixth line on to the first that passes the bottom limit.
    static int fullPage() {
        const double limit = made->pageHeight - 5 * made->line;
        int lines = 0;
        for (double y = 5 * made->line; y <= limit; y += made->line) {
            ++lines;
        }
        return lines;
    }
    static QStringList body(int number) {
        QStringList lines;
        for (const auto& line : page(number)) {
            const auto text = line.trimmed();
            if (!text.isEmpty() && !text.startsWith(QStringLiteral("KOV DATA FILE")) &&
                !text.startsWith(QStringLiteral("11/21/2026"))) {
                lines += line;
            }
        }
        return lines;
    }

    struct Made {
        QTemporaryDir folder;
        QString text;
        QString fonts;
        double column = 0;
        double line = 0;
        double pageHeight = 0;
        double margin = 0;
        double top = 0;
    };
    static Made* made;
};
PaperSample::Made* PaperSample::made = nullptr;

/// A long dark line across a page.
struct Stroke {
    int y;
    int from;
    int to;
};

std::vector<Stroke> strokesOf(const QImage& image) {
    constexpr int Dark = 200;
    std::vector<Stroke> found;
    for (int y = 0; y < image.height(); ++y) {
        int from = -1;
        for (int x = 0; x <= image.width(); ++x) {
            const bool dark = x < image.width() && qGray(image.pixel(x, y)) < Dark;
            if (dark && from < 0) {
                from = x;
            } else if (!dark && from >= 0) {
                if (x - from > image.width() / 2 && (found.empty() || y - found.back().y > 2)) {
                    found.push_back({y, from, x});
                }
                from = -1;
            }
        }
    }
    return found;
}

TEST_F(PaperSample, IsInTenPointLettersOfTheWidthOfCourierNew) {
    EXPECT_NEAR(made->column, 120, 0.5) << "a tenth of an inch is twelve of ten points";
    EXPECT_TRUE(made->fonts.contains(QStringLiteral("LiberationMono")) || made->fonts.contains(QStringLiteral("CourierNew")))
        << qPrintable(made->fonts);
}

TEST_F(PaperSample, HasTheHeaderOnTheThirdLineOfEveryPage) {
    ASSERT_GT(pages(), 3);
    const auto header = QString::fromStdString(pageHeader("two-station-line.kov")).trimmed();
    for (int number = 1; number <= pages(); ++number) {
        EXPECT_EQ(page(number).filter(QStringLiteral("KOV DATA FILE")).value(0).trimmed(), header) << number;
    }
}

TEST_F(PaperSample, KeepsTheColumnsOfHeaderLinesAndFooter) {
    for (int number = 1; number <= pages(); ++number) {
        const auto lines = page(number);
        const auto header = lines.filter(QStringLiteral("KOV DATA FILE")).value(0);
        const auto footer = lines.filter(QStringLiteral("11/21/2026")).value(0);
        const auto left = header.indexOf(QStringLiteral("KOV DATA FILE"));
        EXPECT_EQ(footer.indexOf(QStringLiteral("11/21/2026")), left) << number;
        EXPECT_EQ(footer.indexOf(QStringLiteral("Pg %1").arg(number)), left + PageTab - HeaderTab) << qPrintable(footer);
    }
    // The first two lines of the sample begin in their first column.
    const auto first = page(1);
    const auto left = first.filter(QStringLiteral("KOV DATA FILE")).value(0).indexOf(QStringLiteral("KOV"));
    EXPECT_EQ(first.filter(QStringLiteral("TWO-STATION LINE")).value(0).indexOf(QStringLiteral("TWO")),
              left + LineTab - HeaderTab);
}

TEST_F(PaperSample, BreaksThePagesBehindTheBottomLimitAndLosesNoLine) {
    auto expected = linesOf(QString::fromLatin1(sample()));
    const int full = fullPage();
    EXPECT_EQ(pages(), (expected.size() + full - 1) / full);
    int next = 0;
    for (int number = 1; number <= pages(); ++number) {
        QStringList wanted;
        for (const auto& line : expected.mid(next, full)) {
            if (!line.trimmed().isEmpty()) {
                wanted += line.simplified();
            }
        }
        QStringList found;
        for (const auto& line : body(number)) {
            found += line.simplified();
        }
        EXPECT_EQ(found, wanted) << "page " << number;
        next += full;
    }
}

TEST_F(PaperSample, KeepsTheTenColumnsOfEachField) {
    const auto lines = body(1);
    const auto expected = linesOf(QString::fromLatin1(sample()));
    const auto left =
        page(1).filter(QStringLiteral("KOV DATA FILE")).value(0).indexOf(QStringLiteral("KOV")) + LineTab - HeaderTab;
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(lines.value(i).mid(left), expected.value(i)) << i;
    }
}

TEST_F(PaperSample, HasTheTwoRulesOfAPageAtTheirPlaces) {
    const auto pixels = [](double twips) { return twips * Dpi / TwipsPerInch; };
    for (int number = 1; number <= pages(); ++number) {
        const QImage image(made->folder.filePath(QStringLiteral("page-%1.png").arg(number)));
        ASSERT_FALSE(image.isNull()) << number;
        const auto strokes = strokesOf(image);
        ASSERT_EQ(strokes.size(), 2U) << "page " << number;
        for (const auto& stroke : strokes) {
            EXPECT_NEAR(stroke.from, made->margin * Dpi + pixels(RuleFrom * made->column), 2);
            EXPECT_NEAR(stroke.to, made->margin * Dpi + pixels(RuleTo * made->column), 2);
        }
        EXPECT_NEAR(strokes[0].y, made->top * Dpi + pixels(3 * made->line), 2);
        const bool last = number == pages();
        const double limit = made->pageHeight - 5 * made->line;
        const double position = last ? limit : (5 + fullPage()) * made->line;
        EXPECT_NEAR(strokes[1].y, made->top * Dpi + pixels(position + 2 * made->line), 2) << number;
    }
}

TEST(APrinterFont, EndsAtAZeroCharacter) {
    using namespace std::string_literals;
    QTemporaryDir folder;
    QtPrinter printer;
    printer.printToPdf(folder.filePath(QStringLiteral("x.pdf")).toStdString());
    printer.setFont("Courier New\0"s, 10, false);
    EXPECT_NEAR(printer.textWidth("ii").value, printer.textWidth("MM").value, 0.5);
    EXPECT_NEAR(printer.textWidth("M").value, 120, 0.5);
}

} // namespace
} // namespace kov::qt
