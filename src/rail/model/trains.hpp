#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/network.hpp"
#include "rail/model/train.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// All train types of the data set, numbered from 1 (Form 9), and the clipboard of the train editor. A position outside the
/// list is a Failure.
class cTrains {
public:
    [[nodiscard]] std::shared_ptr<cTrain> Train(Position index) const { return trains_.at(index); }
    [[nodiscard]] std::int16_t Count() const { return trains_.count(); }
    /// A new train ahead of `before`; at the end for position 0.
    std::shared_ptr<cTrain> Add(Position before);
    void Delete(Position index) { trains_.remove(index); }
    /// Puts a copy of the train into `TrainBuffer`.
    void Copy(Position index);
    void Cut(Position index);
    /// A copy of `TrainBuffer` ahead of the position. With an empty `TrainBuffer` a Failure.
    void Paste(Position index);
    /// False as soon as one train can't be read; the ones before it stay.
    [[nodiscard]] bool ReadTrains(CardReader& reader, std::int16_t count, const DataOptions& options);
    void WriteTrains(CardWriter& writer, const DataOptions& options) const;

    std::shared_ptr<cTrain> TrainBuffer; ///< empty until the first copy or cut

private:
    Collection<cTrain> trains_;
};

} // namespace kov
