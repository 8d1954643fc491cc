#include "platform/qt/control_view.hpp"
#include "platform/qt/grid_widget.hpp"

#include <QMouseEvent>

#include <algorithm>

namespace kov::qt {
namespace {

class GridView final : public ControlView {
public:
    GridView(Control& control, Ground& ground, QWidget* parent)
        : ControlView(control, ground), grid_(new GridWidget(control.grid(), parent)) {
        setWidget(grid_);
        grid_->viewport()->setObjectName(controlLabel(control) + QStringLiteral(".surface"));
        grid_->onScroll = [this](int row) { scroll(row); };
        grid_->onColumnsScrolled = [this] { act([] {}); }; // boxes over the grid move along
    }
    [[nodiscard]] QWidget& surface() const override { return *grid_->viewport(); }
    [[nodiscard]] int scrolledColumns() const { return grid_->scrolledColumns(); }

    bool pressed(const QMouseEvent& event) override {
        const auto cell = grid_->cellAt(event.position().toPoint());
        act([&] {
            if (event.button() == Qt::RightButton) {
                desk().rightClick(control(), std::max(cell.row, 0));
            } else if (event.type() == QEvent::MouseButtonDblClick) {
                desk().doubleClick(control());
            } else if (cell.row >= 0 && cell.col >= 0) {
                desk().cell(control(), cell.row, cell.col);
            } else {
                desk().focusOn(control());
            }
        });
        return true;
    }

private:
    /// A box laid over a cell would stay behind, so the grid takes the focus from it first.
    void scroll(int row) {
        act([&] {
            const auto* focus = desk().focus();
            const bool overlaid =
                focus != nullptr && focus != &control() && focus->parent == control().parent && inside(*focus);
            if (!overlaid || (desk().focusOn(control()) && desk().focus() == &control())) {
                control().grid().setTopRow(std::clamp(row, 0, control().grid().rows() - 1));
            }
        });
    }
    [[nodiscard]] bool inside(const Control& other) const {
        const auto& mine = control().bounds;
        const auto& box = other.bounds;
        return other.window == control().window && box.left >= mine.left && box.top >= mine.top &&
               box.left < mine.left + mine.width && box.top < mine.top + mine.height;
    }
    void syncContent() override { grid_->sync(desk().focus() == &control()); }
    GridWidget* grid_;
};

} // namespace

int scrolledColumns(const ControlView& view) {
    const auto* grid = dynamic_cast<const GridView*>(&view);
    return grid == nullptr ? 0 : grid->scrolledColumns();
}

std::unique_ptr<ControlView> makeGridView(Control& control, Ground& ground, QWidget* parent) {
    return std::make_unique<GridView>(control, ground, parent);
}

} // namespace kov::qt
