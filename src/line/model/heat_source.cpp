#include "line/model/heat_source.hpp"

#include "core/cards/all_read.hpp"
#include "core/cards/numbers.hpp"

namespace kov {

bool cSSHS::ReadData(CardReader& reader) {
    return allRead([&] {
        const auto line = reader.readLine();
        values_.start = fieldInteger(columns(line, 1, 10));
        values_.stop = fieldInteger(columns(line, 11, 20));
        values_.type = fieldInteger(columns(line, 21, 30));
        values_.sensible = columns(line, 31, 40);
        values_.latent = columns(line, 41, 50);
        values_.identification = columns(line, 51, 80);
        return true;
    });
}

void cSSHS::WriteData(CardWriter& writer) const {
    writer.integer(values_.start).integer(values_.stop).integer(values_.type);
    writer.field(values_.sensible).field(values_.latent).field(values_.identification);
    writer.endCard();
}

} // namespace kov
