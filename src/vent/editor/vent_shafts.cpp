#include "vent/editor/vent_shafts.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/field_cycle.hpp"
#include "shell/entry/row_commands.hpp"
#include "vent/editor/shaft_controls.hpp"
#include "vent/editor/window_tools.hpp"

#include <array>

namespace kov {
namespace {

constexpr int PlainBox = 0, Question = 36;
constexpr int NumberColumn = 1;
constexpr EntryWindowTraits Traits{"Vent Shaft Data", "Form 5", 1250, {}, {}};

/// The fields that are kept as the ten columns of the card.
struct TextMember {
    std::string_view control;
    Fixed<10> cVShaft::*member;
};
constexpr std::array TextMembers{
    TextMember{"tbGrate", &cVShaft::Grate},   TextMember{"tbVGrate", &cVShaft::VGrate},
    TextMember{"tbStack", &cVShaft::StackHt}, TextMember{"tbWSTemp", &cVShaft::WSTemp},
    TextMember{"tbTDB0", &cVShaft::TDB0},     TextMember{"tbTWB0", &cVShaft::TWB0},
    TextMember{"tbFanOn", &cVShaft::FanOn},   TextMember{"tbFanOff", &cVShaft::FanOff},
};

} // namespace

std::span<const Field> VentShafts::fields() { return shaftFields(); }
std::span<const Column> VentShafts::shaftColumns() { return shaftGridColumns(); }
std::span<const Column> VentShafts::segmentColumns() { return segmentGridColumns(); }

VentShafts::VentShafts(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), entry_(app, window, Traits), CurShaft_(app.CurShaft) {
    buildShaftControls(window_);
    wireFields();
    wireGrids();
    wireMenus();
    entry_.bindStandardControls();
    entry_.closing = [this] {
        if (!entry_.flags.Cancelled) {
            SaveShaft();
        }
    };
    window_.on.activate = [this, panel = window_.on.activate] {
        panel();
        onBack();
    };
    entry_.loadStep();
    load();
}

void VentShafts::wireFields() {
    for (const auto& field : shaftFields()) {
        auto& control = window_.control(field.control);
        if (control.kind == ControlKind::TextBox) {
            bindField(app_, entry_.flags, control, field.hint, field.rule);
        } else {
            bindHint(app_, control, field.hint);
        }
    }
    // A typed number is no entry of the list any more.
    auto& fans = window_.control("cbFanType");
    fans.on.change = [&fans] {
        auto& items = fans.items();
        if (items.index() >= 0 && items.item(items.index()) != fans.text().text) {
            items.setIndex(-1);
        }
    };
    window_.control("cmdFan").on.click = [this] { onFans(); };
}

void VentShafts::wireGrids() {
    OverlayRules shafts;
    shafts.opensOnSelect = false;
    shafts.growsByEnter = false;
    shafts.blankRowBelow = false;
    shafts.accepted = [this](int row, int, std::string& text) { onShaftNumber(row, text); };
    shafts.moved = [this] { onShaftRow(); };
    shafts.insertRow =
        shafts.deleteRow = [this] { app_.messages().show(PlainBox, "", "Add and Delete Vent Shafts from the Vent Form"); };
    auto& shaftControl = window_.control("GrdShaft");
    shaftOverlay_.emplace(app_, entry_.flags, shaftControl, window_.control("gtext"), shaftGridColumns(), std::move(shafts));
    shaftOverlay_->bindDummy(window_.control("Dummy"));

    OverlayRules segments;
    segments.opensOnSelect = false;
    segments.rightWhenStill = true;
    segments.insertRow = [this] { onInsertSegment(); };
    segments.deleteRow = [this] { onDeleteSegment(); };
    auto& segmentControl = window_.control("grdVSeg");
    segmentOverlay_.emplace(app_, entry_.flags, segmentControl, window_.control("gtext1"), segmentGridColumns(),
                            std::move(segments));
    segmentOverlay_->bindDummy(window_.control("Dummy1"));
    for (auto* control : {&shaftControl, &segmentControl}) {
        control->on.rightClick = [this](int) { window_.control("M_Edit").menu().popup = true; };
    }
}

void VentShafts::wireMenus() {
    window_.control("ME_Copy").on.click = [this] { onCopy(); };
    window_.control("ME_Cut").on.click = [this] { onCut(); };
    window_.control("ME_Paste").on.click = [this] { onPaste(); };
    window_.control("ME_Temps").on.click = [this] { onTemps(); };
}

void VentShafts::load() {
    auto& grid = shaftGrid();
    grid.setFixed(0, 1);
    data_->Vents.VShaftList(grid, shafts_);
    data_->Fans.List(window_.control("cbFanType").items());
    if (CurShaft_ > shafts_.count()) {
        CurShaft_ = 0;
    }
    putGridOn(grid, CurShaft_ < 1 ? 0 : CurShaft_ - 1, NumberColumn);
    ShowShaft();
}

bool VentShafts::active(std::string_view control) const { return window_.activeControl == &window_.control(control); }
const std::string& VentShafts::boxText(std::string_view control) const { return window_.control(control).text().text; }
cVShaft& VentShafts::shaftOfRow() const { return *shafts_.at(Position{shaftGrid().row() + 1}); }

// One shaft: to the controls and back.

void VentShafts::ShowShaft() {
    if (shafts_.empty()) {
        return;
    }
    CurShaft_ = CurShaft_ < 1 ? std::int16_t{1} : CurShaft_;
    const auto& shaft = *shafts_.at(Position{CurShaft_});
    window_.control("lblShaftNo").caption = "Shaft " + plainNumber(shaft.id);
    window_.control("tbsegtitle").setText(shaft.Title.trimmed());
    auto& types = window_.control("tbsegtype");
    chooseEntry(types, shaft.VType >= 1 && shaft.VType <= types.items().count() ? shaft.VType - 1 : -1);
    window_.control("tbNSubSegs").setText(bareNumber(shaft.NSubSeg));
    for (const auto& kept : TextMembers) {
        window_.control(kept.control).setText((shaft.*kept.member).view());
    }
    showFanType(shaft.FanType);
    chooseOption(window_, "rbFanDir", shaft.FanDir + 1);
    shaft.SubList(segmentGrid());
    putGridOn(segmentGrid(), 0, 0);
}

void VentShafts::showFanType(std::int16_t type) {
    auto& list = window_.control("cbFanType");
    if (type >= 0 && type < list.items().count()) {
        chooseEntry(list, type);
    } else {
        chooseEntry(list, -1);
        list.setText(plainNumber(type));
    }
}

std::int16_t VentShafts::chosenFanType() const {
    const auto& list = window_.control("cbFanType");
    const int index = list.items().index();
    return index >= 0 ? static_cast<std::int16_t>(index) : fieldInteger(list.text().text);
}

std::int16_t VentShafts::chosenDirection() const {
    if (window_.control("rbFanDir", 1).checked) {
        return 0;
    }
    return window_.control("rbFanDir", 0).checked ? std::int16_t{-1} : std::int16_t{1};
}

void VentShafts::SaveShaft() {
    // Whether anything was changed or not.
    app_.FileDirty = true;
    if (shafts_.empty()) {
        return;
    }
    auto& shaft = *shafts_.at(Position{CurShaft_});
    shaft.Title = boxText("tbsegtitle");
    shaft.VType = static_cast<std::int16_t>(window_.control("tbsegtype").items().index() + 1);
    shaft.NSubSeg = fieldInteger(boxText("tbNSubSegs"));
    for (const auto& kept : TextMembers) {
        shaft.*kept.member = boxText(kept.control);
    }
    shaft.FanType = chosenFanType();
    shaft.FanDir = chosenDirection();
    storeSegments(shaft);
}

void VentShafts::storeSegments(cVShaft& shaft) const {
    shaft.ClearVSegs();
    const auto& grid = segmentGrid();
    for (int row = 0; row < grid.rows(); ++row) {
        // A segment without length is none: that is how one is deleted, and why the blank last row never becomes one.
        if (fieldValue(grid.text(row, 0)) == 0) {
            continue;
        }
        cVentSeg::Values values;
        for (std::size_t col = 0; col < values.size(); ++col) {
            values.at(col) = grid.text(row, static_cast<int>(col));
        }
        shaft.AddVSeg()->setVSeg(values);
    }
}

// The list of shafts.

void VentShafts::onShaftRow() {
    const int row = shaftGrid().row();
    if (row + 1 == CurShaft_ || row >= shafts_.count()) {
        return;
    }
    SaveShaft();
    CurShaft_ = static_cast<std::int16_t>(row + 1);
    ShowShaft();
    app_.desk.setPanel(1, Traits.form);
    shaftOverlay_->showHint();
}

void VentShafts::onShaftNumber(int row, const std::string& text) {
    auto& shaft = *shafts_.at(Position{row + 1});
    shaft.id = fieldInteger(text);
    if (row + 1 == CurShaft_) {
        window_.control("lblShaftNo").caption = "Shaft " + plainNumber(shaft.id);
    }
}

// The list of segments.

void VentShafts::onInsertSegment() {
    // The values stand as they are, though the area lies below its lowest value: the check comes when the cell is edited.
    segmentGrid().addItem("1.\t1.\t60.\t60.\t60.", segmentGrid().row());
}

void VentShafts::onDeleteSegment() {
    auto& grid = segmentGrid();
    if (grid.row() < grid.rows() - 1) {
        const int top = grid.topRow();
        grid.removeItem(grid.row());
        restoreTopRow(grid, top);
    }
}

// The Edit menu.

void VentShafts::copyShaft() {
    SaveShaft();
    auto copy = std::make_shared<cVShaft>();
    copy->XCopy(shaftOfRow());
    ClipShaft_ = std::move(copy);
    app_.desk.services().clipboard.setText(GridRowText(shaftGrid()));
}

void VentShafts::onCopy() {
    if (active("GrdShaft")) {
        copyShaft();
    } else if (active("grdVSeg")) {
        app_.desk.services().clipboard.setText(GridRowText(segmentGrid()));
    } else {
        app_.desk.sendKeys("^C");
    }
}

void VentShafts::onCut() {
    if (active("GrdShaft")) {
        copyShaft();
        app_.messages().show(PlainBox, "",
                             "Shaft COPIED to buffer!\r\nCan't remove Vent Shaft.\r\nRemove the Vent Section instead.");
    } else if (active("grdVSeg")) {
        auto& grid = segmentGrid();
        app_.desk.services().clipboard.setText(GridRowText(grid));
        grid.removeItem(grid.row());
    } else {
        app_.desk.sendKeys("^X");
    }
}

void VentShafts::onPaste() {
    if (active("GrdShaft")) {
        if (ClipShaft_) {
            shaftOfRow().XCopy(*ClipShaft_);
            ShowShaft();
        }
    } else if (active("grdVSeg")) {
        if (const auto text = app_.desk.services().clipboard.text()) {
            segmentGrid().addItem(*text, segmentGrid().row());
        }
    } else {
        app_.desk.sendKeys("^V");
    }
}

void VentShafts::onTemps() {
    const auto answer = app_.messages().show(Question, "", "Set all vent shaft temps\r\nto match this segment?");
    if (answer == Answer::No || shafts_.empty()) {
        return;
    }
    SaveShaft();
    const auto& shown = *shafts_.at(Position{CurShaft_});
    for (const auto& shaft : shafts_) {
        shaft->WSTemp = shown.WSTemp;
        shaft->TDB0 = shown.TDB0;
        shaft->TWB0 = shown.TWB0;
    }
}

// To the fans and back.

void VentShafts::onFans() {
    fanBeforeFans_ = window_.control("cbFanType").items().index();
    app_.desk.show("frmXFan", true);
}

void VentShafts::onBack() {
    if (!fanBeforeFans_) {
        return;
    }
    auto& list = window_.control("cbFanType");
    const int before = *fanBeforeFans_;
    const std::int16_t type = before >= 0 ? static_cast<std::int16_t>(before) : fieldInteger(list.text().text);
    fanBeforeFans_.reset();
    data_->Fans.List(list.items());
    showFanType(type);
}

} // namespace kov
