#include "line/model/segment.hpp"

#include "core/cards/numbers.hpp"

#include <string>

namespace kov {
namespace {

/// An editor's XEdit source marks with this value what is to stay as it was.
constexpr double LeaveAlone = 9.1E-91;

constexpr std::array HeadTexts{&cSegment::sLen, &cSegment::XArea, &cSegment::Height};
constexpr std::array LossTexts{&cSegment::HLFP, &cSegment::HLFN, &cSegment::HLBP, &cSegment::HLBN, &cSegment::WWS};
constexpr std::array WallAndSoilTexts{&cSegment::WThk,  &cSegment::WDist, &cSegment::WCond, &cSegment::WDiff,
                                      &cSegment::SCond, &cSegment::SDiff, &cSegment::TSink};

template <std::size_t Count>
void copyTexts(cSegment& to, const cSegment& from, const std::array<Fixed<10> cSegment::*, Count>& texts) {
    for (const auto text : texts) {
        to.*text = from.*text;
    }
}

template <std::size_t Width> void editText(Fixed<Width>& to, const Fixed<Width>& from) {
    if (strictValue(from.view()) != LeaveAlone) {
        to = from;
    }
}

template <std::size_t Count>
void editTexts(cSegment& to, const cSegment& from, const std::array<Fixed<10> cSegment::*, Count>& texts) {
    for (const auto text : texts) {
        editText(to.*text, from.*text);
    }
}

std::string rowText(const SSHSValues& source) {
    std::string row = source.identification.text();
    row.append("\t").append(plainNumber(source.start)).append("\t").append(plainNumber(source.stop));
    row.append("\t").append(plainNumber(source.type));
    row.append("\t").append(source.sensible.view()).append("\t").append(source.latent.view());
    return row;
}

std::string rowText(const SubSegValues& group) {
    std::string row = plainNumber(group.start);
    row.append("\t").append(plainNumber(group.stop)).append("\t").append(group.wall.view());
    row.append("\t").append(group.dryBulb.view()).append("\t").append(group.wetBulb.view());
    return row;
}

void emptyToOneRow(Grid& grid) {
    grid.addItem(" ", 0);
    grid.setRows(1);
}

void moveBlankRowToEnd(Grid& grid) {
    if (grid.rows() > 1) {
        grid.removeItem(0);
        grid.addItem(" ");
    }
}

} // namespace

WallTypes::WallTypes() {
    for (int type = 1; type <= Highest; ++type) {
        (*this)[type] = "0.";
    }
}

std::size_t WallTypes::checked(int wallType) {
    if (wallType < 0 || wallType > Highest) {
        throw Failure("Subscript out of range");
    }
    return static_cast<std::size_t>(wallType);
}

cSegment::cSegment() { AddSubSeg(); }

std::int16_t cSegment::NSubs() const { return subs_.at(Position{static_cast<std::int32_t>(subs_.size())})->SStop(); }

std::shared_ptr<cSSHS> cSegment::AddSSHS() {
    auto source = std::make_shared<cSSHS>();
    heatSources_.append(source);
    return source;
}

std::shared_ptr<cSubSeg> cSegment::AddSubSeg() {
    auto group = std::make_shared<cSubSeg>();
    subs_.append(group);
    return group;
}

void cSegment::setSubSegs(std::string_view wall, std::string_view dryBulb, std::string_view wetBulb) {
    for (const auto& group : subs_) {
        group->updateSubSeg(wall, dryBulb, wetBulb);
    }
}

void cSegment::SSHSList(Grid& grid) const {
    emptyToOneRow(grid);
    for (const auto& source : heatSources_) {
        grid.addItem(rowText(source->getSSHS()));
    }
    moveBlankRowToEnd(grid);
}

void cSegment::SubList(Grid& grid) const {
    emptyToOneRow(grid);
    for (const auto& group : subs_) {
        grid.addItem(rowText(group->getSubSeg()));
    }
    moveBlankRowToEnd(grid);
}

void cSegment::XCopy(const cSegment& source) {
    sType = source.sType;
    Title = source.Title;
    copyTexts(*this, source, HeadTexts);
    Fire = source.Fire;
    copyTexts(*this, source, LossTexts);
    statedSubs_ = source.NSubs();
    NSSHS = source.NSSHS;
    for (int type = 1; type <= WallTypes::Highest; ++type) {
        Perim[type] = source.Perim[type];
        Rough[type] = source.Rough[type];
    }
    copyTexts(*this, source, WallAndSoilTexts);
    copySubsegments(source);
    copyHeatSources(source);
}

void cSegment::copySubsegments(const cSegment& source) {
    ClearSubs();
    std::int32_t place = 0;
    do {
        auto group = std::make_shared<cSubSeg>();
        group->XCopy(*source.SubSeg(Position{++place}));
        subs_.append(std::move(group));
    } while (subs_.at(Position{place})->SStop() < statedSubs_);
}

void cSegment::copyHeatSources(const cSegment& source) {
    ClearSSHS();
    for (std::int32_t place = 1; place <= NSSHS; ++place) {
        auto copy = std::make_shared<cSSHS>();
        copy->XCopy(*source.SSHS(Position{place}));
        heatSources_.append(std::move(copy));
    }
}

void cSegment::XEdit(const cSegment& source) {
    sType = source.sType;
    editText(Title, source.Title);
    editTexts(*this, source, HeadTexts);
    Fire = source.Fire;
    editTexts(*this, source, LossTexts);
    statedSubs_ = source.NSubs();
    NSSHS = source.NSSHS;
    for (int type = 1; type <= WallTypes::Highest; ++type) {
        editText(Perim[type], source.Perim[type]);
        Rough[type] = source.Rough[type]; // always: only the perimeter bears the mark
    }
    editTexts(*this, source, WallAndSoilTexts);
}

} // namespace kov
