#include "vent/model/nodes.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"

#include <cstdlib>
#include <utility>

namespace kov {
namespace {

constexpr std::int32_t HighestNewNode = 999;

std::shared_ptr<cNode> makeDefaultNode() {
    auto node = std::make_shared<cNode>();
    node->SetA4({.i1 = 1, .i2 = 2, .i3 = 3, .AR = "1.", .Angle = "10."});
    return node;
}

std::shared_ptr<cNode> copyOf(const cNode& source) {
    auto node = std::make_shared<cNode>();
    node->XCopy(source);
    return node;
}

/// Line sections are entered ahead of vent sections, so the last entry tells whether there is a vent section at all.
bool ventIsLast(const NodeTable& table, std::int32_t number, std::int16_t branches) {
    return table.branch(number, branches) < 0;
}

/// The section's number without the sign that tells what it is.
std::int16_t sectionAt(const NodeTable& table, std::int32_t number, std::int32_t column) {
    return toInt16(std::abs(std::int32_t{table.branch(number, column)}));
}

} // namespace

cNodes::cNodes() : DefaultNode(makeDefaultNode()) {}

std::shared_ptr<cNode> cNodes::Add(Position position) {
    auto node = copyOf(*DefaultNode);
    if (position.value < 1) {
        Nodes.append(node);
    } else {
        Nodes.insertBefore(position, node);
    }
    return node;
}

void cNodes::Copy(Position position) { ClipNode = copyOf(*Nodes.at(position)); }

void cNodes::Cut(Position position) {
    Copy(position);
    Nodes.remove(position);
}

void cNodes::Paste(Position position) {
    if (!ClipNode) {
        throw Failure("There is no node to paste");
    }
    Nodes.insertBefore(position, copyOf(*ClipNode));
}

void cNodes::SetDefault(Position position) { DefaultNode = copyOf(*Nodes.at(position)); }

std::shared_ptr<cNode> cNodes::Node(Position position) const {
    return position.value < 1 || position.value > Count() ? nullptr : Nodes.at(position);
}

std::int16_t cNodes::BrCount() const {
    std::int16_t count = 0;
    for (const auto& node : Nodes) {
        if (node->Branched()) {
            ++count;
        }
    }
    return count;
}

void cNodes::NodeList(Grid& grid) const {
    grid.setRows(1);
    for (const auto& node : Nodes) {
        grid.addItem(plainNumber(node->id()));
    }
    if (grid.rows() >= 2) {
        grid.removeItem(0);
    }
}

bool cNodes::ReadNodes(CardReader& reader, std::int16_t count) {
    for (std::int32_t n = 1; n <= count; ++n) {
        auto node = std::make_shared<cNode>();
        if (!node->ReadData(reader)) {
            return false;
        }
        Nodes.append(std::move(node));
    }
    return true;
}

void cNodes::WriteNodes(CardWriter& writer) const {
    for (const auto& node : Nodes) {
        node->WriteData(writer);
    }
}

cNodes::NewTypes cNodes::DefaultTypes(std::int16_t branches, bool ventLast) {
    switch (branches) {
    case 1:
        return {.AType = 0, .TType = 3};
    case 2:
        return {.AType = 0, .TType = 1};
    case 3:
        return {.AType = ventLast ? 3 : 2, .TType = 1};
    case 4:
        return {.AType = ventLast ? 7 : 1, .TType = 1};
    default:
        return {.AType = 7, .TType = 1};
    }
}

cNodes::NewTypes cNodes::correctedTypes(std::int16_t type, std::int16_t branches, bool ventLast) {
    const auto defaults = DefaultTypes(branches, ventLast);
    switch (type) {
    case 0:
        // A straight node of one or two branches keeps its kind, only the mixing follows the branches.
        return branches == 1 || branches == 2 ? NewTypes{.AType = std::nullopt, .TType = defaults.TType} : defaults;
    case 1:
        return branches == 4 ? NewTypes{} : defaults;
    case 2:
    case 3:
    case 4:
    case 5:
        return defaults;
    case 7:
        return branches < 3 ? defaults : NewTypes{};
    default:
        return {};
    }
}

void cNodes::applyTypes(cNode& node, const NewTypes& types, const NodeTable& table, std::int32_t number) {
    if (types.AType) {
        node.setAType(*types.AType);
        const auto section = [&](std::int32_t column) { return sectionAt(table, number, column); };
        if (*types.AType == 1) {
            node.SetA1({.i1 = section(1), .i2 = section(2), .i3 = section(3), .i4 = section(4), .AR = "1."});
        } else if (*types.AType > 1) {
            // All other types take the widest form, even where they use less of it.
            node.SetA4({.i1 = section(1), .i2 = section(2), .i3 = section(3), .AR = "1.", .Angle = "20."});
        }
    }
    if (types.TType) {
        node.setTType(*types.TType);
    }
}

void cNodes::BuildNodes(NodeTable& table) {
    correctNodes(table);
    addMissingNodes(table);
}

void cNodes::correctNodes(NodeTable& table) {
    for (std::int32_t i = Count(); i >= 1; --i) {
        const auto node = Nodes.at(Position(i));
        const auto number = node->id();
        const auto branches = table.branches(number);
        if (branches == 0) {
            Nodes.remove(Position(i));
            continue;
        }
        const bool ventLast = ventIsLast(table, number, branches);
        applyTypes(*node, correctedTypes(node->AType(), branches, ventLast), table, number);
        table.setBranches(number, -1);
    }
}

void cNodes::addMissingNodes(const NodeTable& table) {
    for (std::int32_t number = 1; number <= HighestNewNode; ++number) {
        const auto branches = table.branches(number);
        if (branches <= 0) {
            continue;
        }
        const auto node = Add(Position(0));
        node->setId(static_cast<std::int16_t>(number));
        applyTypes(*node, DefaultTypes(branches, ventIsLast(table, number, branches)), table, number);
    }
}

} // namespace kov
