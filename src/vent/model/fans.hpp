#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "platform/item_list.hpp"
#include "vent/model/fan.hpp"
#include "vent/model/impulse_fan.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// The fan types and the impulse fans of a data set, each with a one-entry clip: Form 7. The order of the fan types matters,
/// because shafts refer to them by position (1 = first): a fan put in or taken out moves every reference behind it.
/// Positions outside a list are a Failure, unless an operation says otherwise.
class cFans {
public:
    Collection<cFan> Fans;           ///< fan types in file order
    std::shared_ptr<cFan> ClipFan;   ///< what `Copy` and `Cut` hold; none until then
    Collection<cIFan> IFans;         ///< impulse fans in file order
    std::shared_ptr<cIFan> ClipIFan; ///< what `CopyI` and `CutI` hold; none until then

    /// A bare fan type; position 0 appends, any other puts it before the fan there.
    std::shared_ptr<cFan> Add(Position position);
    /// The same for impulse fans.
    std::shared_ptr<cIFan> AddI(Position position);

    void Copy(Position position);
    void Cut(Position position);
    void CopyI(Position position);
    void CutI(Position position);

    [[nodiscard]] std::int16_t Count() const { return Fans.count(); }
    [[nodiscard]] std::int16_t ICount() const { return IFans.count(); }

    /// Removes the fan type; a position above the count does nothing.
    void Delete(Position position);
    /// Removes the impulse fan; here a position above the count is a Failure.
    void DeleteI(Position position) { IFans.remove(position); }

    /// The fan type there, or none if the position is above the count.
    [[nodiscard]] std::shared_ptr<cFan> Fan(Position position) const;
    /// The impulse fan there, or none if the position is above the count.
    [[nodiscard]] std::shared_ptr<cIFan> IFan(Position position) const;

    /// Puts a copy of the clip before that position; an empty clip is a Failure, and so is a position past the end.
    void Paste(Position position);
    void PasteI(Position position);

    /// Fills a list so that the index of an entry is the number stored as `FanType`: "0. None", "1. Main", ...
    void List(ItemList& list) const;

    /// Appends that many fan types, then that many impulse fans; false at the first that can't be read.
    [[nodiscard]] bool ReadFans(CardReader& reader, std::int16_t fans, std::int16_t impulseFans);
    void WriteFans(CardWriter& writer) const;
};

} // namespace kov
