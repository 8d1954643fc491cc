#include "line/editor/segment_layout.hpp"

#include "line/editor/placing.hpp"

#include <array>
#include <stdexcept>

namespace kov {
namespace {

constexpr double Margin = Placer::Margin, Gap = Placer::Gap, Line = Placer::Line, Step = Line + Gap;
constexpr double WindowWidth = SegmentWindowWidth.value, ListWidth = 1700, Right = Margin + ListWidth + Margin;
constexpr double Width = WindowWidth - Right - Margin, StripTop = 480, StripHeight = 5080, ButtonsTop = 5655;
constexpr double ButtonWidth = 1200, ButtonHeight = 405;
// Of the pages: below the tabs, inside the strip's edges.
constexpr double PageTop = StripTop + 450, PageLeft = Right + Margin, PageWidth = Width - 2 * Margin;
constexpr double PageHeight = StripTop + StripHeight - Margin - PageTop;
constexpr double BoxWidth = 1050;
// The general page below the type: geometry and head losses on the left, wall types on the right.
constexpr double GroupsTop = PageTop + 420, GroupsHeight = PageTop + PageHeight - GroupsTop;
constexpr double LeftGroup = 3960, GeometryHeight = 1770;
constexpr int WallTypeCount = 8;

const Field& find(std::span<const Field> fields, std::string_view control) {
    for (const auto& field : fields) {
        if (field.control == control) {
            return field;
        }
    }
    throw std::out_of_range("no field " + std::string(control));
}

void addList(Window& window) {
    const Placer placer{window};
    placer.add(ControlKind::Panel, "pnlList", "Sect  -  Seg", boundsOf(Margin, Margin, ListWidth, Line));
    constexpr std::array<double, 2> Widths{670, 670};
    const double top = Margin + Line;
    const auto place = boundsOf(Margin, top, ListWidth, StripTop + StripHeight - top);
    placer.plainGrid("grdLSeg", "gtext", 0, Widths, place).grid().setFixed(0, 1);
}

void addHead(Window& window, const SegmentTables& tables) {
    const Placer placer{window};
    placer.label("lblSegment", "Segment", Right, Margin, 780);
    placer.label("lblsegid", "", Right + 780 + Gap, Margin, 480);
    constexpr double TitleLeft = Right + 1400, CaptionWidth = 480;
    placer.field(find(tables.general, "tbsegtitle"), TitleLeft, Margin, CaptionWidth,
                 Right + Width - TitleLeft - CaptionWidth - Gap);
    auto& strip = placer.add(ControlKind::TabStrip, "SSTab1", "", boundsOf(Right, StripTop, Width, StripHeight));
    strip.tabs().tabs = {{"&General"}, {"&SubSegments"}, {"EC &Data"}, {"Heat &Loads"}};
}

void addTypeRow(const Placer& page, const SegmentTables& tables) {
    const auto& type = find(tables.general, "tbsegtype");
    page.label("lblsegtype", type.caption, PageLeft, PageTop, 480).alignRight = true;
    auto& combo = page.add(ControlKind::Combo, type.control, {}, boundsOf(PageLeft + 480 + Gap, PageTop, 3420, Line));
    std::get<ComboPart>(combo.part).dropDownList = false;
    const auto& fire = find(tables.general, "cbfire");
    page.add(ControlKind::CheckBox, fire.control, fire.caption, boundsOf(PageLeft + 4110, PageTop, 1500, Line));
    const double buttonLeft = PageLeft + PageWidth - ButtonWidth;
    page.add(ControlKind::Button, "cmdFire", "Fire . . .", boundsOf(buttonLeft, PageTop - Gap, ButtonWidth, ButtonHeight));
}

void addGeometry(const Placer& page, const SegmentTables& tables) {
    const auto frame = page.frame("fraGeometry", "", boundsOf(PageLeft, GroupsTop, LeftGroup, GeometryHeight));
    double top = 180;
    for (const auto* const control : {"tbSLen", "tbHeight", "tbXArea", "tbWWS"}) {
        frame.field(find(tables.general, control), Margin, top, 1500, BoxWidth);
        top += Step;
    }
}

void addWallTypes(const Placer& page, const SegmentTables& tables) {
    const auto& perimeter = find(tables.general, "tbPerim");
    const auto& roughness = find(tables.general, "tbrough");
    constexpr double FrameLeft = LeftGroup + Margin, Column = 1350, SecondColumn = Margin + Column + Margin;
    const auto frame =
        page.frame("fraWalls", "", boundsOf(PageLeft + FrameLeft, GroupsTop, PageWidth - FrameLeft, GroupsHeight));
    double top = 180;
    frame.label("lblPerim", perimeter.caption, Margin, top, Column);
    frame.label("lblrough", roughness.caption, SecondColumn, top, Column);
    for (int i = 0; i < WallTypeCount; ++i) {
        top += Step + Gap;
        frame.add(ControlKind::TextBox, perimeter.control, {}, boundsOf(Margin, top, Column, Line), i);
        frame.add(ControlKind::TextBox, roughness.control, {}, boundsOf(SecondColumn, top, Column, Line), i);
    }
}

void addHeadLosses(const Placer& page, const SegmentTables& tables) {
    const double frameTop = GroupsTop + GeometryHeight + Margin;
    const auto frame = page.frame("pnlHeadLoss", "   Head Loss Coefficients",
                                  boundsOf(PageLeft, frameTop, LeftGroup, GroupsTop + GroupsHeight - frameTop));
    constexpr double CaptionWidth = 1500, Column = 1110, First = Margin + CaptionWidth + Gap, Second = First + Column + Gap;
    double top = Placer::Title;
    frame.label("lblPositive", find(tables.general, "tbHLFP").caption, First, top, Column);
    frame.label("lblReverse", find(tables.general, "tbHLFN").caption, Second, top, Column);
    struct Limit {
        std::string_view label;
        std::string_view caption;
        std::string_view positive;
        std::string_view reverse;
    };
    for (const auto& limit :
         {Limit{"lblForward", "At Forward Limit", "tbHLFP", "tbHLFN"}, Limit{"lblBack", "At Back Limit", "tbHLBP", "tbHLBN"}}) {
        top += Step;
        frame.label(limit.label, limit.caption, Margin, top, CaptionWidth).alignRight = true;
        frame.add(ControlKind::TextBox, limit.positive, {}, boundsOf(First, top, Column, Line));
        frame.add(ControlKind::TextBox, limit.reverse, {}, boundsOf(Second, top, Column, Line));
    }
}

void addGeneral(Window& window, const SegmentTables& tables, Control& strip) {
    const Placer page{window, nullptr, &strip, 0};
    addTypeRow(page, tables);
    addGeometry(page, tables);
    addWallTypes(page, tables);
    addHeadLosses(page, tables);
}

double frameHeight(std::size_t rows) { return Placer::Title + static_cast<double>(rows) * Step + Margin; }

void addFrameFields(const Placer& frame, std::span<const Field> fields) {
    double top = Placer::Title;
    for (const auto& field : fields) {
        frame.field(field, Margin, top, 3330, BoxWidth);
        top += Step;
    }
}

void addEnvironment(Window& window, const SegmentTables& tables, Control& strip) {
    constexpr std::size_t WallFields = 4;
    const Placer page{window, nullptr, &strip, 2};
    const auto wall = tables.environment.first(WallFields);
    const auto soil = tables.environment.subspan(WallFields);
    double top = PageTop;
    addFrameFields(
        page.frame("ECPanel1", "Tunnel Wall Properties", boundsOf(PageLeft, top, PageWidth, frameHeight(wall.size()))), wall);
    top += frameHeight(wall.size()) + Margin;
    addFrameFields(
        page.frame("ECPanel2", "Surrounding Soil Properties", boundsOf(PageLeft, top, PageWidth, frameHeight(soil.size()))),
        soil);
    top += frameHeight(soil.size()) + 2 * Margin;
    page.add(ControlKind::Button, "cmdECDefault", "Set As Default", boundsOf(PageLeft, top, 1800, ButtonHeight));
}

struct MenuEntry {
    std::string_view name;
    std::string_view caption;
    std::string_view menu;
};
constexpr std::array Menus{
    MenuEntry{"M_Edit", "&Edit", ""},
    MenuEntry{"ME_Cut", "Cu&t", "M_Edit"},
    MenuEntry{"ME_Copy", "&Copy", "M_Edit"},
    MenuEntry{"ME_Paste", "&Paste", "M_Edit"},
    MenuEntry{"ME_Delete", "&Delete Segment", "M_Edit"},
    MenuEntry{"ME_Insert", "&Insert Segment Before", "M_Edit"},
    MenuEntry{"ME_After", "Insert Segment &After", "M_Edit"},
    MenuEntry{"ME_Default", "&Set as Default", "M_Edit"},
    MenuEntry{"ME_Temps", "Global &Temperatures", "M_Edit"},
    MenuEntry{"M_Where", "Where", ""},
    MenuEntry{"MW_Before", "&Before", "M_Where"},
    MenuEntry{"MW_Replace", "&Replace", "M_Where"},
    MenuEntry{"MW_After", "&After", "M_Where"},
    MenuEntry{"M_Help", "&Help", ""},
    MenuEntry{"MH_Contents", "&Contents", "M_Help"},
    MenuEntry{"MH_Search", "&Search for Help on...", "M_Help"},
};

void addButtonsAndMenus(Window& window) {
    const Placer placer{window};
    double left = WindowWidth - 3 * (ButtonWidth + Margin);
    for (const auto& [name, caption] :
         {std::pair{"cmdOK", "OK"}, std::pair{"cmdCancel", "Cancel"}, std::pair{"cmdHelp", "Help"}}) {
        placer.add(ControlKind::Button, name, caption, boundsOf(left, ButtonsTop, ButtonWidth, ButtonHeight));
        left += ButtonWidth + Margin;
    }
    for (const auto& entry : Menus) {
        placer.menu(entry.name, entry.caption, entry.menu);
    }
}

} // namespace

void buildSegmentControls(Window& window, const SegmentTables& tables) {
    addList(window);
    addHead(window, tables);
    auto& strip = window.control("SSTab1");
    addGeneral(window, tables, strip);
    const auto pageBounds = boundsOf(PageLeft, PageTop, PageWidth, PageHeight);
    constexpr std::array<double, 5> SubsegmentWidths{1300, 1300, 1350, 1350, 1350};
    Placer{window, nullptr, &strip, 1}.grid("grdSubSeg", "gtext2", 1, tables.subsegments, SubsegmentWidths, pageBounds);
    addEnvironment(window, tables, strip);
    constexpr std::array<double, 6> HeatSourceWidths{2010, 900, 900, 560, 1150, 1150};
    Placer{window, nullptr, &strip, 3}.grid("grdSSHS", "gtext3", 2, tables.heatSources, HeatSourceWidths, pageBounds);
    addButtonsAndMenus(window);
}

} // namespace kov
