#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/network.hpp"
#include "line/model/section.hpp"
#include "line/model/segment.hpp"
#include "platform/grid.hpp"
#include "platform/item_list.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// All line sections of a data set in file order, with the models for new sections and segments and a clipboard for one
/// section. Read from the Form 2A cards, their segments from the Form 3 cards. A position outside 1 to `Count()` is a Failure.
class cSections {
public:
    cSections();

    std::shared_ptr<cSegment> DefaultSegment; ///< the model for new segments
    Collection<cSection> SectColl;
    std::shared_ptr<cSection> DefaultSection; ///< the model for new sections
    std::shared_ptr<cSection> ClipSection;    ///< what `Copy` and `Cut` keep; none at first

    /// A new section like the default one, without a number: at the end when the position is below 1, else ahead of it.
    std::shared_ptr<cSection> Add(Position position);
    /// Copies lose the numbers of the section and of its segments.
    void Copy(Position position);
    void Cut(Position position);
    void Delete(Position position);
    /// A new section like the copied one, without a number: at the end when the position is the last or beyond it, else ahead
    /// of it. A Failure when nothing was copied.
    std::shared_ptr<cSection> Paste(Position position);
    void SetDefault(Position position);
    [[nodiscard]] std::int16_t Count() const { return SectColl.count(); }
    [[nodiscard]] const std::shared_ptr<cSection>& Section(Position position) const { return SectColl.at(position); }

    /// Reads that many Form 2A cards; false at the first bad one, those before it stay.
    [[nodiscard]] bool ReadSections(CardReader& reader, std::int16_t count);
    /// Reads the segments of every section; false at the first bad one.
    [[nodiscard]] bool ReadSegments(CardReader& reader, const DataOptions& options);
    void WriteSections(CardWriter& writer) const;

    /// One grid row a section: number, nodes, segments, air flow. The grid comes with one empty row.
    void SectList(Grid& grid) const;
    /// One grid row a segment, and the segments in the same order: row n (from 0) is entry n+1. Segments without a number get
    /// that of their section.
    void SegList(Grid& grid, Collection<cSegment>& segments);
    /// Appends all segments in order.
    void SegCol(Collection<cSegment>& segments) const;
    /// Adds a zone record for every segment; two segments with one number are a Failure.
    void SegZList(ZsectList& zsects) const;
    /// Lists the numbers of the sections that no used entry names, forwards or, with a minus sign, backwards.
    void SectShortList(ItemList& available, const ItemList& used) const;
    /// Enters every section at its start node and at its stop node.
    void NodeList(NodeTable& nodes) const;
};

} // namespace kov
