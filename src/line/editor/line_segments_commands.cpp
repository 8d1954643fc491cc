// What a person does with whole segments, and with all of them at once.
#include "line/editor/line_segments.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"
#include "shell/entry/row_commands.hpp"

namespace kov {
namespace {

constexpr int WarningBox = 48;  // exclamation icon, OK
constexpr int QuestionBox = 36; // question icon, Yes and No

} // namespace

bool LineSegments::gridIsActive() const {
    return window_.activeControl != nullptr && window_.activeControl->kind == ControlKind::Grid;
}

// Inserting.

std::shared_ptr<cSegment> LineSegments::newSegmentBeside(int row, bool before) {
    const auto current = SegColl_.at(Position{row + 1});
    const auto owner = current->Daddy.lock();
    if (!owner) {
        throw Failure("Object variable not set");
    }
    auto segment = owner->InsertSeg(*current, before);
    segment->XCopy(*data_->Sections.DefaultSegment);
    const Position place{row + 1};
    if (before) {
        SegColl_.insertBefore(place, segment);
    } else {
        SegColl_.insertAfter(place, segment);
    }
    list().addItem(plainNumber(owner->id) + "\t0", before ? row : row + 1);
    return segment;
}

void LineSegments::onInsertBefore() {
    static_cast<void>(newSegmentBeside(list().row(), true));
    editing_.dataChanged = true;
    ShowData();
}

void LineSegments::onInsertAfter() {
    const int row = list().row();
    static_cast<void>(newSegmentBeside(row, false));
    selectRow(row + 1);
    onRowChange();
    CurIndex_ = row + 2;
    editing_.dataChanged = true;
    ShowData();
}

// Removing.

bool LineSegments::onlySegment(int row) {
    const auto owner = SegColl_.at(Position{row + 1})->Daddy.lock();
    if (owner && owner->nLSegs() > 1) {
        return false;
    }
    app_.messages().show(WarningBox, "", "Can't Delete the ONLY Segment in a section.");
    return true;
}

void LineSegments::removeListRow(int row) {
    list().removeItem(row);
    if (list().row() != row) { // it was the last one
        onRowChange();
    }
}

void LineSegments::onDelete() {
    const int row = list().row();
    const int top = list().topRow();
    if (onlySegment(row)) {
        return;
    }
    const auto segment = SegColl_.at(Position{row + 1});
    removeListRow(row);
    segment->Daddy.lock()->DelSeg(*segment);
    SegColl_.remove(Position{row + 1});
    restoreTopRow(list(), top);
    editing_.dataChanged = true;
    ShowData();
}

void LineSegments::CutSeg(std::int16_t position) {
    CopySeg(position);
    const auto segment = SegColl_.at(Position{position});
    if (const auto owner = segment->Daddy.lock()) {
        owner->DelSeg(*segment);
    }
    SegColl_.remove(Position{position});
}

void LineSegments::cutListRow() {
    const int row = list().row();
    const int top = list().topRow();
    if (onlySegment(row)) {
        return;
    }
    removeListRow(row);
    SaveData();
    CutSeg(static_cast<std::int16_t>(row + 1));
    restoreTopRow(list(), top);
    editing_.dataChanged = true;
}

void LineSegments::onCut() {
    if (!gridIsActive()) {
        app_.desk.sendKeys("^X");
        return;
    }
    app_.desk.services().clipboard.setText(GridRowText(list())); // the segment's row, whichever grid is active
    if (editing_.ActiveGrid == &list_) {
        cutListRow();
    } else if (editing_.ActiveGrid != nullptr) {
        auto& grid = editing_.ActiveGrid->grid();
        grid.removeItem(grid.row());
        editing_.dataChanged = true;
    }
}

// Copying.

void LineSegments::CopySeg(std::int16_t position) {
    ClipSeg_ = std::make_shared<cSegment>();
    ClipSeg_->XCopy(*SegColl_.at(Position{position}));
}

void LineSegments::PasteSeg(std::int16_t position) {
    if (!ClipSeg_) {
        throw Failure("Object variable not set");
    }
    SegColl_.at(Position{position})->XCopy(*ClipSeg_);
    ShowData();
}

void LineSegments::onCopy() {
    if (!gridIsActive()) {
        app_.desk.sendKeys("^C");
        return;
    }
    if (editing_.ActiveGrid == nullptr) {
        return;
    }
    app_.desk.services().clipboard.setText(GridRowText(editing_.ActiveGrid->grid()));
    if (editing_.ActiveGrid == &list_) {
        SaveData();
        CopySeg(static_cast<std::int16_t>(list().row() + 1));
    }
}

void LineSegments::onPaste() {
    const auto text = app_.desk.services().clipboard.text();
    if (!text || !gridIsActive()) {
        app_.desk.sendKeys("^V");
        return;
    }
    if (editing_.ActiveGrid == &list_) {
        if (ClipSeg_) {
            PasteSeg(static_cast<std::int16_t>(list().row() + 1));
            editing_.dataChanged = true;
        }
    } else if (editing_.ActiveGrid != nullptr) {
        auto& grid = editing_.ActiveGrid->grid();
        grid.addItem(*text, grid.row());
        editing_.dataChanged = true;
    }
}

// Defaults and all segments at once.

void LineSegments::onDefault() {
    // As it was saved: what is on the screen only doesn't go along.
    data_->Sections.DefaultSegment->XCopy(*SegColl_.at(Position{list().row() + 1}));
}

void LineSegments::onTemperatures() {
    if (app_.messages().show(QuestionBox, "", "Set all subsegment temps\r\nto match this segment?") != Answer::Yes) {
        return;
    }
    const auto& grid = window_.control("grdSubSeg").grid();
    for (const auto& segment : SegColl_) {
        segment->setSubSegs(grid.text(0, 2), grid.text(0, 3), grid.text(0, 4));
    }
}

} // namespace kov
