#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/network.hpp"
#include "platform/grid.hpp"
#include "vent/model/node.hpp"

#include <cstdint>
#include <memory>
#include <optional>

namespace kov {

/// All nodes of a data set in file order, which need not be the order of their numbers, with a model for new ones and a
/// one-entry clip: Form 6. Positions outside the list are a Failure, unless an operation says otherwise.
class cNodes {
public:
    Collection<cNode> Nodes;            ///< the nodes in file order
    std::shared_ptr<cNode> DefaultNode; ///< model for new nodes
    std::shared_ptr<cNode> ClipNode;    ///< what `Copy` and `Cut` hold; none until then

    cNodes();

    /// A new node like `DefaultNode`, numbered 0; a position below 1 appends, any other puts it before the entry there.
    std::shared_ptr<cNode> Add(Position position);
    void Copy(Position position);
    void Cut(Position position);
    /// Puts a copy of the clip, numbered 0, before that position, which must exist. An empty clip is a Failure.
    void Paste(Position position);
    void Delete(Position position) { Nodes.remove(position); }
    /// Makes a copy of that entry the model for new nodes.
    void SetDefault(Position position);

    /// The node there, or none if there is no such position.
    [[nodiscard]] std::shared_ptr<cNode> Node(Position position) const;
    [[nodiscard]] std::int16_t Count() const { return Nodes.count(); }
    /// How many nodes are `Branched`.
    [[nodiscard]] std::int16_t BrCount() const;
    /// Fills a grid with one row a node: its number.
    void NodeList(Grid& grid) const;

    /// Appends that many nodes; false at the first that can't be read.
    [[nodiscard]] bool ReadNodes(CardReader& reader, std::int16_t count);
    void WriteNodes(CardWriter& writer) const;

    /// Derives the nodes from the sections that meet at them: takes out nodes that no section uses, adds missing ones and
    /// corrects types that no longer fit the number of branches. Junctions of type 2 to 5 always go back to the type of their
    /// branches, with aspect ratio 1 and angle 20. The table comes filled, line sections ahead of vent sections, and is used
    /// up. A node number outside the table, or a number that two nodes have, is a Failure.
    void BuildNodes(NodeTable& table);

private:
    /// The types that a node is to get; none where it keeps its own.
    struct NewTypes {
        std::optional<std::int16_t> AType;
        std::optional<std::int16_t> TType;
    };
    /// What a node of that many branches gets, by whether the last of them is a vent section.
    [[nodiscard]] static NewTypes DefaultTypes(std::int16_t branches, bool ventLast);
    [[nodiscard]] static NewTypes correctedTypes(std::int16_t type, std::int16_t branches, bool ventLast);
    static void applyTypes(cNode& node, const NewTypes& types, const NodeTable& table, std::int32_t number);
    void correctNodes(NodeTable& table);
    void addMissingNodes(const NodeTable& table);
};

} // namespace kov
