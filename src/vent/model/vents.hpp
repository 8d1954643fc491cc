#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/network.hpp"
#include "platform/grid.hpp"
#include "vent/model/fans.hpp"
#include "vent/model/vent.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// All vent sections of a data set in file order, the defaults for new ones and a one-entry clip: Forms 2B and 5. The n-th
/// group of Form 5 belongs to the n-th section of Form 2B, whatever number it bears. Positions outside the list are a Failure,
/// unless an operation says otherwise.
class cVents {
public:
    std::shared_ptr<cVent> DefaultVent;    ///< model for new vent sections
    std::shared_ptr<cVShaft> DefaultShaft; ///< the shaft first given to `DefaultVent`
    Collection<cVent> Vents;               ///< all vent sections in file order
    std::shared_ptr<cVent> ClipVent;       ///< what `Copy` and `Cut` hold; none until then

    cVents();

    /// A new section like `DefaultVent`, numbered 0; a position below 1 appends, any other puts it before the entry there.
    std::shared_ptr<cVent> Add(Position position);
    void Copy(Position position);
    void Cut(Position position);
    /// A copy of the clip, numbered 0. Unlike `Add`, a position at or past the count appends; a lower one puts it before the
    /// entry there. An empty clip is a Failure.
    std::shared_ptr<cVent> Paste(Position position);
    void Delete(Position position) { Vents.remove(position); }
    /// Makes a copy of that entry, numbered 0, the model for new sections.
    void SetDefault(Position position);

    [[nodiscard]] std::int16_t Count() const { return Vents.count(); }
    [[nodiscard]] const std::shared_ptr<cVent>& vent(Position position) const { return Vents.at(position); }

    /// Appends one row a section (number, nodes, air flow) to a grid that was left with one empty row, and takes that row out.
    void VentList(Grid& grid) const;
    /// Appends one row a section (its number, its shaft's) to a grid left with one empty row, and the shafts to the list. A
    /// shaft that has no number yet gets that of its section.
    void VShaftList(Grid& grid, Collection<cVShaft>& shafts) const;
    /// Appends one row a shaft that has a fan to a grid left with one empty row, and those shafts to the list. A fan type that
    /// doesn't exist is a Failure.
    void FanList(Grid& grid, Collection<cVShaft>& shafts, const cFans& fans) const;
    /// Enters every section at both its nodes, with its number negated.
    void NodeList(NodeTable& table) const;
    /// Adds one record a shaft under the shaft's number; two shafts of one number are a Failure.
    void VentZList(ZsectList& sections) const;

    /// Form 2B: appends that many sections; false at the first that can't be read.
    [[nodiscard]] bool ReadVents(CardReader& reader, std::int16_t count);
    void WriteVents(CardWriter& writer) const;
    /// Form 5: reads the shaft of every section; false at the first that can't be read.
    [[nodiscard]] bool ReadVShafts(CardReader& reader, const DataOptions& options);
    void WriteVShafts(CardWriter& writer, const DataOptions& options) const;
};

} // namespace kov
