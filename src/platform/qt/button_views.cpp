#include "platform/qt/control_view.hpp"
#include "platform/qt/text_codec.hpp"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace kov::qt {
namespace {

/// Push button, check box or option button. The toolkit's own ticking is only a shadow: the desk's click decides.
class ButtonView final : public ControlView {
public:
    ButtonView(Control& control, Ground& ground, QWidget* parent)
        : ControlView(control, ground), button_(make(control, parent)) {
        setWidget(button_);
        button_->setAutoExclusive(false);
        QObject::connect(button_, &QAbstractButton::clicked, button_,
                         [this] { act([this] { desk().click(this->control()); }); });
    }

private:
    static QAbstractButton* make(const Control& control, QWidget* parent) {
        if (control.kind == ControlKind::CheckBox) {
            return new QCheckBox(parent);
        }
        if (control.kind == ControlKind::OptionButton) {
            return new QRadioButton(parent);
        }
        return new QPushButton(parent);
    }
    void syncContent() override {
        const auto text = toQt(control().caption);
        if (text != button_->text()) {
            button_->setText(text);
        }
        if (button_->isCheckable() && button_->isChecked() != control().checked) {
            button_->setChecked(control().checked);
        }
    }
    QAbstractButton* button_;
};

/// Two small buttons with arrows, one above the other.
class SpinView final : public ControlView {
public:
    SpinView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground) {
        auto* pair = new QWidget(parent);
        auto* column = new QVBoxLayout(pair);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        setWidget(pair);
        column->addWidget(arrow(pair, true));
        column->addWidget(arrow(pair, false));
    }

private:
    QToolButton* arrow(QWidget* parent, bool up) {
        auto* button = new QToolButton(parent);
        button->setObjectName(controlLabel(control()) + (up ? QStringLiteral(".up") : QStringLiteral(".down")));
        button->setAccessibleName(up ? QStringLiteral("Up") : QStringLiteral("Down"));
        button->setArrowType(up ? Qt::UpArrow : Qt::DownArrow);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        QObject::connect(button, &QToolButton::clicked, button,
                         [this, up] { act([this, up] { desk().spin(control(), up); }); });
        return button;
    }
};

} // namespace

std::unique_ptr<ControlView> makeButtonView(Control& control, Ground& ground, QWidget* parent) {
    if (control.kind == ControlKind::Spin) {
        return std::make_unique<SpinView>(control, ground, parent);
    }
    return std::make_unique<ButtonView>(control, ground, parent);
}

} // namespace kov::qt
