#pragma once

#include "core/cards/card_io.hpp"
#include "rail/model/card_text.hpp"

#include <cstdint>

namespace kov {

/// A group of like trains that are sent along a route one after the other. Form 8B, one card: `Trains` in columns 1 to 10,
/// `TrainType` in 11 to 20, `Headway` in 21 to 30. Reading gives false at the end of the file or for an integer beyond 16 bits.
class cRtGroup {
public:
    struct Values {
        std::int16_t Trains = 1;
        std::int16_t TrainType = 1;
        std::int16_t Headway = 20;
    };

    [[nodiscard]] Values getRtGroup() const { return {Trains, TrainType, Headway}; }
    [[nodiscard]] bool ReadData(CardReader& reader);
    void setRtGroup(const Values& values);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cRtGroup& source) { setRtGroup(source.getRtGroup()); }

    std::int16_t Trains = 1;    ///< number of trains in the group
    std::int16_t TrainType = 1; ///< position in the train types
    std::int16_t Headway = 20;  ///< seconds between the trains
};

/// A piece of the route's alignment, in the order of travel. Form 8D, one card of seven fields in the order of the members.
/// Reading gives false at the end of the file or for an integer beyond 16 bits.
class cRtTrack {
public:
    struct Values {
        CardText ForwardEnd = ZeroText;
        CardText Radius = ZeroText;
        CardText Grade = ZeroText;
        CardText Elevation = ZeroText;
        CardText MaxSpeed = ZeroText;
        std::int16_t EnergySector = 1;
        std::int16_t CoastParam = 0;
    };

    [[nodiscard]] Values getRtTrack() const;
    [[nodiscard]] bool ReadData(CardReader& reader);
    void setRtTrack(const Values& values);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cRtTrack& source) { setRtTrack(source.getRtTrack()); }

    CardText ForwardEnd = ZeroText; ///< location of the forward end, ft
    CardText Radius = ZeroText;     ///< radius of curvature, ft
    CardText Grade = ZeroText;      ///< %
    CardText Elevation = ZeroText;  ///< elevation of the forward end, ft
    CardText MaxSpeed = ZeroText;   ///< maximum allowable train velocity, MPH
    std::int16_t EnergySector = 1;  ///< energy sector number
    std::int16_t CoastParam = 0;    ///< 1 coasting permitted, 0 not
};

/// A station stop of a route. Form 8C, one card of three fields in the order of the members. Reading gives false at the end of
/// the file.
class cRtStop {
public:
    struct Values {
        CardText StopAt = ZeroText;
        CardText Dwell = ZeroText;
        CardText Persons = ZeroText;
    };

    [[nodiscard]] Values getRtStop() const { return {StopAt, Dwell, Persons}; }
    [[nodiscard]] bool ReadData(CardReader& reader);
    void setRtStop(const Values& values);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cRtStop& source) { setRtStop(source.getRtStop()); }

    CardText StopAt = ZeroText;  ///< where the front of the train stops, ft
    CardText Dwell = ZeroText;   ///< seconds
    CardText Persons = ZeroText; ///< persons entering (+) or leaving (-)
};

/// A point of a train's given speed and time. Form 8E, one card of four fields in the order of the members. Reading gives false
/// at the end of the file.
class cRtTPerf {
public:
    struct Values {
        CardText PerfTime = ZeroText;
        CardText PerfSpeed = ZeroText;
        CardText PwrAccel = ZeroText;
        CardText PwrDecel = ZeroText;
    };

    [[nodiscard]] Values getRtTPerf() const { return {PerfTime, PerfSpeed, PwrAccel, PwrDecel}; }
    [[nodiscard]] bool ReadData(CardReader& reader);
    void setRtTPerf(const Values& values);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cRtTPerf& source) { setRtTPerf(source.getRtTPerf()); }

    CardText PerfTime = ZeroText;  ///< time from the start of the run, seconds
    CardText PerfSpeed = ZeroText; ///< train speed, MPH
    CardText PwrAccel = ZeroText;  ///< power to the resistor grids while accelerating, kW per train
    CardText PwrDecel = ZeroText;  ///< the same while decelerating
};

} // namespace kov
