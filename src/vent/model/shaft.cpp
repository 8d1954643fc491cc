#include "vent/model/shaft.hpp"

#include "core/cards/numbers.hpp"
#include "vent/model/reading.hpp"

#include <string>
#include <utility>

namespace kov {
namespace {

std::string rowOf(const cVentSeg& segment) {
    std::string row;
    for (const auto& value : segment.getVSeg()) {
        if (!row.empty()) {
            row += '\t';
        }
        row += value.view();
    }
    return row;
}

} // namespace

bool cVShaft::ReadData(CardReader& reader, const DataOptions& options) {
    return readWithFlag([&] {
        readTitleCard(reader);
        return readDataCard(reader) && (options.NFans <= 0 || readFanCard(reader)) && readSegments(reader);
    });
}

void cVShaft::readTitleCard(CardReader& reader) {
    const auto line = reader.readLine();
    id = fieldInteger(columns(line, 1, 10));
    VType = fieldInteger(columns(line, 11, 20));
    // One column fewer than is written: the 36th character has never come back from a file.
    Title = columns(line, 21, 55);
}

bool cVShaft::readDataCard(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    DeclaredSegs = fieldInteger(card.field(1));
    NSubSeg = fieldInteger(card.field(2));
    Grate = card.field(3);
    VGrate = card.field(4);
    WSTemp = card.field(5);
    TDB0 = card.field(6);
    TWB0 = card.field(7);
    StackHt = card.field(8);
    return true;
}

bool cVShaft::readFanCard(CardReader& reader) {
    Card4 card;
    if (!ReadCard4(reader, card)) {
        return false;
    }
    FanType = fieldInteger(card.field(1));
    FanOn = card.field(2);
    FanOff = card.field(3);
    FanDir = fieldInteger(card.field(4));
    return true;
}

bool cVShaft::readSegments(CardReader& reader) {
    for (std::int32_t n = 1; n <= DeclaredSegs; ++n) {
        auto segment = std::make_shared<cVentSeg>();
        if (!segment->ReadData(reader)) {
            return false;
        }
        colVSegs.append(std::move(segment));
    }
    return true;
}

void cVShaft::WriteData(CardWriter& writer, const DataOptions& options) const {
    writer.integer(id).integer(VType).field(Title).endCard();
    writer.integer(NSeg()).integer(NSubSeg);
    writer.field(Grate).field(VGrate).field(WSTemp).field(TDB0).field(TWB0).field(StackHt).endCard();
    if (options.NFans > 0) {
        // The direction alone isn't padded to ten columns: its number, one blank, and the line ends.
        writer.integer(FanType).field(FanOn).field(FanOff).text(plainNumber(FanDir)).text(" ").endCard();
    }
    for (const auto& segment : colVSegs) {
        segment->WriteData(writer);
    }
}

std::shared_ptr<cVentSeg> cVShaft::AddVSeg() {
    auto segment = std::make_shared<cVentSeg>();
    colVSegs.append(segment);
    return segment;
}

void cVShaft::ClearVSegs() { colVSegs.clear(); }

void cVShaft::SubList(Grid& grid) const {
    grid.addItem(" ", 0);
    grid.setRows(1);
    for (const auto& segment : colVSegs) {
        grid.addItem(rowOf(*segment));
    }
    if (grid.rows() > 1) {
        grid.removeItem(0);
        grid.addItem(" ");
    }
}

void cVShaft::XCopy(const cVShaft& source) {
    DeclaredSegs = source.NSeg();
    NSubSeg = source.NSubSeg;
    Title = source.Title;
    VType = source.VType;
    Grate = source.Grate;
    VGrate = source.VGrate;
    WSTemp = source.WSTemp;
    TDB0 = source.TDB0;
    TWB0 = source.TWB0;
    StackHt = source.StackHt;
    FanType = source.FanType;
    FanOn = source.FanOn;
    FanOff = source.FanOff;
    FanDir = source.FanDir;
    copySegments(source);
}

void cVShaft::copySegments(const cVShaft& source) {
    const std::int32_t old = NSeg();
    // Ascending on purpose: a target with two or more segments fails here, its callers clear it first.
    for (std::int32_t i = 1; i <= old; ++i) {
        colVSegs.remove(Position(i));
    }
    for (std::int32_t i = 1; i <= DeclaredSegs; ++i) {
        AddVSeg()->XCopy(*source.colVSegs.at(Position(i)));
    }
}

} // namespace kov
