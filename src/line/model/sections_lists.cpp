// How editors and the other collections see the line sections.
#include "line/model/sections.hpp"

#include "core/cards/numbers.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace kov {
namespace {

/// A grid is never without a row, so a list that was filled still has the row that was there before.
void removeRowFromBefore(Grid& grid) {
    if (grid.rows() > 1) {
        grid.removeItem(0);
    }
}

std::string rowText(const cSection& section) {
    std::string row = plainNumber(section.id);
    row.append("\t").append(plainNumber(section.StartNode)).append("\t").append(plainNumber(section.StopNode));
    row.append("\t").append(plainNumber(section.nLSegs())).append("\t").append(section.InitAir.view());
    return row;
}

std::vector<double> numbersWithoutSign(const ItemList& list) {
    std::vector<double> numbers;
    numbers.reserve(static_cast<std::size_t>(list.count()));
    for (int index = 0; index < list.count(); ++index) {
        numbers.push_back(std::abs(fieldValue(list.item(index))));
    }
    return numbers;
}

} // namespace

void cSections::SectList(Grid& grid) const {
    for (const auto& section : SectColl) {
        grid.addItem(rowText(*section));
    }
    removeRowFromBefore(grid);
}

void cSections::SegList(Grid& grid, Collection<cSegment>& segments) {
    for (const auto& section : SectColl) {
        for (const auto& segment : section->Segments) {
            if (segment->id == 0) {
                segment->id = section->id;
            }
            grid.addItem(plainNumber(section->id) + "\t" + plainNumber(segment->id));
            segments.append(segment);
        }
    }
    removeRowFromBefore(grid);
}

void cSections::SegCol(Collection<cSegment>& segments) const {
    for (const auto& section : SectColl) {
        for (const auto& segment : section->Segments) {
            segments.append(segment);
        }
    }
}

void cSections::SegZList(ZsectList& zsects) const {
    for (const auto& section : SectColl) {
        for (const auto& segment : section->Segments) {
            zsects.add({.sid = plainNumber(segment->id)});
        }
    }
}

void cSections::SectShortList(ItemList& available, const ItemList& used) const {
    available.clear();
    const auto taken = numbersWithoutSign(used);
    for (const auto& section : SectColl) {
        if (std::find(taken.begin(), taken.end(), section->id) == taken.end()) {
            available.addItem(bareNumber(section->id));
        }
    }
}

void cSections::NodeList(NodeTable& nodes) const {
    for (const auto& section : SectColl) {
        nodes.enter(section->StartNode, section->id);
        nodes.enter(section->StopNode, section->id);
    }
}

} // namespace kov
