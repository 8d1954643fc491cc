#pragma once

#include "core/cards/card_io.hpp"
#include "rail/model/card_text.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace kov {

/// The traction motors of a train and their control, on the cards behind the train's first six (Form 9, unless `TPOpt` is 3):
/// `MotorID` (columns 1 to 36) with `MtrSpecs` 1 and 2 (from column 41); `MtrSpecs` 3 to 7; one card each of four points for
/// `CrvSpeed`, `CrvEffort`, `CrvAmps`; `CtrlOpt`; for a chopper `LineAmps`, then `Chopper` with `FWOpt`; `Cam` with `MotorRes`.
///
/// Lists that the engineer counts from 1 have their element 1 at index 0 here, in members and in the arrays passed in and out.
class cMotor {
public:
    static constexpr std::int16_t CamControl = 1; ///< every other `CtrlOpt` is a chopper
    static constexpr std::int16_t Carried = 2;    ///< every other `FWOpt` is a train without flywheels

    struct Specs {
        Fixed<36> MotorID;
        std::array<CardText, 7> MtrSpecs = zeroTexts<7>();
    };
    struct ChopperData {
        std::array<CardText, 5> Amps = zeroTexts<5>(); ///< `LineAmps` 0 to 4
        std::array<CardText, 5> Chop = zeroTexts<5>(); ///< `Chopper` 1 to 4, then `MotorRes`
    };
    using CamData = std::array<CardText, 5>; ///< `Cam` 1 to 4, then `MotorRes`
    /// For each of the four curve points speed, effort, amps and an empty text: the place of the line current, which travels
    /// with the chopper.
    using CurveTexts = std::array<std::string, 16>;

    [[nodiscard]] Specs getMtrSpecs() const { return {MotorID, MtrSpecs}; }
    void setMtrSpecs(const Specs& specs);
    [[nodiscard]] CurveTexts getMtrData() const;
    void setMtrData(const CurveTexts& texts);
    [[nodiscard]] ChopperData getChopper() const;
    void setChopper(const ChopperData& data);
    [[nodiscard]] CamData getCam() const;
    void setCam(const CamData& data);

    /// False on a bad card, a bad integer or the end of the file; what was read until then stays.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cMotor& source);

    Fixed<36> MotorID;
    /// Wheel diameter from the manufacturer's data and actual (in), gear ratio likewise, supply voltage likewise (volts), motor
    /// terminal voltage at base speed (volts per motor). The diameters are rewritten on reading: "33.00" becomes "33".
    std::array<CardText, 7> MtrSpecs = zeroTexts<7>();
    std::array<CardText, 4> CrvSpeed = zeroTexts<4>();  ///< performance curve, MPH
    std::array<CardText, 4> CrvEffort = zeroTexts<4>(); ///< tractive effort, lb
    std::array<CardText, 4> CrvAmps = zeroTexts<4>();   ///< motor current, amps
    std::int16_t CtrlOpt = 2;                           ///< 1 cam, any other value chopper
    std::array<CardText, 5> LineAmps = zeroTexts<5>();  ///< line current at speed 0 and at each `CrvSpeed`, amps
    /// Chopper efficiency below speed U1 (%), U1 (MPH), efficiency above U1 (%), regenerative braking efficiency (%).
    std::array<CardText, 4> Chopper = zeroTexts<4>();
    std::int16_t FWOpt = 1; ///< 2 the train carries flywheels, any other value it does not
    /// Transition speed, field strength reduction speed (MPH), internal motor circuit resistance at zero train speed and just
    /// after transition (ohms).
    std::array<CardText, 4> Cam = zeroTexts<4>();
    CardText MotorRes = ZeroText; ///< internal resistance of armature and field, ohms

private:
    void readHead(CardReader& reader);
    [[nodiscard]] bool readCurves(CardReader& reader);
    [[nodiscard]] bool readChopper(CardReader& reader);
};

} // namespace kov
