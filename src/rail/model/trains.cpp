#include "rail/model/trains.hpp"

#include "core/cards/failure.hpp"
#include "rail/model/reading.hpp"

#include <utility>

namespace kov {

std::shared_ptr<cTrain> cTrains::Add(Position before) {
    auto train = std::make_shared<cTrain>();
    if (before.value != 0) {
        trains_.insertBefore(before, train);
    } else {
        trains_.append(train);
    }
    return train;
}

void cTrains::Copy(Position index) {
    TrainBuffer = std::make_shared<cTrain>();
    TrainBuffer->XCopy(*trains_.at(index));
}

void cTrains::Cut(Position index) {
    Copy(index);
    Delete(index);
}

void cTrains::Paste(Position index) {
    if (!TrainBuffer) {
        throw Failure("Nothing has been copied");
    }
    auto train = std::make_shared<cTrain>();
    train->XCopy(*TrainBuffer);
    trains_.insertBefore(index, std::move(train));
}

bool cTrains::ReadTrains(CardReader& reader, std::int16_t count, const DataOptions& options) {
    return readObjects(reader, count, trains_, options);
}

void cTrains::WriteTrains(CardWriter& writer, const DataOptions& options) const {
    for (const auto& train : trains_) {
        train->WriteData(writer, options);
    }
}

} // namespace kov
