#include "vent/model/fan.hpp"

#include "vent/model/reading.hpp"

namespace kov {
namespace {

constexpr std::size_t PointsPerCard = 4;

} // namespace

bool cFan::ReadData(CardReader& reader) {
    return readWithFlag([&] {
        const auto line = reader.readLine();
        // The blanks ahead of these fields are the file's own, they go back to it.
        values_.id = columns(line, 1, 36);
        values_.rho = columns(line, 41, 50);
        values_.runup = columns(line, 51, 60);
        values_.QLow = columns(line, 61, 70);
        values_.QHi = columns(line, 71, 80);
        return readCurveCard(reader, 0) && readCurveCard(reader, PointsPerCard);
    });
}

bool cFan::readCurveCard(CardReader& reader, std::size_t firstPoint) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    for (std::size_t i = 0; i < PointsPerCard; ++i) {
        values_.FanP.at(firstPoint + i) = card.field(2 * i + 1);
        values_.FanQ.at(firstPoint + i) = card.field(2 * i + 2);
    }
    return true;
}

void cFan::WriteData(CardWriter& writer) const {
    writer.field(values_.id).tabTo(41);
    writer.field(values_.rho).field(values_.runup).field(values_.QLow).field(values_.QHi);
    writer.endCard();
    writeCurveCard(writer, 0);
    writeCurveCard(writer, PointsPerCard);
}

void cFan::writeCurveCard(CardWriter& writer, std::size_t firstPoint) const {
    for (std::size_t i = firstPoint; i < firstPoint + PointsPerCard; ++i) {
        writer.field(values_.FanP.at(i)).field(values_.FanQ.at(i));
    }
    writer.endCard();
}

} // namespace kov
