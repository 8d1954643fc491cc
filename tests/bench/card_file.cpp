// Reading and writing a whole card file in memory, held against a plain loop over the same lines and against its own time on
// a tenth of them. Goals: at least 100 MB/s, at most 1.5 times the loop, at most 11 times the tenth.

#include "core/dataset/dataset.hpp"
#include "core/dataset/progress.hpp"
#include "decks/deck.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int ManyLines = 100000;
constexpr int FewLines = 10000;

class NoMessages final : public kov::MessageSink {
public:
    kov::Answer show(int /*style*/, const std::string& /*title*/, const std::string& prompt) override {
        std::fprintf(stderr, "%s\n", prompt.c_str());
        return kov::Answer::Ok;
    }
};

/// A tidy deck of exactly that many lines; made once.
const std::string& deckOf(int lines) {
    static std::map<int, std::string> decks;
    auto& text = decks[lines];
    if (text.empty()) {
        // The maker only comes close, so the plan is scaled until the deck is the right size within a percent.
        int planned = lines;
        for (int i = 0; i < 5; ++i) {
            const auto deck = kov::decks::makeDeck(kov::decks::largePlan(planned));
            text = deck.text();
            planned = static_cast<int>(static_cast<double>(planned) * lines / static_cast<double>(deck.lines.size()));
        }
    }
    return text;
}

std::size_t readAndWrite(const std::string& text) {
    kov::KOVDataSet data;
    kov::NoProgress progress;
    NoMessages messages;
    kov::CardReader reader(text);
    if (!data.ReadFile(reader, progress, messages, "BENCH.KOV")) {
        return 0;
    }
    kov::CardWriter writer;
    writer.reserve(text.size());
    data.WriteFile(writer, progress);
    return writer.content() == text ? text.size() : 0;
}

/// One card of the reference loop: its fields, each of ten bytes at most, and nothing else.
struct PlainCard {
    std::array<std::array<char, 10>, 8> fields;
    std::array<std::uint8_t, 8> lengths;
    std::size_t count = 0;
};

/// What any program must do at least: split lines into ten-byte fields, keep an object for each card, and print them back.
std::size_t splitAndPrint(const std::string& text) {
    std::vector<std::unique_ptr<PlainCard>> cards;
    const std::string_view all = text;
    for (std::size_t start = 0; start < all.size();) {
        const auto end = all.find('\n', start);
        auto line = all.substr(start, end - start);
        auto card = std::make_unique<PlainCard>();
        for (; !line.empty() && card->count < card->fields.size(); ++card->count) {
            const auto field = line.substr(0, 10);
            std::copy(field.begin(), field.end(), card->fields[card->count].begin());
            card->lengths[card->count] = static_cast<std::uint8_t>(field.size());
            line.remove_prefix(field.size());
        }
        cards.push_back(std::move(card));
        start = end + 1;
    }
    std::string out;
    out.reserve(text.size());
    for (const auto& card : cards) {
        for (std::size_t i = 0; i < card->count; ++i) {
            out.append(card->fields[i].data(), card->lengths[i]);
        }
        out += '\n';
    }
    return out == text ? text.size() : 0;
}

void run(benchmark::State& state, const std::string& text, std::size_t (*work)(const std::string&)) {
    for (auto each : state) {
        if (work(text) == 0) {
            state.SkipWithError("the deck did not come back");
            return;
        }
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void ReadWriteMany(benchmark::State& state) { run(state, deckOf(ManyLines), readAndWrite); }
void ReadWriteFew(benchmark::State& state) { run(state, deckOf(FewLines), readAndWrite); }
void ReferenceLoop(benchmark::State& state) { run(state, deckOf(ManyLines), splitAndPrint); }

/// Keeps the processor times (the machine may be busy with something else) beside printing them, for the ratios at the end.
class Keeper final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const auto& each : runs) {
            if (each.run_type == Run::RT_Aggregate && each.aggregate_name == "median") {
                seconds[each.run_name.function_name] = each.GetAdjustedCPUTime() / 1e3;
            }
        }
    }
    std::map<std::string, double> seconds;
};

} // namespace

int main(int argc, char** argv) {
    const auto add = [](const char* name, void (*function)(benchmark::State&)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);
    };
    add("ReadWriteMany", ReadWriteMany);
    add("ReferenceLoop", ReferenceLoop);
    add("ReadWriteFew", ReadWriteFew);
    benchmark::Initialize(&argc, argv);
    Keeper keeper;
    benchmark::RunSpecifiedBenchmarks(&keeper);
    const double many = keeper.seconds["ReadWriteMany"];
    const auto megabytes = static_cast<double>(deckOf(ManyLines).size()) / 1e6;
    std::printf("\nread and write, %.1f MB: %.0f MB/s (goal: at least 100)\n", megabytes, megabytes / many);
    std::printf("against the reference loop: %.2f times (goal: at most 1.5)\n", many / keeper.seconds["ReferenceLoop"]);
    std::printf("against a tenth of the lines: %.1f times (goal: at most 11)\n", many / keeper.seconds["ReadWriteFew"]);
    return 0;
}
