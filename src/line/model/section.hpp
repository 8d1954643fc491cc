#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/fixed.hpp"
#include "core/cards/network.hpp"
#include "core/cards/sinks.hpp"
#include "line/model/segment.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// A line section: a branch of the tunnel network between two nodes, with its line segments in line order. Its numbers come
/// from one Form 2A card: number, start node, stop node, number of segments, initial air flow in fields of ten columns; the
/// segments come later, from Form 3.
class cSection {
    struct Key {};

public:
    /// A section knows itself, to be its segments' `Daddy`, so it is only made shared.
    [[nodiscard]] static std::shared_ptr<cSection> make();
    explicit cSection(Key /*only make() has it*/) {}
    cSection(const cSection&) = delete;
    cSection& operator=(const cSection&) = delete;
    ~cSection() = default;

    std::int16_t id = 0; ///< 0 until the engineer numbers it
    std::int16_t StartNode = 0;
    std::int16_t StopNode = 0;
    Fixed<10> InitAir;             ///< initial air flow, CFM
    std::int16_t DeclaredSegs = 0; ///< segments stated by the card or left by `AddSeg`; may differ from how many there are
    Collection<cSegment> Segments;

    /// How many segments there are.
    [[nodiscard]] std::int16_t nLSegs() const { return Segments.count(); }
    /// Raises the count by copies of the last segment. The new count is held against `DeclaredSegs`: a lower one is refused
    /// with a message. Raising a section without any segment is a Failure.
    void setNLSegs(std::int16_t count, MessageSink& messages);
    /// The segment at the place, none beyond the last; below 1 is a Failure.
    [[nodiscard]] std::shared_ptr<cSegment> Segment(Position position) const;
    /// Appends a new segment with this section's number and counts it as declared.
    std::shared_ptr<cSegment> AddSeg();
    /// A new segment without a number beside the reference one, which is found by identity; when that isn't here the new one
    /// is added nowhere. `DeclaredSegs` stays.
    std::shared_ptr<cSegment> InsertSeg(const cSegment& reference, bool before);
    /// Removes that very segment, if it is here. `DeclaredSegs` stays.
    void DelSeg(const cSegment& segment);

    /// Reads the Form 2A card; false at the end of the file and for a whole number outside 16 bits.
    [[nodiscard]] bool ReadData(CardReader& reader);
    /// Reads `DeclaredSegs` segments; stops with false at the first that can't be read.
    [[nodiscard]] bool ReadSegs(CardReader& reader, const DataOptions& options);
    /// Writes the Form 2A card, with the number of segments that there are.
    void WriteData(CardWriter& writer) const;
    void WriteSegs(CardWriter& writer, const DataOptions& options) const;
    /// Takes over nodes, air flow and copies of all segments, behind those already here; not the number.
    void XCopy(const cSection& source);

private:
    [[nodiscard]] std::shared_ptr<cSegment> newSegment() const;

    std::weak_ptr<cSection> self_;
};

} // namespace kov
