#include "platform/disk_files.hpp"
#include "platform/qt/command_line.hpp"
#include "platform/qt/dialogs.hpp"
#include "platform/qt/printer.hpp"
#include "platform/qt/processes.hpp"
#include "platform/qt/stores.hpp"
#include "platform/qt/text_codec.hpp"

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

namespace kov::qt {
namespace {

TEST(TextCodec, EveryByteComesBack) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    EXPECT_EQ(fromQt(toQt(all)), all);
    EXPECT_EQ(toQt("\x80"), QStringLiteral(u"\u20AC"));
}

TEST(TextCodec, WhatDoesNotFitIsRefused) {
    EXPECT_EQ(fromQt(QStringLiteral(u"a\u0416")), std::nullopt);
    EXPECT_EQ(fromQtLossy(QStringLiteral(u"a\u0416b")), "a?b");
}

TEST(TextCodec, PlacesSkipTheSecondByteOfALineEnd) {
    EXPECT_EQ(toQtPlace("a\r\nb", 3), 2);
    EXPECT_EQ(fromQtPlace("a\r\nb", 2), 3);
    EXPECT_EQ(fromQtPlace("a\r\nb", 1), 1);
}

TEST(CommandLine, WordsArePartedByBlanksOutsideQuotes) {
    EXPECT_EQ(wordsOf(QStringLiteral(" a \"b c\"  \"\" d\"e f\"")), (QStringList{"a", "b c", "", "de f"}));
}

TEST(CommandLine, NoShellLooksAtIt) {
    EXPECT_EQ(wordsOf(QStringLiteral("\"$HOME;`x` 'q' \\n\"")), QStringList{QStringLiteral("$HOME;`x` 'q' \\n")});
}

TEST(FileDialog, FiltersCountInCapitalsAndSmallLetters) {
    EXPECT_EQ(nameFilters("KOV Files (*.KOV;*.INP)|*.KOV;*.INP|All FIles (*.*)|*.*"),
              (QStringList{"KOV Files (*.KOV *.kov *.INP *.inp)", "All FIles (*)"}));
}

TEST(SystemClipboard, TextComesBackByteForByte) {
    QtClipboard clipboard;
    clipboard.setText("a\tb\r\n\xC9\x80 \r");
    EXPECT_EQ(clipboard.text(), "a\tb\r\n\xC9\x80 \r");
}

/// Programs in a folder of their own, with a blank in its name.
class HostPrograms : public testing::Test {
protected:
    void program(const std::string& name, const std::string& body) {
        const auto path = folder / name;
        std::ofstream(path) << "#!/bin/sh\n" << body << '\n';
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    std::int32_t ended(std::int32_t process) {
        for (int i = 0; i < 500; ++i) {
            if (const auto code = processes.exitCode(process); code != StillActive) {
                return code;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return StillActive;
    }
    std::int32_t start(const std::string& line) { return processes.start(line, 4, error); }

    QTemporaryDir place{QStringLiteral("kov programs XXXXXX")};
    std::filesystem::path folder = std::filesystem::absolute(place.path().toStdString());
    DiskFiles files{folder};
    QtProcesses processes{files};
    PlatformError error;
};

TEST_F(HostPrograms, TheSimulationIsFoundWithoutItsEndingBehindABackslash) {
    program("kov41", "printf '%s' \"$1\" > seen.txt; exit 100");
    const auto process = start(folder.string() + "\\kov41.exe \"/a b/it's $HOME.kov\"");
    ASSERT_NE(process, 0);
    EXPECT_FALSE(error);
    EXPECT_EQ(ended(process), 100);
    std::ifstream seen(folder / "seen.txt");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(seen), {}), "/a b/it's $HOME.kov");
}

TEST_F(HostPrograms, ASignalIsReportedAsItsNegativeNumber) {
    program("kov41.exe", "kill -9 $$");
    EXPECT_EQ(ended(start(folder.string() + "\\kov41.exe")), -9);
}

TEST_F(HostPrograms, AMissingProgramIsAnErrorAndNoProcess) {
    EXPECT_EQ(start(folder.string() + "\\kov41.exe \"x\""), 0);
    EXPECT_EQ(error.number, 53);
    EXPECT_EQ(error.description, "File not found");
}

TEST_F(HostPrograms, ARunningProgramIsStillActiveAndOutlivesItsHandle) {
    program("slow", "sleep 0.3; touch done");
    const auto process = start(folder.string() + "\\slow");
    EXPECT_EQ(processes.exitCode(process), StillActive);
    processes.close(process);
    for (int i = 0; i < 500 && !std::filesystem::exists(folder / "done"); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_TRUE(std::filesystem::exists(folder / "done"));
}

TEST_F(HostPrograms, WithoutNotepadAListingIsShownInAPlainWindow) {
    qunsetenv("XDG_CURRENT_DESKTOP");
    std::ofstream(folder / "out put.prn") << "LISTING\n";
    ASSERT_NE(start("notepad " + (folder / "out put.prn").string()), 0);
    QPlainTextEdit* viewer = nullptr;
    for (auto* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QStringLiteral("TextViewer")) {
            viewer = qobject_cast<QPlainTextEdit*>(widget);
        }
    }
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer->toPlainText(), "LISTING\n");
    delete viewer;
}

TEST_F(HostPrograms, AWaitIsOverWhenTheProgramHasEnded) {
    processes.ended = [] { return true; };
    QElapsedTimer time;
    time.start();
    processes.wait(20000);
    EXPECT_LT(time.elapsed(), 10000);
}

TEST_F(HostPrograms, ADocumentIsPrintedToAFile) {
    QtPrinter printer;
    const auto path = folder / "document.pdf";
    printer.printToPdf(path.string());
    printer.setFont("Courier New", 10, false);
    printer.begin("job.kov");
    EXPECT_GT(printer.pageHeight(), Twips{12000});
    EXPECT_NEAR(printer.textHeight("X").value, 225, 40) << "about 1.1 times ten points";
    printer.print(Twips{0}, Twips{0}, "First page");
    printer.line(Twips{0}, Twips{500}, printer.pageWidth(), Twips{500});
    printer.newPage();
    printer.print(Twips{0}, Twips{0}, "Second page");
    printer.end();
    EXPECT_GT(std::filesystem::file_size(path), 1000U);
}

} // namespace
} // namespace kov::qt
