#include "platform/qt/grid_widget.hpp"

#include "core/cards/fixed.hpp"
#include "platform/qt/control_view.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/text_codec.hpp"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace kov::qt {
namespace {

constexpr int TextMargin = 4;

} // namespace

GridWidget::GridWidget(const Grid& grid, QWidget* parent) : QAbstractScrollArea(parent), grid_(&grid) {
    setFrameShape(QFrame::StyledPanel);
    setLineWidth(1);
    viewport()->setAutoFillBackground(true);
    viewport()->setBackgroundRole(QPalette::Base);
    verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
    QObject::connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int row) {
        if (!syncing_ && onScroll) {
            onScroll(row);
        }
    });
    QObject::connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        viewport()->update();
        if (!syncing_ && onColumnsScrolled) {
            onColumnsScrolled();
        }
    });
}

int GridWidget::rowHeight() const { return std::max(pixels(grid_->rowHeight()), 1); }
int GridWidget::width() const { return pixels(grid_->colPos(grid_->cols() - 1) + grid_->colWidth(grid_->cols() - 1)); }
int GridWidget::scrolledColumns() const { return horizontalScrollBar()->value(); }

void GridWidget::syncBars() {
    syncing_ = true;
    const int fixed = grid_->fixedRows();
    const int page = std::max(viewport()->height() / rowHeight() - fixed, 1);
    verticalScrollBar()->setRange(0, std::max(grid_->rows() - fixed - page, grid_->topRow()));
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setValue(grid_->topRow());
    horizontalScrollBar()->setRange(0, std::max(width() - viewport()->width(), 0));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(TextMargin * 4);
    syncing_ = false;
}

void GridWidget::revealColumn() {
    if (grid_->col() == shownColumn_) {
        return;
    }
    shownColumn_ = grid_->col();
    const int left = pixels(grid_->colPos(shownColumn_));
    const int right = left + pixels(grid_->colWidth(shownColumn_));
    syncing_ = true;
    if (right - scrolledColumns() > viewport()->width()) {
        horizontalScrollBar()->setValue(right - viewport()->width());
    }
    if (left < scrolledColumns()) {
        horizontalScrollBar()->setValue(left);
    }
    syncing_ = false;
}

void GridWidget::sync(bool focused) {
    focused_ = focused;
    syncBars();
    revealColumn();
    viewport()->update();
}

void GridWidget::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    syncBars();
}

QRect GridWidget::cellRect(int row, int col) const {
    const int place = row < grid_->fixedRows() ? row : row - grid_->topRow();
    const int left = pixels(grid_->colPos(col));
    const int right = pixels(grid_->colPos(col) + grid_->colWidth(col));
    return {left - scrolledColumns(), place * rowHeight(), right - left, rowHeight()};
}

int GridWidget::rowAt(int y) const {
    const int place = y / rowHeight();
    const int row = place < grid_->fixedRows() ? place : place + grid_->topRow();
    return y >= 0 && row < grid_->rows() ? row : -1;
}

GridWidget::Cell GridWidget::cellAt(const QPoint& place) const {
    const int x = place.x() + scrolledColumns();
    for (int col = 0; col < grid_->cols(); ++col) {
        const int left = pixels(grid_->colPos(col));
        if (x >= left && x < left + pixels(grid_->colWidth(col))) {
            return {rowAt(place.y()), col};
        }
    }
    return {rowAt(place.y()), -1};
}

bool GridWidget::selected(int row, int col) const {
    const auto& block = grid_->selection();
    return row >= block.startRow && row <= block.endRow && col >= block.startCol && col <= block.endCol &&
           (block.startRow != block.endRow || block.startCol != block.endCol);
}

void GridWidget::paintCell(QPainter& painter, int row, int col) const {
    const auto rect = cellRect(row, col);
    const bool heading = row < grid_->fixedRows() || col < grid_->fixedCols();
    if (heading) {
        painter.fillRect(rect, palette().color(QPalette::Button));
    } else if (selected(row, col)) {
        auto tint = palette().color(QPalette::Active, QPalette::Highlight);
        tint.setAlphaF(0.18F);
        painter.fillRect(rect, tint);
    }
    painter.setPen(lineColor(palette()));
    painter.drawLine(rect.right(), rect.top(), rect.right(), rect.bottom());
    painter.drawLine(rect.left(), rect.bottom(), rect.right(), rect.bottom());
    // Fields of a card end in blanks, which nobody misses.
    const auto text = trimRight(grid_->text(row, col));
    if (!text.empty()) {
        painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text));
        const auto inner = rect.adjusted(TextMargin, 0, -TextMargin, -1);
        painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(toQt(text), Qt::ElideRight, inner.width()));
    }
}

void GridWidget::paintCurrent(QPainter& painter) const {
    const auto rect = cellRect(grid_->row(), grid_->col());
    if (rect.top() < grid_->fixedRows() * rowHeight() && grid_->row() >= grid_->fixedRows()) {
        return; // scrolled out of sight
    }
    painter.setPen(QPen(palette().color(QPalette::Active, focused_ ? QPalette::Highlight : QPalette::Dark), focused_ ? 2 : 1));
    painter.drawRect(rect.adjusted(0, 0, -2, -2));
}

void GridWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const int fixed = std::min(grid_->fixedRows(), grid_->rows());
    const int last = std::min(grid_->topRow() + (event->rect().bottom() / rowHeight()), grid_->rows() - 1);
    for (int col = 0; col < grid_->cols(); ++col) {
        for (int row = 0; row < fixed; ++row) {
            paintCell(painter, row, col);
        }
        for (int row = grid_->topRow() + fixed; row <= last; ++row) {
            paintCell(painter, row, col);
        }
    }
    paintCurrent(painter);
}

} // namespace kov::qt
