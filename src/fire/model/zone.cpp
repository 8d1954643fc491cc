#include "fire/model/zone.hpp"

#include "core/cards/all_read.hpp"
#include "core/cards/numbers.hpp"

#include <string>
#include <string_view>

namespace kov {
namespace {

constexpr std::size_t FieldWidth = 10;
constexpr std::size_t FieldsOnLine = 8;
constexpr std::size_t LineWidth = FieldWidth * FieldsOnLine;

/// The key under which the record of a member is found: " 12".
std::string keyOf(std::string_view member) { return plainNumber(fieldValue(member)); }

} // namespace

void cECZone::ZSectList(ItemList& list, const ZsectList& zsects) const {
    list.clear();
    for (const auto& member : members_) {
        list.addItem(zsects.at(keyOf(member.view())).sid);
    }
}

void cECZone::ZSectSave(const ItemList& list) {
    members_.clear();
    for (int index = 0; index < list.count(); ++index) {
        members_.emplace_back(keyOf(list.item(index)));
    }
}

void cECZone::ZSectStrip(ZsectList& zsects) const {
    for (const auto& member : members_) {
        zsects.at(keyOf(member.view())).used = true;
    }
}

bool cECZone::ReadData(CardReader& reader, std::int16_t NZones) {
    return allRead([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        values_.type = fieldInteger(card.field(1));
        declaredMembers_ = fieldInteger(card.field(2));
        values_.morningDryBulb = card.field(3);
        values_.morningWetBulb = card.field(4);
        values_.eveningDryBulb = card.field(5);
        values_.eveningWetBulb = card.field(6);
        if (NZones >= 2) {
            readMembers(reader);
        }
        return true;
    });
}

void cECZone::readMembers(CardReader& reader) {
    std::string_view line;
    for (std::int32_t done = 0; done < declaredMembers_; ++done) {
        const auto field = static_cast<std::size_t>(done) % FieldsOnLine;
        if (field == 0) {
            line = reader.readLine();
        }
        const auto first = field * FieldWidth + 1;
        members_.emplace_back(trim(columns(line, first, first + FieldWidth - 1)));
    }
}

void cECZone::WriteData(CardWriter& writer) const {
    writeCard(writer, toInt16(static_cast<double>(members_.size())));
    writeMembers(writer);
}

void cECZone::writeCard(CardWriter& writer, std::int16_t count) const {
    writer.integer(values_.type).integer(count);
    writer.field(values_.morningDryBulb).field(values_.morningWetBulb);
    writer.field(values_.eveningDryBulb).field(values_.eveningWetBulb).endCard();
}

void cECZone::writeMembers(CardWriter& writer) const {
    std::size_t onLine = 0;
    for (const auto& member : members_) {
        writer.integer(fieldInteger(member.view()));
        if (++onLine == FieldsOnLine) {
            writer.endCard();
            onLine = 0;
        }
    }
    if (onLine > 0) {
        writer.tabTo(LineWidth + 1).endCard();
    }
}

void cECZone::XCopy(const cECZone& source) {
    values_ = source.values_;
    members_.clear();
}

} // namespace kov
