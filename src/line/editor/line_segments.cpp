#include "line/editor/line_segments.hpp"

#include "core/cards/numbers.hpp"
#include "line/editor/segment_layout.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace kov {
namespace {

constexpr int NumberColumn = 1, HelpContextNumber = 1210;
// From this row on the list's top row follows the first segment shown.
constexpr int FirstFollowedRow = 15;
constexpr std::string_view ListForm = "Form 3", ListHint = "Enter Segment Number";
/// What has the focus when a tab was clicked.
constexpr std::array FirstOfPage{"tbsegtype", "grdSubSeg", "tbWThk", "grdSSHS"};
constexpr EntryWindowTraits Traits{"Line Segment Data", ListForm, HelpContextNumber, SegmentWindowWidth, SegmentWindowHeight};

constexpr std::array Columns{
    Column{"Sect", "", text(), ListHint, "Form 2A, 1-10"},
    Column{"Seg", "", integer(1, 999), ListHint, "Form 3, 1-10"},
};

Control& buildList(Window& window) {
    buildSegmentControls(window, {SegmentGeneral::fields(), SegmentEnvironment::fields(), SegmentGrids::subsegmentColumns(),
                                  SegmentGrids::heatSourceColumns()});
    return window.control("grdLSeg");
}

} // namespace

std::span<const Column> LineSegments::columns() { return Columns; }

LineSegments::LineSegments(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), editing_(app), list_(buildList(window)), general_(window, editing_),
      grids_(window, editing_), environment_(window, editing_) {
    entry_.emplace(app_, window_, Traits);
    wire();
    load();
    entry_->loadStep();
}

void LineSegments::wire() {
    wireList();
    wireMenus();
    grids_.left = [this] { onOverlayLeft(); };
    grids_.refused = [this] { onOverlayRefused(); };
    window_.control("cmdOK").on.click = [this] { app_.desk.unload(window_); };
    window_.control("cmdFire").on.click = [this] { app_.desk.show("frmFires"); };
    window_.control("cmdECDefault").on.click = [this] { environment_.fillZeros(SegColl_); };
    wireTabs();
    entry_->bindStandardControls();
    entry_->closing = [this] {
        if (!entry_->flags.Cancelled) {
            SaveData();
        }
        CurSeg_.reset();
        editing_.ActiveGrid = nullptr;
        CurIndex_ = 0;
    };
}

void LineSegments::wireTabs() {
    auto& strip = window_.control("SSTab1");
    strip.on.click = [this, &strip] {
        const auto page = static_cast<std::size_t>(strip.tabs().current);
        app_.desk.setFocus(window_.control(FirstOfPage.at(page)));
    };
}

void LineSegments::wireList() {
    listOverlay_.emplace(app_, editing_.flags, list_, window_.control("gtext"), Columns, listRules());
    listOverlay_->bindDummy(window_.control("Dummy", 0));
    list_.on.gotFocus = [this] { onListFocus(); };
    list_.on.lostFocus = [this] { editing_.ActiveGrid = nullptr; };
    list_.on.rightClick = [this](int row) {
        if (app_.desk.setFocus(list_) && row >= 0 && row < list().rows()) {
            app_.desk.moveCell(list_, row, NumberColumn);
            window_.control("M_Edit").menu().popup = true;
        }
    };
}

OverlayRules LineSegments::listRules() {
    OverlayRules rules;
    rules.opensOnSelect = false;
    rules.growsByEnter = false;
    rules.blankRowBelow = false;
    rules.accepted = [this](int row, int, std::string& number) { renumber(row, number); };
    rules.insertRow = [this] { onInsertBefore(); };
    rules.deleteRow = [this] { onDelete(); };
    rules.moved = [this] { onRowChange(); };
    return rules;
}

void LineSegments::wireMenus() {
    const auto onClick = [this](std::string_view entry, void (LineSegments::*handler)()) {
        window_.control(entry).on.click = [this, handler] { (this->*handler)(); };
    };
    onClick("ME_Cut", &LineSegments::onCut);
    onClick("ME_Copy", &LineSegments::onCopy);
    onClick("ME_Paste", &LineSegments::onPaste);
    onClick("ME_After", &LineSegments::onInsertAfter);
    onClick("ME_Default", &LineSegments::onDefault);
    onClick("ME_Temps", &LineSegments::onTemperatures);
    window_.control("ME_Insert").on.click = [this] { app_.desk.sendKeys("{INSERT}"); };
    window_.control("ME_Delete").on.click = [this] { app_.desk.sendKeys("{DEL}"); };
}

void LineSegments::load() {
    auto& sections = data_->Sections;
    owners_.assign(sections.SectColl.begin(), sections.SectColl.end());
    sections.SegList(list(), SegColl_);
    const auto wanted = app_.lineSelection.SelSect;
    CurIndex_ = wanted != 0 ? FindSec(wanted) : 1;
    const int row = CurIndex_ < 1 ? 0 : CurIndex_ - 1;
    selectRow(row);
    list().setTopRow(row >= FirstFollowedRow ? row : 0);
    environment_.setAvailable(data_->ECLOpt != 0);
    ShowData();
}

void LineSegments::selectRow(int row) {
    list().setRow(row);
    list().setCol(NumberColumn);
    list().select({row, row, NumberColumn, NumberColumn});
}

std::int16_t LineSegments::FindSec(std::int16_t section) const {
    std::int16_t position = 0;
    for (const auto& segment : SegColl_) {
        ++position;
        if (const auto owner = segment->Daddy.lock(); owner && owner->id == section) {
            return position;
        }
    }
    return 0;
}

// Between the controls and the model.

void LineSegments::ShowData() {
    if (SegColl_.empty()) {
        return;
    }
    CurIndex_ = std::max(CurIndex_, 1);
    CurSeg_ = SegColl_.at(Position{CurIndex_});
    general_.show(*CurSeg_);
    grids_.show(*CurSeg_);
    if (data_->ECLOpt > 0) {
        environment_.show(*CurSeg_);
    }
}

void LineSegments::SaveData() {
    if (!CurSeg_) {
        return;
    }
    if (std::exchange(editing_.dataChanged, false)) {
        app_.FileDirty = true;
    }
    general_.save(*CurSeg_);
    grids_.save(*CurSeg_);
    if (data_->ECLOpt > 0) {
        environment_.save(*CurSeg_);
    }
}

// The list.

void LineSegments::onListFocus() {
    app_.desk.setPanel(1, ListForm);
    app_.desk.setPanel(2, ListHint);
    editing_.ActiveGrid = &list_;
}

void LineSegments::onRowChange() {
    if (grids_.overlayOpen()) {
        rowChangeDeferred_ = true;
        return;
    }
    rowChangeDeferred_ = false;
    SaveData();
    CurIndex_ = list().row() + 1;
    ShowData();
    app_.desk.setPanel(1, ListForm);
    app_.desk.setPanel(2, ListHint);
}

void LineSegments::onOverlayLeft() {
    if (rowChangeDeferred_) {
        onRowChange();
    }
}

void LineSegments::onOverlayRefused() {
    if (std::exchange(rowChangeDeferred_, false)) {
        selectRow(CurIndex_ - 1);
    }
}

void LineSegments::renumber(int row, const std::string& number) {
    if (number == list().text(row, NumberColumn)) {
        return;
    }
    const auto& segment = SegColl_.at(Position{row + 1});
    segment->id = fieldInteger(number);
    if (row + 1 == CurIndex_) {
        window_.control("lblsegid").caption = plainNumber(segment->id);
    }
    editing_.dataChanged = true;
}

} // namespace kov
