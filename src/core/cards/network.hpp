#pragma once

#include "core/cards/failure.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace kov {

/// What the models need to know of the data set that they stand in, at the moment of reading or writing.
struct DataOptions {
    std::int16_t TPOpt = 0;  ///< train performance option, Form 1C field 1
    std::int16_t ECLOpt = 0; ///< environmental control load option, Form 1C field 4
    std::int16_t NFans = 0;  ///< count of fan types, Form 1D field 8
    std::int16_t NZones = 0; ///< count of environmental control zones, Form 1E field 3
};

/// Which branches meet at each node: node numbers 0 to 1000, up to five branches. Line sections are entered with their number,
/// vent sections with the negated number. An index beyond these bounds is a Failure.
class NodeTable {
public:
    static constexpr std::int32_t HighestNode = 1000;
    static constexpr std::int32_t MostBranches = 5;

    /// Counts one more branch at the node and stores it.
    void enter(std::int32_t node, std::int16_t branch) {
        auto& row = at(node);
        const auto column = ++row[0];
        if (column < 1 || column > MostBranches) {
            throw Failure("Subscript out of range");
        }
        row[static_cast<std::size_t>(column)] = branch;
    }
    /// Column 0: how many branches; -1 marks a node that has been dealt with.
    [[nodiscard]] std::int16_t branches(std::int32_t node) const { return row(node)[0]; }
    void setBranches(std::int32_t node, std::int16_t count) { at(node)[0] = count; }
    /// The branch in column 1 to 5.
    [[nodiscard]] std::int16_t branch(std::int32_t node, std::int32_t column) const {
        if (column < 0 || column > MostBranches) {
            throw Failure("Subscript out of range");
        }
        return row(node)[static_cast<std::size_t>(column)];
    }

private:
    using Row = std::array<std::int16_t, MostBranches + 1>;
    [[nodiscard]] static std::size_t checked(std::int32_t node) {
        if (node < 0 || node > HighestNode) {
            throw Failure("Subscript out of range");
        }
        return static_cast<std::size_t>(node);
    }
    [[nodiscard]] const Row& row(std::int32_t node) const { return rows_[checked(node)]; }
    Row& at(std::int32_t node) { return rows_[checked(node)]; }

    std::vector<Row> rows_ = std::vector<Row>(HighestNode + 1);
};

/// One line segment or vent shaft as the zone editor sees it.
struct Zsect {
    std::string sid;   ///< its number as plain number text, also its key
    bool vent = false; ///< a vent shaft, not a line segment
    bool used = false; ///< already in a zone
};

/// All `Zsect` records in order, found again by their key. A key twice, or one that isn't there, is a Failure.
class ZsectList {
public:
    void add(Zsect record) {
        auto item = std::make_shared<Zsect>(std::move(record));
        if (!byKey_.emplace(item->sid, item).second) {
            throw Failure("This key is already associated with an element of this collection");
        }
        items_.push_back(std::move(item));
    }
    [[nodiscard]] Zsect& at(const std::string& key) const {
        const auto found = byKey_.find(key);
        if (found == byKey_.end()) {
            throw Failure("No element of this collection has this key");
        }
        return *found->second;
    }
    [[nodiscard]] auto begin() const { return items_.begin(); }
    [[nodiscard]] auto end() const { return items_.end(); }
    [[nodiscard]] std::size_t size() const { return items_.size(); }

private:
    std::vector<std::shared_ptr<Zsect>> items_;
    std::unordered_map<std::string, std::shared_ptr<Zsect>> byKey_;
};

} // namespace kov
