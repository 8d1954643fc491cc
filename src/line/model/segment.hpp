#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/fixed.hpp"
#include "core/cards/network.hpp"
#include "line/model/heat_source.hpp"
#include "line/model/subsegment.hpp"
#include "platform/grid.hpp"

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

namespace kov {

class cSection;

/// One text for each of the wall types 1 to 8 of a segment, in feet. Place 0 exists and is not used; a place below 0 or above
/// 8 is a Failure.
class WallTypes {
public:
    static constexpr int Highest = 8;

    WallTypes();
    [[nodiscard]] Fixed<10>& operator[](int wallType) { return values_[checked(wallType)]; }
    [[nodiscard]] const Fixed<10>& operator[](int wallType) const { return values_[checked(wallType)]; }

private:
    [[nodiscard]] static std::size_t checked(int wallType);
    std::array<Fixed<10>, Highest + 1> values_;
};

/// A line segment: a stretch of tunnel of uniform geometry inside a line section, with its head losses, wall and soil data,
/// subsegment temperatures and steady-state heat sources. All its numbers come from the Form 3 card group: header (number,
/// type, title), lengths, two cards of wall types (3B), head losses and counts (3C), heat sources (3D), subsegments (3E) and,
/// when the environmental control load is on, wall and soil (3F). Reals stay the text of the card.
class cSegment {
public:
    /// A new segment has one subsegment group and no heat source.
    cSegment();
    cSegment(const cSegment&) = delete;
    cSegment& operator=(const cSegment&) = delete;
    ~cSegment() = default;

    std::weak_ptr<cSection> Daddy; ///< the section that owns it
    std::int16_t id = 0;
    std::int16_t sType = 1; ///< segment type, 1 to 16
    Fixed<50> Title;
    Fixed<10> sLen{"0."};   ///< length, ft
    Fixed<10> XArea{"0."};  ///< cross-sectional area, sq ft
    Fixed<10> Height{"0."}; ///< stack height, ft
    std::int16_t Fire = 0;  ///< 1 in a fire segment
    Fixed<10> HLFP{"0."};   ///< head loss coefficient at the forward limit, positive flow
    Fixed<10> HLFN{"0."};   ///< at the forward limit, reverse flow
    Fixed<10> HLBP{"0."};   ///< at the back limit, positive flow
    Fixed<10> HLBN{"0."};   ///< at the back limit, reverse flow
    Fixed<10> WWS{"0"};     ///< wetted surface, %
    std::int16_t NSSHS = 0; ///< heat sources stated on the card; the list may hold more or fewer until the next writing
    WallTypes Perim;        ///< perimeter by wall type, ft
    WallTypes Rough;        ///< roughness by wall type, ft
    Fixed<10> WThk{"0."};   ///< tunnel wall thickness, ft
    Fixed<10> WDist{"0."};  ///< distance to the face of the adjacent tunnel, ft
    Fixed<10> WCond{"0."};  ///< wall thermal conductivity, Btu/ft-hr-deg F
    Fixed<10> WDiff{"0."};  ///< wall thermal diffusivity, sq ft/hr
    Fixed<10> SCond{"0."};  ///< soil thermal conductivity, Btu/ft-hr-deg F
    Fixed<10> SDiff{"0."};  ///< soil thermal diffusivity, sq ft/hr
    Fixed<10> TSink{"0."};  ///< deep sink temperature, deg F

    /// The number of subsegments: where the last group of the list stops. A Failure without any group.
    [[nodiscard]] std::int16_t NSubs() const;
    /// Stores the number that a card states; `NSubs` never answers with it.
    void setNSubs(std::int16_t count) { statedSubs_ = count; }
    /// The number that was stored last, by `setNSubs`, a reading, a writing or a copy.
    [[nodiscard]] std::int16_t statedSubs() const { return statedSubs_; }

    /// Append an entry with the values of a new one; no count changes.
    std::shared_ptr<cSSHS> AddSSHS();
    std::shared_ptr<cSubSeg> AddSubSeg();
    void ClearSSHS() { heatSources_.clear(); }
    void ClearSubs() { subs_.clear(); }
    /// Gives every subsegment group the same three temperatures.
    void setSubSegs(std::string_view wall, std::string_view dryBulb, std::string_view wetBulb);
    /// Entries by place; outside the list is a Failure.
    [[nodiscard]] const std::shared_ptr<cSubSeg>& SubSeg(Position position) const { return subs_.at(position); }
    [[nodiscard]] const std::shared_ptr<cSSHS>& SSHS(Position position) const { return heatSources_.at(position); }

    /// Fill an editor's grid, one row an entry and a blank row behind them.
    void SSHSList(Grid& grid) const;
    void SubList(Grid& grid) const;

    /// Reads one card group; false when anything in it can't be read.
    [[nodiscard]] bool ReadData(CardReader& reader, const DataOptions& options);
    /// Writes one card group and stores the counts that it wrote. A Failure without any subsegment group.
    void WriteData(CardWriter& writer, const DataOptions& options);
    /// Takes over everything but the number and the owner. Subsegment groups are copied up to the first that reaches the
    /// source's `NSubs`, heat sources as many as its `NSSHS`; fewer than that is a Failure.
    void XCopy(const cSegment& source);
    /// Takes over what the source sets: a text whose value is 9.1E-91 is left alone. `Rough` and whole numbers have no such
    /// mark and always come along. A text that is no number is a Failure.
    void XEdit(const cSegment& source);

private:
    [[nodiscard]] bool readCards(CardReader& reader, const DataOptions& options);
    void readHeader(CardReader& reader);
    void readWallTypes(CardReader& reader);
    [[nodiscard]] bool readHeatSources(CardReader& reader);
    [[nodiscard]] bool readSubsegments(CardReader& reader);
    [[nodiscard]] bool readWallAndSoil(CardReader& reader);
    void writeHeader(CardWriter& writer) const;
    void writeLosses(CardWriter& writer) const;
    void writeWallAndSoil(CardWriter& writer) const;
    void copySubsegments(const cSegment& source);
    void copyHeatSources(const cSegment& source);

    std::int16_t statedSubs_ = 0;
    Collection<cSubSeg> subs_;
    Collection<cSSHS> heatSources_;
};

} // namespace kov
