#include "vent/model/node.hpp"

#include "core/cards/numbers.hpp"
#include "vent/model/reading.hpp"

#include <algorithm>

namespace kov {
namespace {

constexpr std::int16_t PartialMixing = 2;
constexpr std::int16_t Boundary = 3;
constexpr std::size_t SubnodeCells = 7;
constexpr std::size_t BoundaryCells = 6;

constexpr bool hasBranchCard(std::int16_t aeroType) { return aeroType >= 1 && aeroType <= 5; }

} // namespace

void cNode::setId(std::int16_t value) {
    if (value >= 1 && value <= 999) {
        id_ = value;
    }
}

void cNode::setAType(std::int16_t value) {
    // It is the type held so far that decides: a node that a file gave an unknown type keeps it.
    if ((AType_ >= 0 && AType_ <= 5) || AType_ == 7) {
        AType_ = value;
    }
}

void cNode::setTType(std::int16_t value) {
    if (value >= 1 && value <= 3) {
        TType_ = value;
    }
}

void cNode::SetA1(const A1& data) {
    SetA3({data.i1, data.i2, data.i3, data.AR});
    i4_ = data.i4;
}

void cNode::SetA2(const A2& data) {
    i1_ = data.i1;
    i2_ = data.i2;
    i3_ = data.i3;
}

void cNode::SetA3(const A3& data) {
    SetA2({data.i1, data.i2, data.i3});
    AR_ = data.AR;
}

void cNode::SetA4(const A4& data) {
    SetA3({data.i1, data.i2, data.i3, data.AR});
    Angle_ = data.Angle;
}

cNode::T3 cNode::GetT3() const {
    T3 cells;
    std::copy_n(TData_.begin(), cells.size(), cells.begin());
    return cells;
}

void cNode::SetT3(const T3& cells) { std::copy(cells.begin(), cells.end(), TData_.begin()); }

bool cNode::ReadData(CardReader& reader) {
    return readWithFlag([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        id_ = fieldInteger(card.field(1));
        AType_ = fieldInteger(card.field(2));
        TType_ = fieldInteger(card.field(3));
        // The temperatures stand ahead of the branches, the subnodes behind them.
        return (TType_ != Boundary || readCells(reader, BoundaryCells)) && readBranches(reader) &&
               (TType_ != PartialMixing || readCells(reader, SubnodeCells));
    });
}

bool cNode::readCells(CardReader& reader, std::size_t count) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        TData_.at(i) = card.field(i + 1);
    }
    return true;
}

bool cNode::readBranches(CardReader& reader) {
    if (!hasBranchCard(AType_)) {
        return true;
    }
    return AType_ == 2 || AType_ == 3 ? readShortBranches(reader) : readLongBranches(reader);
}

bool cNode::readLongBranches(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    i1_ = fieldInteger(card.field(1));
    i2_ = fieldInteger(card.field(2));
    i3_ = fieldInteger(card.field(3));
    if (AType_ == 1) {
        i4_ = fieldInteger(card.field(4));
        AR_ = card.field(5);
    } else {
        AR_ = card.field(4);
        Angle_ = card.field(5);
    }
    return true;
}

bool cNode::readShortBranches(CardReader& reader) {
    Card4 card;
    if (!ReadCard4(reader, card)) {
        return false;
    }
    i1_ = fieldInteger(card.field(1));
    i2_ = fieldInteger(card.field(2));
    i3_ = fieldInteger(card.field(3));
    if (AType_ == 3) {
        AR_ = card.field(4);
    }
    return true;
}

void cNode::WriteData(CardWriter& writer) const {
    writer.integer(id_).integer(AType_).integer(TType_).endCard();
    if (TType_ == Boundary) {
        writeCells(writer, BoundaryCells);
    }
    if (hasBranchCard(AType_)) {
        writeBranches(writer);
    }
    if (TType_ == PartialMixing) {
        writeCells(writer, SubnodeCells);
    }
}

void cNode::writeCells(CardWriter& writer, std::size_t count) const {
    for (std::size_t i = 0; i < count; ++i) {
        writer.field(TData_.at(i));
    }
    writer.endCard();
}

void cNode::writeBranches(CardWriter& writer) const {
    writer.integer(i1_).integer(i2_).integer(i3_);
    if (AType_ == 1) {
        writer.integer(i4_);
    }
    if (AType_ != 2) {
        writer.field(AR_);
    }
    if (AType_ >= 4) {
        writer.field(Angle_);
    }
    writer.endCard();
}

void cNode::XCopy(const cNode& source) {
    AType_ = source.AType_;
    TType_ = source.TType_;
    switch (AType_) {
    case 1:
        SetA1(source.GetA1());
        break;
    case 2:
        SetA2(source.GetA2());
        break;
    case 3:
        SetA3(source.GetA3());
        break;
    case 4:
        SetA4(source.GetA4());
        break;
    case 5:
        SetA5(source.GetA5());
        break;
    default:
        break;
    }
    if (TType_ == PartialMixing) {
        SetT2(source.GetT2());
    } else if (TType_ == Boundary) {
        SetT3(source.GetT3());
    }
}

} // namespace kov
