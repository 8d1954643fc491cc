// How long the windows of routes and trains take with a route of 100 and of 1,000 track sections, and 10 and 100 trains: to
// open, and for one change of cell, field, route or train, pictures included. Printed as ratios.
#include "app/composition/program.hpp"
#include "platform/headless/surroundings.hpp"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace {

using kov::KOVDataSet;
using kov::Position;

constexpr int Few = 100, Many = 1000, SectionsOfTrain = 10, Rounds = 15, Changes = 200;

std::shared_ptr<kov::cRtTrack> track(int number) {
    auto made = std::make_shared<kov::cRtTrack>();
    made->ForwardEnd = std::to_string(100 * number) + ".";
    made->Elevation = std::to_string(100 + number % 40) + ".";
    made->MaxSpeed = std::to_string(30 + number % 30) + ".";
    return made;
}

void fill(KOVDataSet& data, kov::MessageSink& messages, int sections) {
    data.TPOpt = 1;
    for (int number = 1; number <= sections; ++number) {
        const auto section = data.Sections.Add(Position{0});
        section->id = static_cast<std::int16_t>(number);
        section->setNLSegs(1, messages);
    }
    kov::ItemList travelled;
    for (int number = 1; number <= sections; ++number) {
        travelled.addItem(std::to_string(number));
    }
    travelled.addItem(" ");
    for (const auto* name : {"Eastbound", "Westbound"}) {
        const auto route = data.Routes.Add(Position{0});
        route->RouteID = name;
        route->TSectSave(travelled);
        for (int number = 1; number <= sections; ++number) {
            route->Tracks.append(track(number));
        }
    }
    for (int number = 1; number <= sections / SectionsOfTrain; ++number) {
        data.Trains.Add(Position{0})->TrainID = "Train " + std::to_string(number);
        data.InitTrains.Add()->setITrain({});
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

double timeToOpen(kov::Desk& desk, const char* window) {
    double fastest = 1e9;
    for (int round = 0; round < Rounds; ++round) {
        fastest = std::min(fastest, best(1, [&] { desk.act([&] { desk.show(window); }); }));
        desk.act([&] { desk.unload(*desk.find(window)); });
    }
    return fastest;
}

struct Times {
    double routes = 0;
    double trains = 0;
    double initialTrains = 0;
    double cell = 0;
    double edit = 0;
    double route = 0;
    double train = 0;
};

void measureRoutes(kov::Desk& desk, Times& times) {
    desk.act([&] { desk.show("Route1"); });
    auto& window = *desk.find("Route1");
    desk.chooseTab(window.control("SSTab1"), 2);
    auto& grid = window.control("Grid1", 1);
    const int rows = grid.grid().rows();
    int row = 0;
    times.cell = best(Changes, [&] { desk.cell(grid, ++row % rows, 1); });
    times.edit = best(Changes, [&] {
        desk.cell(grid, ++row % (rows - 1), 4);
        desk.type("50");
        desk.key(kov::Key::Enter);
    });
    bool up = false;
    times.route = best(Rounds, [&] { desk.spin(window.control("Spin1"), up = !up); });
}

void measureTrains(kov::Desk& desk, Times& times) {
    desk.act([&] { desk.show("Trains"); });
    auto& window = *desk.find("Trains");
    bool up = false;
    times.train = best(Changes, [&] { desk.spin(window.control("Spin1"), up = !up); });
}

Times measure(int sections) {
    kov::Surroundings around(std::filesystem::temp_directory_path());
    kov::Program program(around.services(), std::filesystem::temp_directory_path().string());
    program.start("");
    auto& desk = program.desk();
    desk.pass(5000);
    fill(*program.application().DataSet, around.services().messages, sections);
    Times times;
    times.routes = timeToOpen(desk, "Route1");
    times.trains = timeToOpen(desk, "Trains");
    times.initialTrains = timeToOpen(desk, "TrnInit");
    measureRoutes(desk, times);
    measureTrains(desk, times);
    return times;
}

void print(const char* what, double few, double many) {
    std::printf("%-32s %10.1f us %10.1f us   %6.2f times\n", what, few, many, many / few);
}

} // namespace

int main() {
    const auto few = measure(Few);
    const auto many = measure(Many);
    std::printf("%-32s %10d    %10d\n", "track sections", Few, Many);
    std::printf("%-32s %10d    %10d\n", "trains", Few / SectionsOfTrain, Many / SectionsOfTrain);
    print("Route1 opens", few.routes, many.routes);
    print("Trains opens", few.trains, many.trains);
    print("TrnInit opens", few.initialTrains, many.initialTrains);
    print("another cell of the alignment", few.cell, many.cell);
    print("a cell edited, profile drawn", few.edit, many.edit);
    print("another route, stored first", few.route, many.route);
    print("another train, stored first", few.train, many.train);
    return 0;
}
