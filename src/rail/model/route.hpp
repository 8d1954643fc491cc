#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/network.hpp"
#include "platform/grid.hpp"
#include "platform/item_list.hpp"
#include "rail/model/card_text.hpp"
#include "rail/model/route_cards.hpp"

#include <cstdint>
#include <vector>

namespace kov {

/// A train route, Form 8: who travels it (train groups), its alignment (tracks), the stops or the given performance, and the
/// line sections that it runs through. Cards, in the file's order: title (columns 1 to 68); route card (`RtOrigin`, number of
/// group cards plus one, number of track cards, `Delay`, `TType1`, `VcMin`, `CoastOpt`); group cards; track cards unless
/// `TPOpt` is 3; for `TPOpt` 1 a head card (count, `Npax0`) and the stop cards; for `TPOpt` 2 and 3 a head card (count) and the
/// performance cards; a head card (count, `Dist0`) and one section number a line.
class cRoute {
public:
    using RouteText = Fixed<68>;
    /// The eight values of a route that stand in no list.
    struct Values {
        RouteText RouteID;
        CardText RtOrigin = ZeroText;
        CardText Delay = ZeroText;
        CardText VcMin = ZeroText;
        CardText Dist0 = ZeroText;
        std::int16_t TType1 = 1;
        std::int16_t CoastOpt = 0;
        std::int16_t Npax0 = 0;
    };

    [[nodiscard]] const RouteText& id() const { return RouteID; }
    [[nodiscard]] Values GetRoute() const { return {RouteID, RtOrigin, Delay, VcMin, Dist0, TType1, CoastOpt, Npax0}; }
    void SetRoute(const Values& values);

    /// False on a bad card, a bad integer or the end of the file; what was read until then stays.
    [[nodiscard]] bool ReadData(CardReader& reader, const DataOptions& options);

    /// One row for each element and a blank one at the end. The grid needs 3 columns for groups and stops, 4 for performance
    /// points and 7 for tracks.
    void TGroupList(Grid& grid) const;
    void TStopList(Grid& grid) const;
    void TPerfList(Grid& grid) const;
    void TrackList(Grid& grid) const;
    /// Replaces the list by new objects from the rows; rows whose first cell isn't above 0 are dropped.
    void TGroupSave(const Grid& grid);
    void TStopSave(const Grid& grid);
    void TPerfSave(const Grid& grid);
    void TrackSave(const Grid& grid);
    /// One entry for each section number and a blank one at the end.
    void TSectList(ItemList& list) const;
    /// Replaces the section numbers by all entries but the last; entries that are 0 are dropped.
    void TSectSave(const ItemList& list);

    /// Writes nothing at all for a route without title. More than 32767 cards in one list is a Failure.
    void WriteData(CardWriter& writer, const DataOptions& options) const;
    /// Takes the eight values, and appends the source's groups, tracks, stops and performance points, which both routes then
    /// share: saving a grid always makes new ones. Section numbers are not taken.
    void XCopy(const cRoute& source);

    Collection<cRtGroup> TGroups;
    Collection<cRtTrack> Tracks;
    Collection<cRtStop> TStops;
    Collection<cRtTPerf> TPerfs;
    RouteText RouteID;            ///< title; a blank one counts as none
    CardText RtOrigin = ZeroText; ///< train scheduling origin, ft
    CardText Delay = ZeroText;    ///< first train delay, seconds
    std::int16_t TType1 = 1;      ///< first train type
    CardText VcMin = ZeroText;    ///< minimum coasting velocity, MPH
    std::int16_t CoastOpt = 0;    ///< 0 maintain the minimum speed, 1 accelerate from it
    std::int16_t Npax0 = 0;       ///< passengers on the train at the origin
    CardText Dist0 = ZeroText;    ///< distance from the origin to the first node, ft

    // As the file last read declared them (`NGroupCard` is field 2 as it stands, one more than the cards); writing counts anew.
    std::int16_t NGroupCard = 0;
    std::int16_t NTrackCard = 0;
    std::int16_t NStopCard = 0;
    std::int16_t NPerfCard = 0;
    std::int16_t NSectCard = 0;

private:
    void readRouteCard(const Card8& card);
    [[nodiscard]] bool readStops(CardReader& reader);
    [[nodiscard]] bool readPerformance(CardReader& reader);
    void readSections(CardReader& reader);
    void writeRouteCard(CardWriter& writer) const;
    void writeStops(CardWriter& writer) const;
    void writePerformance(CardWriter& writer) const;
    void writeSections(CardWriter& writer) const;

    std::vector<std::int16_t> TSects; // in the order of travel; the sign tells the direction
};

} // namespace kov
