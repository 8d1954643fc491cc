#include "rail/model/motor.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"
#include "rail/model/reading.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace kov {
namespace {

/// The number in its shortest general form, with as many of its fifteen digits as ten columns hold.
CardText shortestText(double value) {
    if (!std::isfinite(value)) {
        throw Failure("Overflow");
    }
    if (value == 0) {
        return {"0"};
    }
    std::array<char, 48> buffer{};
    std::string_view text;
    for (int digits = 15; digits > 0; --digits) {
        const auto end =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, digits).ptr;
        std::replace(buffer.data(), end, 'e', 'E');
        text = {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
        if (text.starts_with("0.")) {
            text.remove_prefix(1);
        } else if (text.starts_with("-0.")) {
            text.remove_prefix(1);
            buffer[1] = '-';
        }
        if (text.size() <= CardText{}.view().size()) {
            break;
        }
    }
    return {text};
}

template <std::size_t N> bool readShortCard(CardReader& reader, std::array<CardText, N>& texts) {
    Card4 card;
    if (!ReadCard4(reader, card)) {
        return false;
    }
    takeFields(card, texts);
    return true;
}

} // namespace

void cMotor::setMtrSpecs(const Specs& specs) {
    MotorID = specs.MotorID;
    MtrSpecs = specs.MtrSpecs;
}

cMotor::CurveTexts cMotor::getMtrData() const {
    CurveTexts texts;
    for (std::size_t point = 0; point < CrvSpeed.size(); ++point) {
        texts[4 * point] = CrvSpeed[point].text();
        texts[4 * point + 1] = CrvEffort[point].text();
        texts[4 * point + 2] = CrvAmps[point].text();
    }
    return texts;
}

void cMotor::setMtrData(const CurveTexts& texts) {
    for (std::size_t point = 0; point < CrvSpeed.size(); ++point) {
        CrvSpeed[point].assign(texts[4 * point]);
        CrvEffort[point].assign(texts[4 * point + 1]);
        CrvAmps[point].assign(texts[4 * point + 2]);
    }
}

cMotor::ChopperData cMotor::getChopper() const {
    return {LineAmps, {Chopper[0], Chopper[1], Chopper[2], Chopper[3], MotorRes}};
}

void cMotor::setChopper(const ChopperData& data) {
    LineAmps = data.Amps;
    std::copy_n(data.Chop.begin(), Chopper.size(), Chopper.begin());
    MotorRes = data.Chop.back();
}

cMotor::CamData cMotor::getCam() const { return {Cam[0], Cam[1], Cam[2], Cam[3], MotorRes}; }

void cMotor::setCam(const CamData& data) {
    std::copy_n(data.begin(), Cam.size(), Cam.begin());
    MotorRes = data.back();
}

bool cMotor::ReadData(CardReader& reader) {
    return readsWell([&] {
        readHead(reader);
        if (!readCurves(reader)) {
            return false;
        }
        CtrlOpt = fieldInteger(reader.readLine());
        if (CtrlOpt != CamControl && !readChopper(reader)) {
            return false;
        }
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        takeFields(card, Cam);
        MotorRes.assign(card.field(5));
        return true;
    });
}

void cMotor::readHead(CardReader& reader) {
    const auto line = reader.readLine();
    MotorID.assign(columns(line, 1, 36));
    MtrSpecs[0] = shortestText(fieldValue(columns(line, 41, 50)));
    MtrSpecs[1] = shortestText(fieldValue(columns(line, 51, 60)));
}

bool cMotor::readCurves(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    takeFields(card, std::span(MtrSpecs).subspan(2));
    return readShortCard(reader, CrvSpeed) && readShortCard(reader, CrvEffort) && readShortCard(reader, CrvAmps);
}

bool cMotor::readChopper(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    takeFields(card, LineAmps);
    if (!ReadCard8(reader, card)) {
        return false;
    }
    takeFields(card, Chopper);
    FWOpt = strictInteger(card.field(5));
    return true;
}

void cMotor::WriteData(CardWriter& writer) const {
    writer.field(MotorID).tabTo(41).field(MtrSpecs[0]).field(MtrSpecs[1]).endCard();
    putFields(writer, std::span(MtrSpecs).subspan(2)).endCard();
    putFields(writer, CrvSpeed).endCard();
    putFields(writer, CrvEffort).endCard();
    putFields(writer, CrvAmps).endCard();
    writer.integer(CtrlOpt).endCard();
    if (CtrlOpt != CamControl) {
        putFields(writer, LineAmps).endCard();
        putFields(writer, Chopper).integer(FWOpt).endCard();
    }
    putFields(writer, Cam).field(MotorRes).endCard();
}

void cMotor::XCopy(const cMotor& source) {
    setMtrSpecs(source.getMtrSpecs());
    setMtrData(source.getMtrData());
    CtrlOpt = source.CtrlOpt;
    FWOpt = source.FWOpt;
    setChopper(source.getChopper());
    setCam(source.getCam());
}

} // namespace kov
