#include "rail/editor/train_tables.hpp"

#include <array>
#include <stdexcept>
#include <vector>

namespace kov {
namespace {

constexpr int General = static_cast<int>(TrainPage::General), HeatLoad = static_cast<int>(TrainPage::HeatLoad),
              Resistors = static_cast<int>(TrainPage::Resistors), Motor = static_cast<int>(TrainPage::Motor),
              Controller = static_cast<int>(TrainPage::Controller), Rates = static_cast<int>(TrainPage::Rates),
              Wheels = static_cast<int>(TrainPage::FlyWheel);

constexpr TrainField one(int page, std::string_view control, std::string_view caption, std::string_view unit, Rule rule,
                         std::string_view hint, std::string_view place, bool brings = false) {
    return {{control, caption, unit, rule, hint, nullptr, place}, -1, page, brings};
}

constexpr TrainField element(int page, std::string_view control, int index, std::string_view caption, std::string_view unit,
                             Rule rule, std::string_view hint, std::string_view place, bool brings = false) {
    return {{control, caption, unit, rule, hint, nullptr, place}, index, page, brings};
}

// Integers of the model are checked as reals too, and rounded when they are stored.
constexpr std::array Single{
    one(-1, "tbTrainId", "Train ID", "", text(), "Train Description: up to 36 characters", "Form 9A, columns 1-36"),
    one(General, "tbNCars", "Cars/ Train ", "", real(1, 20), "Total Number of Cars in the Train:   1 to 20",
        "Form 9A, columns 41-50"),
    one(General, "tbNPwrd", "Powered Cars / Train", "", real(1, 20),
        "Number of Cars in the Train with Operational Propulsion Systems:  1 to 20", "Form 9A, columns 51-60"),
    one(General, "tbNMtr", "Motors/ Car", "", real(1, 10), "Number of Motors / Car:  1 to 10", "Form 9E, columns 11-20"),
    one(General, "tbTLength", "Train Length ", "ft", real(25, 1500), "Total Train Length:   25 to 1500 Ft",
        "Form 9A, columns 61-70"),
    one(General, "tbAFront", "Frontal Area ", "sq ft", real(25, 300), "Frontal Area: 25 to 300 SqFt", "Form 9A, columns 71-80"),
    one(General, "tbPerim", "Perimeter", "ft", real(20, 200), "Perimieter of the average cross section:   20 to 200 Ft",
        "Form 9B, columns 1-10"),
    one(General, "tbCwt", "Avg Empty Wt", "tons", real(5, 150), "Average Empty Car Weight: 5 to 150 tons",
        "Form 9E, columns 1-10"),
    one(General, "tbCSkin", "Skin Friction", "", real(0, 0.2), "Skin friction Coefficient: 0 to 0.20",
        "Form 9B, columns 11-20"),
    one(General, "tbCTruck", "Weighted Truck Area", "", real(0, 500), "Drag Coefficient of Weighted Truck Area: 0 to 500",
        "Form 9B, columns 21-30"),
    one(General, "tbCFront", "Front of Train", "", real(0, 1.5), "Front of Train Drag Coefficient: 0 to 1.5",
        "Form 9B, columns 31-40"),
    one(General, "tbCRR1", "#1", "lb/ton", real(0.5, 50), "Rolling Resistance Coeff. #1: 0.5 to 50 lb/ton",
        "Form 9E, columns 21-30"),
    one(General, "tbCRR2", "#2", "lb", real(0.1, 500), "Rolling Resistance Coeff. #2: 0.1 to 500 lb", "Form 9E, columns 31-40"),
    one(General, "tbCRR3", "#3", "lb/ton-MPH", real(0.001, 1), "Rolling Resistance Coeff. #3: 0.001 to 1 lb/(ton-MPH)",
        "Form 9E, columns 41-50"),
    one(General, "tbARRP", "Accelerating Resistance of Rotating Parts", "lb/ton/ MPH/sec", real(0.1, 30),
        "Accelerating Resistance of Rotating Parts: 0.1 to 30 lb/ton/MPH/sec", "Form 9E, columns 51-60"),
    one(HeatLoad, "tbSensAuxE", "Empty Car", "Btu/hr / car", real(0, 1000000), "Sensible Heat per car: 0 to 1000000 Btu/hr/car",
        "Form 9C, columns 1-10", true),
    one(HeatLoad, "tbLatentAuxE", "Empty Car", "Btu/hr / car", real(-50000, 200000),
        "Latent Heat per car: -50000 to +200000 Btu/hr/car", "Form 9C, columns 11-20"),
    one(HeatLoad, "tbSensPac", "Per Patron", "Btu/hr / Patron", real(-100, 1000),
        "Sensible Heat per Passenger: -100 to +1000 Btu/hr/car", "Form 9C, columns 21-30"),
    one(HeatLoad, "tbLatentPac", "Per Patron", "Btu/hr / Patron", real(-100, 1000),
        "Latent Heat per Patron: -100 to +1000 Btu/hr/patron", "Form 9C, columns 31-40"),
    one(HeatLoad, "tbPwrAuxE", "Empty Car", "KW / car", real(0, 100),
        "Average Power Consumed by Auxiliaries on Empty Train:   0 to 100 kW/car", "Form 9C, columns 41-50"),
    one(HeatLoad, "tbPwrPac", "Per Patron", "KW / patron", real(-2, 5),
        "Average Auxiliary Power Consumed per Passenger:   -2. to 5. kW/person", "Form 9C, columns 51-60"),
    one(Motor, "tbMotorID", "Motor ID", "", text(), "Motor Identification: up to 36 characters", "Form 9F, columns 1-36", true),
};

constexpr std::array Arrays{
    element(Motor, "tbMtrSpec", 0, "Wheel Diameter", "in", real(20, 40), "Wheel Diameter from Manufacturer's Data: 20 to 40 in",
            "Form 9F, columns 41-50"),
    element(Motor, "tbMtrSpec", 1, "", "in", real(20, 40), "Actual Wheel Diameter: 20 to 40 in", "Form 9F, columns 51-60"),
    element(Motor, "tbMtrSpec", 2, "Gear Ratio", "", real(1, 20), "Gear Ratio from Manufacturer's Data: 1 to 20",
            "Form 9F, line 2, columns 1-10"),
    element(Motor, "tbMtrSpec", 3, "", "", real(1, 20), "Actual Gear Ratio: 1 to 20", "Form 9F, line 2, columns 11-20"),
    element(Motor, "tbMtrSpec", 4, "Supply Voltage", "volts", real(100, 1000),
            "Supply voltage from Manufacturer's Data 100 to 1000 volts", "Form 9F, line 2, columns 21-30"),
    element(Motor, "tbMtrSpec", 5, "", "volts", real(100, 1000), "Actual Supply Voltage: 100 to 1000 volts",
            "Form 9F, line 2, columns 31-40"),
    element(Motor, "tbMtrSpec", 6, "Motor Terminal Voltage", "volts", real(10, 1000),
            "Motor Terminal voltage at Base Speed: 100 to 1000 volts/motor", "Form 9F, line 2, columns 41-50"),
    // The hints of the efficiencies begin at 1; 0 is taken.
    element(Controller, "tbChopper", 1, "Efficiency Below U1", "%", real(0, 100),
            "Efficiency of Chopper Below Speed U1:   1 to 100 %", "Form 9H, line 3, columns 1-10", true),
    element(Controller, "tbChopper", 2, "Speed U1", "MPH", real(0, 100), "Speed U1: 0 to 100 MPH",
            "Form 9H, line 3, columns 11-20", true),
    element(Controller, "tbChopper", 3, "Efficiency Above U1", "%", real(0, 100),
            "Efficiency of Chopper Above Speed U1:   1 to 100 %", "Form 9H, line 3, columns 21-30", true),
    element(Controller, "tbChopper", 4, "Regenerative Braking", "%", real(0, 100),
            "Regenerative Braking Efficiency:   1 to 100%", "Form 9H, line 3, columns 31-40", true),
    element(Controller, "tbChopper", 5, "Motor Resistance", "ohms", real(0.001, 3), "Resistance:   0.001 to 3.0 ohms",
            "Form 9I, columns 41-50", true),
    element(Controller, "tbController", 0, "Transition Speed", "MPH", real(0, 100),
            "Speed vs Resistance Transition Speed:  0 to 100 MPH", "Form 9I, columns 1-10", true),
    element(Controller, "tbController", 1, "Field Strength Reduction Speed", "MPH", real(0, 100),
            "Speed vs Resistance Field Strength Reduction Speed:  0 to 100 MPH", "Form 9I, columns 11-20", true),
    element(Controller, "tbController", 2, "Internal Resistance at Zero Speed", "ohms", real(0.001, 3),
            "Internal Motor Circuit Resistance at Zero Train Speed:  .001 to 3. ohms", "Form 9I, columns 21-30", true),
    element(Controller, "tbController", 3, "Internal Resistance after Transition", "ohms", real(0.001, 3),
            "Internal Motor Circuit Resistance at just After Transition:  .001 to 3. ohms", "Form 9I, columns 31-40", true),
    element(Controller, "tbController", 4, "Motor Resistance", "ohms", real(0.001, 3),
            "Internal Resistance of the Motor Armature and Field:   .001 to 3.0 ohms (Form 9I)", "Form 9I, columns 41-50",
            true),
    element(Rates, "tbRate", 0, "Max Acceleration", "MPH/sec", real(0.5, 5),
            "Max allowable acceleration rate: 0.5 to 5.0 MPH/Sec", "Form 9J, columns 1-10", true),
    element(Rates, "tbRate", 1, "Low Speed Deceleration", "MPH/sec", real(0.5, 5),
            "Low speed constant deceleration rate: 0.5 to 5.0 MPH/Sec", "Form 9J, columns 11-20", true),
    element(Rates, "tbRate", 2, "Deceleration Transition Speed", "MPH", real(10, 100),
            "Constant deceleration transition speed: 10 to 100 MPH", "Form 9J, columns 21-30", true),
    element(Rates, "tbRate", 3, "Deceleration at Max Speed", "MPH/sec", real(0.5, 5),
            "Deceleration rate at max attainable speed: 0.5 to 5.0 MPH/Sec", "Form 9J, columns 31-40", true),
    element(Rates, "tbRate", 4, "Max Attainable Speed", "MPH", real(10, 250), "Maximum attainable speed: up to 250 MPH",
            "Form 9J, columns 41-50", true),
    element(Wheels, "tbFlyWheel", 0, "Flywheels per Car", "", real(1, 4), "Number of Flywheels per Car:   1 to 4",
            "Form 9K, columns 1-10", true),
    element(Wheels, "tbFlyWheel", 1, "Polar Moment of Inertia", "lb-ft\xB2", real(50, 4000),
            "Polar Moment Inertia of Flywheel Assembly:   50 to 4000 lb-ft\xB2", "Form 9K, columns 11-20"),
    element(Wheels, "tbFlyWheel", 2, "Min Rotational Speed", "RPM", real(0, 20000),
            "Minimum Allowable Rotational Speed:   0 to 20000 RPM", "Form 9K, columns 21-30"),
    element(Wheels, "tbFlyWheel", 3, "Max Rotational Speed", "RPM", real(0, 30000),
            "Maximum Allowable Rotational Speed:   0 to 30000 RPM", "Form 9K, columns 31-40"),
    element(Wheels, "tbFlyWheel", 4, "Initial Rotational Speed", "RPM", real(0, 30000),
            "Initial Rotational Speed:   Min Allowable to Max Allowable RPM", "Form 9K, columns 41-50"),
    element(Wheels, "tbFlyWheel", 5, "Efficiency Train to Flywheel", "%", real(0, 100),
            "Efficiency of Power Transfer from Train to Flywheel:   0 to 100 Percent", "Form 9L, columns 1-10"),
    element(Wheels, "tbFlyWheel", 6, "Efficiency Flywheel to Train", "%", real(0, 100),
            "Efficiency of Power Transfer from Flywheel to Train:   0 to 100 Percent", "Form 9L, columns 11-20"),
    element(Wheels, "tbFlyWheel", 7, "Loss Coefficient A", "", real(0, 100000000),
            "Coefficient A of Equation for Internal Losses of Flywheel:   > 0", "Form 9L, columns 21-30"),
    element(Wheels, "tbFlyWheel", 8, "Loss Coefficient B", "", real(0, 100000000),
            "Coefficient B of Equation for Internal Losses of Flywheel:   > 0", "Form 9L, columns 31-40"),
    element(Wheels, "tbFlyWheel", 9, "Loss Coefficient C", "", real(0, 100000000),
            "Coefficient C of Equation for Internal Losses of Flywheel:   > 0", "Form 9L, columns 41-50"),
    element(Wheels, "tbFlyWheel", 10, "Loss Exponent d", "", real(0, 3),
            "Exponent d of Equation for Internal Losses of Flywheel:   0 to 3.0", "Form 9L, columns 51-60"),
    element(Wheels, "tbFlyWheel", 11, "Loss Exponent e", "", real(0, 3),
            "Exponent e of Equation for Internal Losses of Flywheel:   0 to 3.0", "Form 9L, columns 61-70"),
};

// The seven rows of a resistor grid; the acceleration grid comes first, then the deceleration grid.
constexpr std::array GridRows{
    element(Resistors, "tbAccRg", 0, "Weight of Elements", "lb/car", real(0, 2000),
            "Weight of Resist Elements/Car: 0 to 2000 lb", "Form 9D, line 1", true),
    element(Resistors, "tbAccRg", 1, "Effective Diameter", "in", real(0, 24), "Effective Diameter of Element: 0 to 24 in",
            "Form 9D, line 1", true),
    element(Resistors, "tbAccRg", 2, "Convection Area", "sq ft", real(0, 500),
            "Effective Surface Area/car for Convection: 0 to 500 SqFt", "Form 9D, line 1", true),
    element(Resistors, "tbAccRg", 3, "Radiation Area", "sq ft", real(0, 500),
            "Effective Surface Area/car for Radiation: 0 to 500 SqFt", "Form 9D, line 1", true),
    element(Resistors, "tbAccRg", 4, "Emissivity", "", real(0, 1), "Emissivity of the Resistance Element: 0. to 1.",
            "Form 9D, line 2", true),
    element(Resistors, "tbAccRg", 5, "Specific Heat", "Btu/lb-deg F", real(0, 1),
            "Specific Heat of the Resistance Element: 0. to 1.", "Form 9D, line 2", true),
    element(Resistors, "tbAccRg", 6, "Initial Temperature", "deg F", real(0, 2000), "Initial Grid Temperature:  Deg F",
            "Form 9D, line 2", true),
};
constexpr int RowsOfGrid = static_cast<int>(GridRows.size()), CurveBoxes = 17;

TrainField curveField(int index) {
    switch (index % 4) {
    case 1:
        return element(Motor, "tbMtrDat", index, "Speed", "MPH", real(0, 250), "Performance Curve Speed:   0 to 250 MPH",
                       "Form 9G, line 1");
    case 2:
        return element(Motor, "tbMtrDat", index, "Tractive Effort", "lb", real(0, 200000),
                       "Performace Curve Tractive Effort:   >= 0 lbs", "Form 9G, line 2");
    case 3:
        return element(Motor, "tbMtrDat", index, "Motor Current", "amps", real(0, 1000),
                       "Performance Curve Motor Current:   >= 0 amps", "Form 9G, line 3");
    default:
        return element(Controller, "tbMtrDat", index, "Line Current", "amps", real(0, 20000),
                       "Line Current at this speed:   >= 0 amps", "Form 9H, line 2");
    }
}

std::vector<TrainField> allFields() {
    std::vector<TrainField> all(Single.begin(), Single.end());
    for (int index = 0; index < 2 * RowsOfGrid; ++index) {
        all.push_back(GridRows.at(static_cast<std::size_t>(index % RowsOfGrid)));
        all.back().index = index;
    }
    all.insert(all.end(), Arrays.begin(), Arrays.end());
    for (int index = 0; index < CurveBoxes; ++index) {
        all.push_back(curveField(index));
    }
    return all;
}

} // namespace

std::span<const TrainField> trainFields() {
    static const std::vector<TrainField> all = allFields();
    return all;
}

const Field& trainField(std::string_view control, int index) {
    for (const auto& entry : trainFields()) {
        if (entry.field.control == control && entry.index == index) {
            return entry.field;
        }
    }
    throw std::out_of_range("no such field of a train");
}

} // namespace kov
