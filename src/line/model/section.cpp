#include "line/model/section.hpp"

#include "core/cards/all_read.hpp"
#include "core/cards/numbers.hpp"

namespace kov {

std::shared_ptr<cSection> cSection::make() {
    auto section = std::make_shared<cSection>(Key{});
    section->self_ = section;
    return section;
}

std::shared_ptr<cSegment> cSection::newSegment() const {
    auto segment = std::make_shared<cSegment>();
    segment->Daddy = self_;
    return segment;
}

void cSection::setNLSegs(std::int16_t count, MessageSink& messages) {
    if (count < DeclaredSegs) {
        messages.show(0, "", "Cannot decrease number of segments.\rDelete Segments on the Line Segment Form");
        return;
    }
    if (count == DeclaredSegs) {
        return;
    }
    const Position last{static_cast<std::int32_t>(Segments.size())};
    for (auto place = last.value + 1; place <= count; ++place) {
        const auto added = AddSeg();
        added->XCopy(*Segment(last));
    }
}

std::shared_ptr<cSegment> cSection::Segment(Position position) const {
    return position.value > static_cast<std::int32_t>(Segments.size()) ? nullptr : Segments.at(position);
}

std::shared_ptr<cSegment> cSection::AddSeg() {
    auto segment = newSegment();
    segment->id = id;
    Segments.append(segment);
    DeclaredSegs = Segments.count();
    return segment;
}

std::shared_ptr<cSegment> cSection::InsertSeg(const cSegment& reference, bool before) {
    auto segment = newSegment();
    if (const Position place{Segments.find(reference)}; place.value > 0) {
        if (before) {
            Segments.insertBefore(place, segment);
        } else {
            Segments.insertAfter(place, segment);
        }
    }
    return segment;
}

void cSection::DelSeg(const cSegment& segment) {
    if (const Position place{Segments.find(segment)}; place.value > 0) {
        Segments.remove(place);
    }
}

bool cSection::ReadData(CardReader& reader) {
    return allRead([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        id = fieldInteger(card.field(1));
        StartNode = fieldInteger(card.field(2));
        StopNode = fieldInteger(card.field(3));
        DeclaredSegs = fieldInteger(card.field(4));
        InitAir = card.field(5);
        return true;
    });
}

bool cSection::ReadSegs(CardReader& reader, const DataOptions& options) {
    for (std::int32_t count = 0; count < DeclaredSegs; ++count) {
        auto segment = newSegment();
        if (!segment->ReadData(reader, options)) {
            return false;
        }
        Segments.append(std::move(segment));
    }
    return true;
}

void cSection::WriteData(CardWriter& writer) const {
    writer.integer(id).integer(StartNode).integer(StopNode).integer(nLSegs()).field(InitAir).endCard();
}

void cSection::WriteSegs(CardWriter& writer, const DataOptions& options) const {
    for (const auto& segment : Segments) {
        segment->WriteData(writer, options);
    }
}

void cSection::XCopy(const cSection& source) {
    StartNode = source.StartNode;
    StopNode = source.StopNode;
    InitAir = source.InitAir;
    // Counted once: a section copied into itself doubles, no more.
    const auto last = static_cast<std::int32_t>(source.Segments.size());
    for (std::int32_t place = 1; place <= last; ++place) {
        const auto added = AddSeg();
        added->XCopy(*source.Segments.at(Position{place}));
    }
}

} // namespace kov
