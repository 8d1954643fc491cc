#include "line/editor/segment_layout.hpp"

#include "line/editor/placing.hpp"

#include <array>
#include <stdexcept>

namespace kov {
namespace {

constexpr double Margin = Placer::Margin, Gap = Placer::Gap, Line = Placer::Line, Step = Line + 75;
constexpr double ListWidth = 1900, Right = Margin + ListWidth + 2 * Margin, Width = 12600 - Right - Margin;
constexpr double TitleTop = Margin, StripTop = 600, StripHeight = 6900, PageTop = StripTop + 500, ButtonsTop = 7650;
constexpr double PageLeft = Right + Margin, PageWidth = Width - 2 * Margin, PageHeight = StripHeight - 650;
constexpr int WallTypeCount = 8;

const Field& find(std::span<const Field> fields, std::string_view control) {
    for (const auto& field : fields) {
        if (field.control == control) {
            return field;
        }
    }
    throw std::out_of_range("no field " + std::string(control));
}

void addList(Window& window, const SegmentTables& tables) {
    const auto panel = Placer{window}.panel("pnlList", "Sect  -  Seg", boundsOf(Margin, Margin, ListWidth, 7400));
    constexpr std::array<double, 2> Widths{760, 760};
    panel.grid("grdLSeg", "gtext", 0, {}, Widths, boundsOf(Gap, Gap, ListWidth - 2 * Gap, 7280)).grid().setFixed(0, 1);
    static_cast<void>(tables);
}

void addHead(Window& window, const SegmentTables& tables) {
    const Placer placer{window};
    placer.label("lblSegment", "Segment", Right, TitleTop, 900);
    placer.label("lblsegid", "", Right + 960, TitleTop, 700);
    placer.field(find(tables.general, "tbsegtitle"), Right + 1800, TitleTop, 600, Width - 2460);
    auto& strip = placer.add(ControlKind::TabStrip, "SSTab1", "", boundsOf(Right, StripTop, Width, StripHeight));
    strip.tabs().tabs = {{"&General"}, {"&SubSegments"}, {"EC &Data"}, {"Heat &Loads"}};
}

void addTypeRow(const Placer& page, const SegmentTables& tables) {
    const auto& type = find(tables.general, "tbsegtype");
    page.label("lblsegtype", type.caption, PageLeft, PageTop, 1500).alignRight = true;
    auto& combo = page.add(ControlKind::Combo, type.control, {}, boundsOf(PageLeft + 1560, PageTop, 3900, Line));
    std::get<ComboPart>(combo.part).dropDownList = false;
    const auto& fire = find(tables.general, "cbfire");
    page.add(ControlKind::CheckBox, fire.control, fire.caption, boundsOf(PageLeft + 5700, PageTop, 1800, Line));
    page.add(ControlKind::Button, "cmdFire", "Fire . . .", boundsOf(PageLeft + 7800, PageTop - 45, 1500, 400));
}

void addGeometry(const Placer& page, const SegmentTables& tables) {
    double top = PageTop + 600;
    for (const auto* const control : {"tbSLen", "tbHeight", "tbXArea", "tbWWS"}) {
        page.field(find(tables.general, control), PageLeft, top, 1500, 1200);
        top += Step;
    }
}

void addWallTypes(const Placer& page, const SegmentTables& tables) {
    const auto& perimeter = find(tables.general, "tbPerim");
    const auto& roughness = find(tables.general, "tbrough");
    constexpr double Left = PageLeft + 5400, BoxWidth = 1400;
    double top = PageTop + 600;
    page.label("lblPerim", perimeter.caption, Left, top, BoxWidth);
    page.label("lblrough", roughness.caption, Left + BoxWidth + Margin, top, BoxWidth);
    for (int i = 0; i < WallTypeCount; ++i) {
        top += Step;
        page.add(ControlKind::TextBox, perimeter.control, {}, boundsOf(Left, top, BoxWidth, Line), i);
        page.add(ControlKind::TextBox, roughness.control, {}, boundsOf(Left + BoxWidth + Margin, top, BoxWidth, Line), i);
    }
}

void addHeadLosses(const Placer& page, const SegmentTables& tables) {
    const auto panel = page.panel("pnlHeadLoss", "   Head Loss Coefficients", boundsOf(PageLeft, PageTop + 2500, 5000, 2600));
    double top = 420;
    for (const auto& [caption, forward, reverse] :
         {std::array{"At Forward Limit", "tbHLFP", "tbHLFN"}, std::array{"At Back Limit", "tbHLBP", "tbHLBN"}}) {
        panel.label(forward == std::string_view("tbHLFP") ? "lblForward" : "lblBack", caption, Margin, top, 2000);
        panel.field(find(tables.general, forward), 1500, top + Step - Gap, 1500, 1200);
        panel.field(find(tables.general, reverse), 1500, top + 2 * Step - Gap, 1500, 1200);
        top += 3 * Step - 120;
    }
}

void addGeneral(Window& window, const SegmentTables& tables, Control& strip) {
    const Placer page{window, nullptr, &strip, 0};
    addTypeRow(page, tables);
    addGeometry(page, tables);
    addWallTypes(page, tables);
    addHeadLosses(page, tables);
}

void addPanelFields(const Placer& panel, std::span<const Field> fields) {
    double top = 480;
    for (const auto& field : fields) {
        panel.field(field, Margin, top, 3600, 1200);
        top += Step;
    }
}

void addEnvironment(Window& window, const SegmentTables& tables, Control& strip) {
    constexpr std::size_t WallFields = 4;
    const Placer page{window, nullptr, &strip, 2};
    addPanelFields(page.panel("ECPanel1", "Tunnel Wall Properties", boundsOf(PageLeft, PageTop, 7500, 2300)),
                   tables.environment.first(WallFields));
    addPanelFields(page.panel("ECPanel2", "Surrounding Soil Properties", boundsOf(PageLeft, PageTop + 2450, 7500, 1900)),
                   tables.environment.subspan(WallFields));
    page.add(ControlKind::Button, "cmdECDefault", "Set As Default", boundsOf(PageLeft, PageTop + 4500, 1800, 450));
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
    double left = 12600 - Margin - 3 * 1500 - 2 * Margin;
    for (const auto& [name, caption] :
         {std::pair{"cmdOK", "OK"}, std::pair{"cmdCancel", "Cancel"}, std::pair{"cmdHelp", "Help"}}) {
        placer.add(ControlKind::Button, name, caption, boundsOf(left, ButtonsTop, 1500, 450));
        left += 1500 + Margin;
    }
    for (const auto& entry : Menus) {
        placer.menu(entry.name, entry.caption, entry.menu);
    }
}

} // namespace

void buildSegmentControls(Window& window, const SegmentTables& tables) {
    addList(window, tables);
    addHead(window, tables);
    auto& strip = window.control("SSTab1");
    addGeneral(window, tables, strip);
    const auto pageBounds = boundsOf(PageLeft, PageTop, PageWidth, PageHeight);
    constexpr std::array<double, 5> SubsegmentWidths{1500, 1500, 1900, 1900, 1900};
    Placer{window, nullptr, &strip, 1}.grid("grdSubSeg", "gtext2", 1, tables.subsegments, SubsegmentWidths, pageBounds);
    addEnvironment(window, tables, strip);
    constexpr std::array<double, 6> HeatSourceWidths{3000, 1300, 1300, 900, 1500, 1500};
    Placer{window, nullptr, &strip, 3}.grid("grdSSHS", "gtext3", 2, tables.heatSources, HeatSourceWidths, pageBounds);
    addButtonsAndMenus(window);
}

} // namespace kov
