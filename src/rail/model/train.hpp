#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/network.hpp"
#include "rail/model/card_text.hpp"
#include "rail/model/flywheel.hpp"
#include "rail/model/motor.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace kov {

/// A train type, Form 9: its size and weight, resistances, heat, resistor grids, rates, motors and flywheels. Cards: `TrainID`
/// (columns 1 to 36) with `NCars`, `NPwrd`, `TLength`, `AFront` (from column 41); `Perim`, `CSkin`, `CTruck`, `CFront`; the six
/// heat loads; two cards with the grids, acceleration and deceleration by turns; `Cwt`, `NMtr`, `CRR1` to `CRR3`, `ARRP`;
/// unless `TPOpt` is 3 the motor's cards; for `TPOpt` 1 the five `Rates`, and the flywheel's cards where one is carried.
class cTrain {
public:
    /// Texts as an editor shows them; the three integers as plain number text.
    struct Physical {
        std::string TrainID;
        std::string NCars;
        std::string NPwrd;
        std::string NMtr;
        std::string TLength;
        std::string AFront;
        std::string Perim;
        std::string Cwt;
    };
    struct Resistance {
        CardText CSkin;
        CardText CTruck;
        CardText CFront;
        CardText CRR1;
        CardText CRR2;
        CardText CRR3;
        CardText ARRP;
    };
    struct HeatLoads {
        CardText SensAuxE;
        CardText LatentAuxE;
        CardText SensPac;
        CardText LatentPac;
        CardText PwrAuxE;
        CardText PwrPac;
    };
    using GridTexts = std::array<CardText, 14>;
    using RateTexts = std::array<CardText, 5>;

    [[nodiscard]] const Fixed<36>& id() const { return TrainID; }
    [[nodiscard]] Physical GetPhysical() const;
    /// Integers by their field value; one beyond 16 bits is a Failure.
    void SetPhysical(const Physical& values);
    [[nodiscard]] Resistance getResist() const { return {CSkin, CTruck, CFront, CRR1, CRR2, CRR3, ARRP}; }
    void setResist(const Resistance& values);
    [[nodiscard]] HeatLoads getHtLoads() const { return {SensAuxE, LatentAuxE, SensPac, LatentPac, PwrAuxE, PwrPac}; }
    void setHtLoads(const HeatLoads& values);
    [[nodiscard]] const GridTexts& getRGrid() const { return RGrid; }
    void setRGrid(const GridTexts& values) { RGrid = values; }
    [[nodiscard]] const RateTexts& getRates() const { return Rates; }
    void setRates(const RateTexts& values) { Rates = values; }

    /// False on a bad card, a bad integer or the end of the file; what was read until then stays. The flywheel's cards are read
    /// for every train that carries one, whatever `TPOpt` is.
    [[nodiscard]] bool ReadData(CardReader& reader, const DataOptions& options);
    /// The flywheel's cards are written only for `TPOpt` 1.
    void WriteData(CardWriter& writer, const DataOptions& options) const;
    /// Takes everything, but the flywheel only where the train carries one. Nothing is shared.
    void XCopy(const cTrain& source);

    cMotor Motor;
    cFlyWheel FlyWheel;

    Fixed<36> TrainID;              ///< train description
    std::int16_t NCars = 0;         ///< cars in the train
    std::int16_t NPwrd = 0;         ///< cars with operational propulsion
    CardText TLength = ZeroText;    ///< total length, ft
    CardText AFront = ZeroText;     ///< frontal area, sq ft
    CardText Perim = ZeroText;      ///< perimeter of the average cross section, ft
    CardText Cwt = ZeroText;        ///< average empty car weight, tons
    std::int16_t NMtr = 0;          ///< motors per car
    CardText CSkin = ZeroText;      ///< skin friction coefficient
    CardText CTruck = ZeroText;     ///< drag coefficient of the weighted truck area
    CardText CFront = ZeroText;     ///< front of train drag coefficient
    CardText CRR1{"1.3"};           ///< rolling resistance coefficient 1, lb/ton
    CardText CRR2{"116."};          ///< rolling resistance coefficient 2, lb
    CardText CRR3{"0.045"};         ///< rolling resistance coefficient 3, lb/(ton-MPH)
    CardText ARRP{"8.8"};           ///< accelerating resistance of rotating parts, lb/ton/MPH/sec
    CardText SensAuxE = ZeroText;   ///< sensible heat of an empty car's auxiliaries, Btu/hr per car
    CardText LatentAuxE = ZeroText; ///< latent heat of an empty car's auxiliaries, Btu/hr per car
    CardText SensPac = ZeroText;    ///< sensible heat, Btu/hr per patron
    CardText LatentPac = ZeroText;  ///< latent heat, Btu/hr per patron
    CardText PwrAuxE = ZeroText;    ///< average power of the auxiliaries on an empty train, kW per car
    CardText PwrPac = ZeroText;     ///< average auxiliary power per passenger, kW per person
    /// 0 to 6 the acceleration grid, 7 to 13 the deceleration grid; in each: weight of elements per car (lb), effective
    /// diameter (in), convection area, radiation area (sq ft), emissivity, specific heat (Btu/lb-deg F), initial temperature
    /// (deg F).
    GridTexts RGrid = zeroTexts<14>();
    /// Maximum allowable acceleration (MPH/sec), normal deceleration from 0 to V1 (MPH/sec), V1 (MPH), normal deceleration at
    /// maximum speed (MPH/sec), maximum attainable speed (MPH).
    RateTexts Rates = zeroTexts<5>();

private:
    void readHead(CardReader& reader);
    [[nodiscard]] bool readCoefficients(CardReader& reader);
    [[nodiscard]] bool readHeatLoads(CardReader& reader);
    [[nodiscard]] bool readGrids(CardReader& reader);
    [[nodiscard]] bool readWeight(CardReader& reader);
    [[nodiscard]] bool readRates(CardReader& reader);
    void writeGrids(CardWriter& writer) const;
};

} // namespace kov
