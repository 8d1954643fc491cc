#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "fire/model/fire.hpp"
#include "platform/grid.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// All unsteady heat sources of a data set in file order, from the Form 4 cards. A position outside 1 to `Count()` is a
/// Failure.
class cFires {
public:
    /// Appends a source with the values of a new one.
    std::shared_ptr<cFire> Add();
    void Clear() { fires_.clear(); }
    [[nodiscard]] std::int16_t Count() const { return fires_.count(); }
    void Delete(Position position) { fires_.remove(position); }
    [[nodiscard]] const std::shared_ptr<cFire>& Fire(Position position) const { return fires_.at(position); }

    /// Fills the editor's grid: a row of nine columns a source and a blank row behind them.
    void FireList(Grid& grid) const;

    /// Reads that many sources; false at the first bad one, those before it stay.
    [[nodiscard]] bool ReadFires(CardReader& reader, std::int16_t count);
    void WriteFires(CardWriter& writer) const;

private:
    Collection<cFire> fires_;
};

} // namespace kov
