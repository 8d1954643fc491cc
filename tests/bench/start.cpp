// What a start costs: bench_start FOLDER-OF-THE-PROGRAMS starts a bare window of the toolkit and kovin in turns, empty and on a
// file of 100,000 lines, and prints the times to the first window, the resident memory, and the ratios. Goals: first window at
// most 3 times the bare one, at most 45 MB resident, a file adds at most twice its size.
#include "decks/deck.hpp"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

constexpr int Rounds = 15, Lines = 100000, StartLimit = 60000;

struct Start {
    double milliseconds = 0;
    double megabytes = 0;
};

struct Starts {
    QString program;
    QStringList arguments;
    std::vector<Start> all;

    [[nodiscard]] double median(double Start::*part) const {
        std::vector<double> values;
        for (const auto& start : all) {
            values.push_back(start.*part);
        }
        std::sort(values.begin(), values.end());
        return values.at(values.size() / 2);
    }
    [[nodiscard]] double time() const { return median(&Start::milliseconds); }
    [[nodiscard]] double memory() const { return median(&Start::megabytes); }
};

std::optional<Start> startOnce(const Starts& what, const QProcessEnvironment& environment) {
    QProcess process;
    process.setProcessEnvironment(environment);
    const auto begin =
        std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch());
    process.start(what.program, what.arguments);
    if (!process.waitForFinished(StartLimit)) {
        process.kill();
        process.waitForFinished();
        return std::nullopt;
    }
    const auto words = process.readAllStandardOutput().trimmed().split(' ');
    if (words.size() != 2) {
        return std::nullopt;
    }
    return Start{(words[0].toDouble() - static_cast<double>(begin.count())) / 1e6, words[1].toDouble() / 1024};
}

QByteArray largeDeck() {
    int planned = Lines;
    kov::decks::Deck deck;
    for (int i = 0; i < 5; ++i) {
        deck = kov::decks::makeDeck(kov::decks::largePlan(planned));
        planned = static_cast<int>(static_cast<double>(planned) * Lines / static_cast<double>(deck.lines.size()));
    }
    return QByteArray::fromStdString(deck.text());
}

} // namespace

int main(int argc, char** argv) {
    const QDir programs(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    const QTemporaryDir scratch;
    const auto deck = scratch.filePath(QStringLiteral("large.kov"));
    QFile file(deck);
    if (!file.open(QIODevice::WriteOnly) || file.write(largeDeck()) < Lines) {
        std::fprintf(stderr, "can't write %s\n", qPrintable(deck));
        return 1;
    }
    file.close();

    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("kovprobe"));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), programs.absoluteFilePath(QStringLiteral("plugins")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), scratch.path());
    environment.insert(QStringLiteral("XDG_STATE_HOME"), scratch.path());
    if (!environment.contains(QStringLiteral("DISPLAY")) && !environment.contains(QStringLiteral("WAYLAND_DISPLAY"))) {
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    }
    Starts bare{programs.absoluteFilePath(QStringLiteral("bench_start_hello")), {}, {}};
    Starts empty{programs.absoluteFilePath(QStringLiteral("kovin")), {}, {}};
    Starts loaded{empty.program, {deck}, {}};
    for (int round = 0; round < Rounds; ++round) {
        for (auto* starts : {&bare, &empty, &loaded}) {
            const auto start = startOnce(*starts, environment);
            if (!start) {
                std::fprintf(stderr, "%s shows no window\n", qPrintable(starts->program));
                return 1;
            }
            starts->all.push_back(*start);
        }
    }
    const double size = static_cast<double>(QFile(deck).size()) / (1024 * 1024);
    std::printf("medians of %d starts       first window   resident\n", Rounds);
    std::printf("bare window of the toolkit  %8.1f ms  %8.1f MB\n", bare.time(), bare.memory());
    std::printf("kovin                       %8.1f ms  %8.1f MB\n", empty.time(), empty.memory());
    std::printf("kovin, %4.1f MB of cards     %8.1f ms  %8.1f MB\n", size, loaded.time(), loaded.memory());
    std::printf("first window / bare window  %8.2f     (at most 3)\n", empty.time() / bare.time());
    std::printf("resident                    %8.1f MB  (at most 45)\n", empty.memory());
    std::printf("added by the file / its size%8.2f     (at most 2)\n", (loaded.memory() - empty.memory()) / size);
    return 0;
}
