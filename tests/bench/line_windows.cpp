// How long the windows of the line network take to open with 300 and 3,000 segments, and for one row change. Printed as ratios.
#include "app/composition/program.hpp"
#include "platform/headless/surroundings.hpp"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>

namespace {

using kov::KOVDataSet;
using kov::Position;

constexpr int Few = 300, Many = 3000, PartOfSections = 3, Rounds = 15, RowChanges = 400;

void fill(KOVDataSet& data, kov::MessageSink& messages, int segments) {
    auto& sections = data.Sections;
    const int count = segments / PartOfSections;
    for (int number = 1; number <= count; ++number) {
        const auto section = sections.Add(Position{0});
        section->id = static_cast<std::int16_t>(number);
        section->setNLSegs(PartOfSections, messages);
    }
}

template <typename Work> double best(int rounds, Work work) {
    double fastest = 1e9;
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
        fastest = std::min(fastest, took.count());
    }
    return fastest;
}

struct Times {
    double sections;
    double segments;
    double rowChange;
};

double timeToOpen(kov::Desk& desk, const char* window) {
    double fastest = 1e9;
    for (int round = 0; round < Rounds; ++round) {
        fastest = std::min(fastest, best(1, [&] { desk.act([&] { desk.show(window); }); }));
        desk.act([&] { desk.unload(*desk.find(window)); });
    }
    return fastest;
}

Times measure(int segments) {
    kov::Surroundings around(std::filesystem::temp_directory_path());
    kov::Program program(around.services(), std::filesystem::temp_directory_path().string());
    program.start("");
    auto& desk = program.desk();
    fill(*program.application().DataSet, around.services().messages, segments);
    Times times{};
    times.sections = timeToOpen(desk, "frmLSect");
    times.segments = timeToOpen(desk, "lseg");
    desk.act([&] { desk.show("lseg"); });
    auto& list = desk.find("lseg")->control("grdLSeg");
    int row = 0;
    times.rowChange = best(RowChanges, [&] { desk.cell(list, ++row % (segments - 1), 1); });
    return times;
}

void print(const char* what, double few, double many) {
    std::printf("%-32s %10.1f us %10.1f us   %6.2f times\n", what, few, many, many / few);
}

} // namespace

int main() {
    const auto few = measure(Few);
    const auto many = measure(Many);
    std::printf("%-32s %10d    %10d\n", "segments", Few, Many);
    print("frmLSect opens", few.sections, many.sections);
    print("lseg opens", few.segments, many.segments);
    print("one row change in lseg", few.rowChange, many.rowChange);
    return 0;
}
