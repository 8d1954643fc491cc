#include "rail/model/train.hpp"

#include "core/cards/numbers.hpp"
#include "rail/model/reading.hpp"

namespace kov {
namespace {

/// A card gives acceleration and deceleration grid by turns; four pairs stand on the first card, three on the second.
constexpr std::size_t DecelerationGrid = 7;
constexpr std::size_t PairsOnFirstCard = 4;

} // namespace

cTrain::Physical cTrain::GetPhysical() const {
    return {TrainID.text(), plainNumber(NCars), plainNumber(NPwrd), plainNumber(NMtr),
            TLength.text(), AFront.text(),      Perim.text(),       Cwt.text()};
}

void cTrain::SetPhysical(const Physical& values) {
    TrainID.assign(values.TrainID);
    NCars = fieldInteger(values.NCars);
    NPwrd = fieldInteger(values.NPwrd);
    NMtr = fieldInteger(values.NMtr);
    TLength.assign(values.TLength);
    AFront.assign(values.AFront);
    Perim.assign(values.Perim);
    Cwt.assign(values.Cwt);
}

void cTrain::setResist(const Resistance& values) {
    CSkin = values.CSkin;
    CTruck = values.CTruck;
    CFront = values.CFront;
    CRR1 = values.CRR1;
    CRR2 = values.CRR2;
    CRR3 = values.CRR3;
    ARRP = values.ARRP;
}

void cTrain::setHtLoads(const HeatLoads& values) {
    SensAuxE = values.SensAuxE;
    LatentAuxE = values.LatentAuxE;
    SensPac = values.SensPac;
    LatentPac = values.LatentPac;
    PwrAuxE = values.PwrAuxE;
    PwrPac = values.PwrPac;
}

bool cTrain::ReadData(CardReader& reader, const DataOptions& options) {
    return readsWell([&] {
        readHead(reader);
        if (!readCoefficients(reader) || !readHeatLoads(reader) || !readGrids(reader) || !readWeight(reader)) {
            return false;
        }
        if (options.TPOpt != 3 && !Motor.ReadData(reader)) {
            return false;
        }
        if (options.TPOpt == 1 && !readRates(reader)) {
            return false;
        }
        return Motor.FWOpt != cMotor::Carried || FlyWheel.ReadData(reader);
    });
}

void cTrain::readHead(CardReader& reader) {
    const auto line = reader.readLine();
    TrainID.assign(columns(line, 1, 36));
    NCars = fieldInteger(columns(line, 41, 50));
    NPwrd = fieldInteger(columns(line, 51, 60));
    // This card isn't split like the others: leading blanks stay.
    TLength.assign(columns(line, 61, 70));
    AFront.assign(columns(line, 71, 80));
}

bool cTrain::readCoefficients(CardReader& reader) {
    Card4 card;
    if (!ReadCard4(reader, card)) {
        return false;
    }
    Perim.assign(card.field(1));
    CSkin.assign(card.field(2));
    CTruck.assign(card.field(3));
    CFront.assign(card.field(4));
    return true;
}

bool cTrain::readHeatLoads(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    SensAuxE.assign(card.field(1));
    LatentAuxE.assign(card.field(2));
    SensPac.assign(card.field(3));
    LatentPac.assign(card.field(4));
    PwrAuxE.assign(card.field(5));
    PwrPac.assign(card.field(6));
    return true;
}

bool cTrain::readGrids(CardReader& reader) {
    Card8 card;
    for (std::size_t i = 0; i < DecelerationGrid; ++i) {
        const bool firstOfCard = i == 0 || i == PairsOnFirstCard;
        if (firstOfCard && !ReadCard8(reader, card)) {
            return false;
        }
        const auto pair = i % PairsOnFirstCard;
        RGrid[i].assign(card.field(2 * pair + 1));
        RGrid[DecelerationGrid + i].assign(card.field(2 * pair + 2));
    }
    return true;
}

bool cTrain::readWeight(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    Cwt.assign(card.field(1));
    NMtr = strictInteger(card.field(2));
    CRR1.assign(card.field(3));
    CRR2.assign(card.field(4));
    CRR3.assign(card.field(5));
    ARRP.assign(card.field(6));
    return true;
}

bool cTrain::readRates(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    takeFields(card, Rates);
    return true;
}

void cTrain::WriteData(CardWriter& writer, const DataOptions& options) const {
    writer.field(TrainID).tabTo(41).integer(NCars).integer(NPwrd).field(TLength).field(AFront).endCard();
    writer.field(Perim).field(CSkin).field(CTruck).field(CFront).endCard();
    writer.field(SensAuxE).field(LatentAuxE).field(SensPac).field(LatentPac).field(PwrAuxE).field(PwrPac).endCard();
    writeGrids(writer);
    writer.field(Cwt).integer(NMtr).field(CRR1).field(CRR2).field(CRR3).field(ARRP).endCard();
    if (options.TPOpt != 3) {
        Motor.WriteData(writer);
    }
    if (options.TPOpt == 1) {
        putFields(writer, Rates).endCard();
        if (Motor.FWOpt == cMotor::Carried) {
            FlyWheel.WriteData(writer);
        }
    }
}

void cTrain::writeGrids(CardWriter& writer) const {
    for (std::size_t i = 0; i < DecelerationGrid; ++i) {
        writer.field(RGrid[i]).field(RGrid[DecelerationGrid + i]);
        if (i + 1 == PairsOnFirstCard || i + 1 == DecelerationGrid) {
            writer.endCard();
        }
    }
}

void cTrain::XCopy(const cTrain& source) {
    SetPhysical(source.GetPhysical());
    setResist(source.getResist());
    setHtLoads(source.getHtLoads());
    setRGrid(source.getRGrid());
    setRates(source.getRates());
    Motor.XCopy(source.Motor);
    if (Motor.FWOpt == cMotor::Carried) {
        FlyWheel.XCopy(source.FlyWheel);
    }
}

} // namespace kov
