#include "rail/model/route_cards.hpp"

#include "core/cards/numbers.hpp"
#include "rail/model/reading.hpp"

namespace kov {

bool cRtGroup::ReadData(CardReader& reader) {
    return readsWell([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        Trains = fieldInteger(card.field(1));
        TrainType = fieldInteger(card.field(2));
        Headway = fieldInteger(card.field(3));
        return true;
    });
}

void cRtGroup::setRtGroup(const Values& values) {
    Trains = values.Trains;
    TrainType = values.TrainType;
    Headway = values.Headway;
}

void cRtGroup::WriteData(CardWriter& writer) const { writer.integer(Trains).integer(TrainType).integer(Headway).endCard(); }

cRtTrack::Values cRtTrack::getRtTrack() const {
    return {ForwardEnd, Radius, Grade, Elevation, MaxSpeed, EnergySector, CoastParam};
}

bool cRtTrack::ReadData(CardReader& reader) {
    return readsWell([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        ForwardEnd.assign(card.field(1));
        Radius.assign(card.field(2));
        Grade.assign(card.field(3));
        Elevation.assign(card.field(4));
        MaxSpeed.assign(card.field(5));
        EnergySector = fieldInteger(card.field(6));
        CoastParam = fieldInteger(card.field(7));
        return true;
    });
}

void cRtTrack::setRtTrack(const Values& values) {
    ForwardEnd = values.ForwardEnd;
    Radius = values.Radius;
    Grade = values.Grade;
    Elevation = values.Elevation;
    MaxSpeed = values.MaxSpeed;
    EnergySector = values.EnergySector;
    CoastParam = values.CoastParam;
}

void cRtTrack::WriteData(CardWriter& writer) const {
    writer.field(ForwardEnd).field(Radius).field(Grade).field(Elevation).field(MaxSpeed);
    writer.integer(EnergySector).integer(CoastParam).endCard();
}

bool cRtStop::ReadData(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    StopAt.assign(card.field(1));
    Dwell.assign(card.field(2));
    Persons.assign(card.field(3));
    return true;
}

void cRtStop::setRtStop(const Values& values) {
    StopAt = values.StopAt;
    Dwell = values.Dwell;
    Persons = values.Persons;
}

void cRtStop::WriteData(CardWriter& writer) const { writer.field(StopAt).field(Dwell).field(Persons).endCard(); }

bool cRtTPerf::ReadData(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    PerfTime.assign(card.field(1));
    PerfSpeed.assign(card.field(2));
    PwrAccel.assign(card.field(3));
    PwrDecel.assign(card.field(4));
    return true;
}

void cRtTPerf::setRtTPerf(const Values& values) {
    PerfTime = values.PerfTime;
    PerfSpeed = values.PerfSpeed;
    PwrAccel = values.PwrAccel;
    PwrDecel = values.PwrDecel;
}

void cRtTPerf::WriteData(CardWriter& writer) const {
    writer.field(PerfTime).field(PerfSpeed).field(PwrAccel).field(PwrDecel).endCard();
}

} // namespace kov
