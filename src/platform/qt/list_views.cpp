#include "platform/qt/control_view.hpp"
#include "platform/qt/text_codec.hpp"

#include <QListWidget>
#include <QMouseEvent>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace kov::qt {
namespace {

class ListView final : public ControlView {
public:
    ListView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground), list_(new QListWidget(parent)) {
        setWidget(list_);
        list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        list_->setUniformItemSizes(true);
        list_->setSelectionMode(QAbstractItemView::MultiSelection);
        list_->viewport()->setObjectName(controlLabel(control) + QStringLiteral(".surface"));
    }
    [[nodiscard]] QWidget& surface() const override { return *list_->viewport(); }

    bool pressed(const QMouseEvent& event) override {
        if (event.button() != Qt::LeftButton) {
            return ControlView::pressed(event);
        }
        const int row = list_->indexAt(event.position().toPoint()).row();
        act([&] {
            if (row < 0) {
                desk().focusOn(control());
            } else if (event.type() == QEvent::MouseButtonDblClick) {
                desk().doubleClick(control());
            } else {
                desk().select(control(), chosen(row, event.modifiers()));
            }
        });
        return true;
    }

private:
    /// With Ctrl an entry is added to the chosen ones or taken away, with Shift all up to it are chosen.
    [[nodiscard]] std::vector<int> chosen(int row, Qt::KeyboardModifiers modifiers) const {
        if (!std::get<ListPart>(control().part).multiSelect) {
            return {row};
        }
        const auto& items = control().items();
        std::vector<int> entries;
        if (modifiers.testFlag(Qt::ShiftModifier)) {
            const int from = std::max(items.index(), 0);
            const int step = row < from ? -1 : 1;
            for (int i = from; i != row; i += step) {
                entries.push_back(i);
            }
        } else if (modifiers.testFlag(Qt::ControlModifier)) {
            for (int i = 0; i < items.count(); ++i) {
                if (i != row && items.selected(i)) {
                    entries.push_back(i);
                }
            }
            if (items.selected(row)) {
                return entries;
            }
        }
        entries.push_back(row);
        return entries;
    }
    void syncContent() override {
        const auto& items = control().items();
        if (items.revision() == revision_ && filled_) {
            return;
        }
        revision_ = items.revision();
        filled_ = true;
        const bool multi = std::get<ListPart>(control().part).multiSelect;
        while (list_->count() > items.count()) {
            delete list_->takeItem(list_->count() - 1);
        }
        for (int i = 0; i < items.count(); ++i) {
            const auto text = toQt(items.item(i));
            if (i >= list_->count()) {
                list_->addItem(text);
            } else if (list_->item(i)->text() != text) {
                list_->item(i)->setText(text);
            }
            list_->item(i)->setSelected(multi ? items.selected(i) : i == items.index());
        }
        list_->setCurrentRow(items.index(), QItemSelectionModel::NoUpdate);
        if (items.index() >= 0) {
            list_->scrollToItem(list_->item(items.index()));
        }
    }
    QListWidget* list_;
    std::size_t revision_ = 0;
    bool filled_ = false;
};

} // namespace

std::unique_ptr<ControlView> makeListView(Control& control, Ground& ground, QWidget* parent) {
    return std::make_unique<ListView>(control, ground, parent);
}

} // namespace kov::qt
