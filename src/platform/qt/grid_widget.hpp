#pragma once

#include "platform/grid.hpp"

#include <QAbstractScrollArea>

#include <functional>

namespace kov::qt {

/// Draws a grid: only the rows in sight are looked at, so its size doesn't matter. Its cells lie where `Grid::colPos` and
/// `Grid::rowPos` say, since the boxes laid over them are placed by these.
class GridWidget final : public QAbstractScrollArea {
public:
    GridWidget(const Grid& grid, QWidget* parent);

    /// The grid may have changed.
    void sync(bool focused);
    struct Cell {
        int row = -1; ///< -1 where there is none
        int col = -1;
    };
    [[nodiscard]] Cell cellAt(const QPoint& place) const;
    [[nodiscard]] QRect cellRect(int row, int col) const;
    [[nodiscard]] int scrolledColumns() const;
    /// A person scrolls: the top row shall be that one.
    std::function<void(int row)> onScroll;
    /// The columns were scrolled.
    std::function<void()> onColumnsScrolled;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void syncBars();
    void revealColumn();
    void paintCell(QPainter& painter, int row, int col) const;
    void paintCurrent(QPainter& painter) const;
    [[nodiscard]] bool selected(int row, int col) const;
    [[nodiscard]] int rowHeight() const;
    [[nodiscard]] int width() const;
    [[nodiscard]] int rowAt(int y) const;

    const Grid* grid_;
    bool focused_ = false;
    bool syncing_ = false;
    int shownColumn_ = -1;
};

} // namespace kov::qt
