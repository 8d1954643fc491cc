#include "rail/editor/route_tables.hpp"

#include <stdexcept>

namespace kov {
namespace {

constexpr int StopsPage = static_cast<int>(RoutePage::Stops), SectionsPage = static_cast<int>(RoutePage::Sections);

constexpr std::array Fields{
    RouteField{{"tbRouteID", "Route ID", "", text(), "Enter the Route Description (68 characters max)", nullptr,
                "Form 8A, line 1, columns 1-68"}},
    RouteField{{"tbRtOrigin", "Train Scheduling Origin", "ft", real(0, 1000000),
                "Position on track where train operation originates: x >= 0 ft", nullptr, "Form 8A, columns 1-10"}},
    RouteField{{"tbDelay", "First Train Delay", "sec", real(0, 100000), "Delay before first train starts: x >= 0 seconds",
                nullptr, "Form 8A, columns 31-40"}},
    RouteField{{"tbTType1", "First Train Type", "", real(1, 20), "Number of the first train type entering the route.", nullptr,
                "Form 8A, columns 41-50"}},
    RouteField{{"tbVcMin", "Minimum Coasting Velocity ", "MPH", real(0, 250), "Minimum Coasting Velocity: 0 to 250 MPH",
                nullptr, "Form 8A, columns 51-60"}},
    RouteField{{"tbNpax0", "No of Passengers at Origin", "", real(0, 4000),
                "Number of Passengers on train at scheduled origin: 0 to 4000 persons", nullptr, "Form 8C, columns 11-20"},
               StopsPage},
    RouteField{{"tbPatWht", "Average Patron Weight  (lb) ", "lb", real(50, 200),
                "Enter the Average Weight of Each Passenger:  50 to 200 lb", &KOVDataSet::PatWht, "Form 1G, columns 1-10"},
               StopsPage},
    RouteField{{"tbDist0", "Distance from Origin to First Node (ft)", "ft", real(0, 1000000),
                "Enter the distance from the route origin to the first section: ft", nullptr, "Form 8F, columns 11-20"},
               SectionsPage},
};

constexpr std::array Groups{
    Column{"Number of Trains", "", real(1, 1000), "Number of Trains in the Group: 1 to 1000", "Form 8B, columns 1-10"},
    Column{"Train Type", "", real(1, 100), "Train Type in this Group", "Form 8B, columns 11-20"},
    Column{"Headway (sec)", "", real(0, 10000), "Headway between trains:  0 to 10000 sec.", "Form 8B, columns 21-30"},
};

constexpr std::array Tracks{
    Column{"Forward End (ft)", "", real(0, 1000000), "Location of forward end of track section: 0 to 1000000 ft",
           "Form 8D, columns 1-10"},
    // The limits count, not the hints: a radius of 40 and an elevation of .01 are taken.
    Column{"Radius of Curve (ft)", "", real(0, 100000), "Radius of Curvature: 0 or > 75", "Form 8D, columns 11-20"},
    Column{"Grade (%)", "", real(-10, 10), "Grade: -10 to 10 %", "Form 8D, columns 21-30"},
    Column{"Elev Of For'd End (ft)", "", real(0.001, 1000000), "Elevation of forward end: > .02 ft", "Form 8D, columns 31-40"},
    Column{"Max Speed (MPH)", "", real(1, 250), "Maximum allowable train velocity: 1 to 250 mph:", "Form 8D, columns 41-50"},
    Column{"Energy Sector", "", real(0, 50), "Energy Sector Number: 0 to 50", "Form 8D, columns 51-60"},
    Column{"Coasting Param", "", real(0, 1), "Coasting Parameter: 1 for coasting permitted; 0 for not",
           "Form 8D, columns 61-70"},
};

constexpr std::array Stops{
    Column{"Front of Train (ft)", "", real(1, 1000000), "Location where Front of Train Stops", "Form 8C, columns 1-10"},
    Column{"Dwell (Sec)", "", real(0, 900), "Dwell Time: 0 to 900 sec", "Form 8C, columns 11-20"},
    Column{"Persons Entering", "", real(-4000, 4000), "Number of Persons Entering(+) or Leaving(-) the Train: -4000 to 4000",
           "Form 8C, columns 21-30"},
};

constexpr std::array Performance{
    Column{"Time (Sec)", "", real(0, 100000), "Time (from start of run) train reaches this point: sec",
           "Form 8E, columns 1-10"},
    Column{"Speed (MPH)", "", real(0, 250), "Train speed at this point: 0 to 250 mph", "Form 8E, columns 11-20"},
    Column{"Accel", "", real(0, 20000), "Power Input to Resistor Grids for Acceleration: 0 to 20000 kw/train",
           "Form 8E, columns 21-30"},
    Column{"Decel", "", real(0, 20000), "Power Input to Resistor Grids for Deceleration: 0 to 20000 kw/train",
           "Form 8E, columns 31-40"},
};

constexpr std::array Grids{
    RouteGrid{"Form 8B", static_cast<int>(RoutePage::Groups), Groups},
    RouteGrid{"Form 8D", static_cast<int>(RoutePage::Alignment), Tracks},
    RouteGrid{"Form 8C", static_cast<int>(RoutePage::Stops), Stops},
    RouteGrid{"Form 8E", static_cast<int>(RoutePage::Performance), Performance},
};

} // namespace

std::span<const RouteField> routeFields() { return Fields; }

const Field& routeField(std::string_view control) {
    for (const auto& entry : Fields) {
        if (entry.field.control == control) {
            return entry.field;
        }
    }
    throw std::out_of_range("no such field of a route");
}

std::span<const RouteGrid> routeGrids() { return Grids; }

} // namespace kov
