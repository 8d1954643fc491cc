#include "line/model/sections.hpp"

#include "core/cards/failure.hpp"

namespace kov {
namespace {

std::shared_ptr<cSegment> makeDefaultSegment() {
    auto segment = std::make_shared<cSegment>();
    segment->id = 1;
    segment->Title = "New";
    segment->setNSubs(1);
    segment->WWS = "0.";
    segment->AddSubSeg()->setSubSeg({.start = 1, .stop = 1, .wall = "0", .dryBulb = "0", .wetBulb = "0"});
    return segment;
}

std::shared_ptr<cSection> makeDefaultSection(const cSegment& model) {
    auto section = cSection::make();
    section->id = 1;
    section->StartNode = 1;
    section->StopNode = 2;
    section->InitAir = "0.";
    section->AddSeg()->XCopy(model);
    return section;
}

} // namespace

cSections::cSections() : DefaultSegment(makeDefaultSegment()), DefaultSection(makeDefaultSection(*DefaultSegment)) {}

std::shared_ptr<cSection> cSections::Add(Position position) {
    auto section = cSection::make();
    section->XCopy(*DefaultSection);
    if (position.value < 1) {
        SectColl.append(section);
    } else {
        SectColl.insertBefore(position, section);
    }
    return section;
}

void cSections::Copy(Position position) {
    ClipSection = cSection::make();
    ClipSection->XCopy(*Section(position));
}

void cSections::Cut(Position position) {
    Copy(position);
    SectColl.remove(position);
}

void cSections::Delete(Position position) { SectColl.remove(position); }

std::shared_ptr<cSection> cSections::Paste(Position position) {
    if (!ClipSection) {
        throw Failure("Object variable not set");
    }
    auto section = cSection::make();
    section->XCopy(*ClipSection);
    if (position.value >= Count()) {
        SectColl.append(section);
    } else {
        SectColl.insertBefore(position, section);
    }
    return section;
}

void cSections::SetDefault(Position position) {
    DefaultSection = cSection::make();
    DefaultSection->XCopy(*Section(position));
}

bool cSections::ReadSections(CardReader& reader, std::int16_t count) {
    for (std::int32_t done = 0; done < count; ++done) {
        auto section = cSection::make();
        if (!section->ReadData(reader)) {
            return false;
        }
        SectColl.append(std::move(section));
    }
    return true;
}

bool cSections::ReadSegments(CardReader& reader, const DataOptions& options) {
    for (const auto& section : SectColl) {
        if (!section->ReadSegs(reader, options)) {
            return false;
        }
    }
    return true;
}

void cSections::WriteSections(CardWriter& writer) const {
    for (const auto& section : SectColl) {
        section->WriteData(writer);
    }
}

} // namespace kov
