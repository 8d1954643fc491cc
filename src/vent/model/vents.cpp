#include "vent/model/vents.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"

#include <string>
#include <string_view>
#include <utility>

namespace kov {
namespace {

std::shared_ptr<cVShaft> makeDefaultShaft() {
    auto shaft = std::make_shared<cVShaft>();
    shaft->Title = "New";
    shaft->VType = 1;
    shaft->NSubSeg = 1;
    for (auto* text : {&shaft->Grate, &shaft->VGrate, &shaft->WSTemp, &shaft->TDB0, &shaft->TWB0, &shaft->StackHt,
                       &shaft->FanOn, &shaft->FanOff}) {
        *text = "0.";
    }
    shaft->AddVSeg()->setVSeg({"10.", "10.", "10.", "0.", "0.", "0.", "0."});
    return shaft;
}

std::shared_ptr<cVent> makeDefaultVent(const cVShaft& shaft) {
    auto vent = cVent::make();
    vent->id = 1;
    vent->StartNode = 1;
    vent->StopNode = 2;
    vent->InitAir = "0.";
    vent->uVShaft->XCopy(shaft);
    return vent;
}

/// A new section like that one, still without a number.
std::shared_ptr<cVent> copyOf(const cVent& source) {
    auto vent = cVent::make();
    vent->XCopy(source);
    return vent;
}

std::string_view directionWord(std::int16_t direction) {
    switch (direction) {
    case -1:
        return "Supply";
    case 0:
        return "Off";
    case 1:
        return "Exhaust";
    default:
        return "Undefined";
    }
}

std::string fanRow(const cVent& section, const cFan& fan) {
    const auto& shaft = *section.uVShaft;
    std::string row = plainNumber(section.id) + "-" + plainNumber(shaft.id);
    for (const auto cell :
         {shaft.Title.view(), fan.id().view(), shaft.FanOn.view(), shaft.FanOff.view(), directionWord(shaft.FanDir)}) {
        row += '\t';
        row += cell;
    }
    return row;
}

/// The caller left the grid with one empty row; it goes as soon as there is another.
void dropFirstRow(Grid& grid) {
    if (grid.rows() >= 2) {
        grid.removeItem(0);
    }
}

} // namespace

cVents::cVents() : DefaultShaft(makeDefaultShaft()) { DefaultVent = makeDefaultVent(*DefaultShaft); }

std::shared_ptr<cVent> cVents::Add(Position position) {
    auto vent = copyOf(*DefaultVent);
    if (position.value < 1) {
        Vents.append(vent);
    } else {
        Vents.insertBefore(position, vent);
    }
    return vent;
}

void cVents::Copy(Position position) { ClipVent = copyOf(*Vents.at(position)); }

void cVents::Cut(Position position) {
    Copy(position);
    Vents.remove(position);
}

std::shared_ptr<cVent> cVents::Paste(Position position) {
    if (!ClipVent) {
        throw Failure("There is no vent section to paste");
    }
    auto vent = copyOf(*ClipVent);
    if (position.value >= Count()) {
        Vents.append(vent);
    } else {
        Vents.insertBefore(position, vent);
    }
    return vent;
}

void cVents::SetDefault(Position position) { DefaultVent = copyOf(*Vents.at(position)); }

void cVents::VentList(Grid& grid) const {
    for (const auto& section : Vents) {
        std::string row = plainNumber(section->id) + '\t' + plainNumber(section->StartNode) + '\t';
        row += plainNumber(section->StopNode) + '\t';
        row += section->InitAir.view();
        grid.addItem(row);
    }
    dropFirstRow(grid);
}

void cVents::VShaftList(Grid& grid, Collection<cVShaft>& shafts) const {
    for (const auto& section : Vents) {
        auto& shaft = *section->uVShaft;
        if (shaft.id == 0) {
            shaft.id = section->id;
        }
        grid.addItem(plainNumber(section->id) + '\t' + plainNumber(shaft.id));
        shafts.append(section->uVShaft);
    }
    dropFirstRow(grid);
}

void cVents::FanList(Grid& grid, Collection<cVShaft>& shafts, const cFans& fans) const {
    for (const auto& section : Vents) {
        const auto type = section->uVShaft->FanType;
        if (type <= 0) {
            continue;
        }
        const auto fan = fans.Fan(Position(type));
        if (!fan) {
            throw Failure("The fan type of a shaft doesn't exist");
        }
        grid.addItem(fanRow(*section, *fan));
        shafts.append(section->uVShaft);
    }
    dropFirstRow(grid);
}

void cVents::NodeList(NodeTable& table) const {
    for (const auto& section : Vents) {
        // The minus sign tells a vent section from a line section.
        const auto branch = toInt16(-std::int32_t{section->id});
        table.enter(section->StartNode, branch);
        table.enter(section->StopNode, branch);
    }
}

void cVents::VentZList(ZsectList& sections) const {
    for (const auto& section : Vents) {
        sections.add({.sid = plainNumber(section->uVShaft->id), .vent = true, .used = false});
    }
}

bool cVents::ReadVents(CardReader& reader, std::int16_t count) {
    for (std::int32_t n = 1; n <= count; ++n) {
        auto section = cVent::make();
        if (!section->ReadFile(reader)) {
            return false;
        }
        Vents.append(std::move(section));
    }
    return true;
}

void cVents::WriteVents(CardWriter& writer) const {
    for (const auto& section : Vents) {
        section->WriteData(writer);
    }
}

bool cVents::ReadVShafts(CardReader& reader, const DataOptions& options) {
    for (const auto& section : Vents) {
        if (!section->uVShaft->ReadData(reader, options)) {
            return false;
        }
        section->uVShaft->vent = section;
    }
    return true;
}

void cVents::WriteVShafts(CardWriter& writer, const DataOptions& options) const {
    for (const auto& section : Vents) {
        section->uVShaft->WriteData(writer, options);
    }
}

} // namespace kov
