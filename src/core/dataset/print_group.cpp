#include "core/dataset/print_group.hpp"

#include "core/cards/numbers.hpp"

namespace kov {

void cPGroup::readCard(const Card8& card) {
    PGroupValues values;
    values.NIntervals = fieldInteger(card.field(1));
    values.IntLength = plainNumber(strictValue(card.field(2)));
    values.AbbrevRatio = fieldInteger(card.field(3));
    values.SummaryOpt = fieldInteger(card.field(4));
    values.AeroCycles = fieldInteger(card.field(5));
    values.ThermoCycles = fieldInteger(card.field(6));
    setPGroup(values);
}

void cPGroup::WriteData(CardWriter& writer) const {
    writer.integer(values_.NIntervals).field(values_.IntLength).integer(values_.AbbrevRatio);
    writer.integer(values_.SummaryOpt).integer(values_.AeroCycles).integer(values_.ThermoCycles);
    writer.endCard();
}

} // namespace kov
