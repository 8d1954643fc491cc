#include "platform/qt/text_codec.hpp"
#include "platform/qt/text_views.hpp"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>

#include <array>
#include <optional>

namespace kov::qt {
namespace {

/// A list that drops down; where its text can be typed too, a box stands in it.
class ComboView final : public ControlView {
public:
    ComboView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground), combo_(new QComboBox(parent)) {
        setWidget(combo_);
        combo_->setEditable(control.hasText());
        combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo_->setInsertPolicy(QComboBox::NoInsert);
        if (auto* edit = combo_->lineEdit()) {
            combo_->setCompleter(nullptr);
            edit->setObjectName(controlLabel(control) + QStringLiteral(".text"));
            mirror_.emplace(control, ground, *edit);
        }
        QObject::connect(combo_, &QComboBox::activated, combo_,
                         [this](int entry) { act([&] { desk().select(this->control(), std::array{entry}); }); });
    }
    [[nodiscard]] QWidget& target() const override {
        return combo_->lineEdit() == nullptr ? *combo_ : static_cast<QWidget&>(*combo_->lineEdit());
    }
    [[nodiscard]] QWidget& surface() const override { return *combo_; }
    [[nodiscard]] bool editsText() const override { return mirror_.has_value(); }
    [[nodiscard]] bool open() const override { return combo_->view()->isVisible(); }

    bool pressed(const QMouseEvent& event) override {
        if (mirror_ && combo_->lineEdit()->geometry().contains(event.position().toPoint())) {
            return LineEditMirror::pressTakesFocus(control(), ground());
        }
        // The list opens under the pointer only when the focus was granted.
        act([this] { desk().focusOn(control()); });
        return desk().focus() != &control() || ControlView::pressed(event);
    }

private:
    void syncContent() override {
        const auto& items = control().items();
        if (!filled_ || items.revision() != revision_) {
            filled_ = true;
            revision_ = items.revision();
            fill(items);
        }
        if (combo_->currentIndex() != items.index()) {
            combo_->setCurrentIndex(items.index());
        }
        if (mirror_) {
            mirror_->sync();
        }
    }
    void fill(const ItemList& items) {
        while (combo_->count() > items.count()) {
            combo_->removeItem(combo_->count() - 1);
        }
        for (int i = 0; i < items.count(); ++i) {
            const auto text = toQt(items.item(i));
            if (i >= combo_->count()) {
                combo_->addItem(text);
            } else if (combo_->itemText(i) != text) {
                combo_->setItemText(i, text);
            }
        }
    }
    QComboBox* combo_;
    std::optional<LineEditMirror> mirror_;
    std::size_t revision_ = 0;
    bool filled_ = false;
};

} // namespace

std::unique_ptr<ControlView> makeComboView(Control& control, Ground& ground, QWidget* parent) {
    return std::make_unique<ComboView>(control, ground, parent);
}

} // namespace kov::qt
