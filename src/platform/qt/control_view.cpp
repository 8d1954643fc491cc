#include "platform/qt/control_view.hpp"

#include "platform/qt/look.hpp"
#include "platform/qt/text_codec.hpp"

#include <QMouseEvent>

#include <cmath>

namespace kov::qt {
namespace {

constexpr int MiddleGrey = 128, Channel = 256;
// The face colour that windows were designed on: what has it looks like the window around it.
constexpr std::int32_t FaceGrey = 0xC0C0C0;

} // namespace

QColor colourOf(std::int32_t backColor) {
    return {backColor % Channel, backColor / Channel % Channel, backColor / (Channel * Channel) % Channel};
}

int pixels(Twips length) { return static_cast<int>(std::lround(length.pixels())); }

QRect pixels(const Bounds& bounds) {
    // Both corners are rounded, so that neighbours stay neighbours.
    const int left = pixels(bounds.left);
    const int top = pixels(bounds.top);
    return {left, top, pixels(bounds.left + bounds.width) - left, pixels(bounds.top + bounds.height) - top};
}

QString controlLabel(const Control& control) { return toQt(control.label()); }

void ControlView::setWidget(QWidget* widget) {
    widget_ = widget;
    widget_->setObjectName(controlLabel(*control_));
    // Only the desk moves the focus.
    widget_->setFocusPolicy(Qt::NoFocus);
}

void ControlView::syncFont() {
    const bool fixed = control_->kind == ControlKind::TextBox && control_->text().fixedPitch;
    auto font = fixed ? fixedFont() : designFont();
    if (!control_->fontName.empty()) {
        font.setFamilies({toQt(control_->fontName)});
    }
    if (control_->fontSize > 0) {
        font.setPointSize(control_->fontSize);
    }
    font.setStretch(widget_->font().stretch()); // set by the view where a text is narrowed
    if (font != widget_->font()) {
        widget_->setFont(font);
    }
}

void ControlView::syncColour() {
    if (control_->backColor == backColor_) {
        return;
    }
    backColor_ = control_->backColor;
    const bool own = backColor_ >= 0 && backColor_ != FaceGrey;
    const bool box = control_->hasText() || control_->kind == ControlKind::List || control_->kind == ControlKind::Combo;
    widget_->setAutoFillBackground(own && !box);
    if (!own) {
        widget_->setPalette({});
        return;
    }
    const QColor back = colourOf(backColor_);
    // Readable in the dark look too.
    const QColor text = back.lightness() < MiddleGrey ? Qt::white : Qt::black;
    auto palette = widget_->palette();
    palette.setColor(box ? QPalette::Base : QPalette::Window, back);
    palette.setColor(box ? QPalette::Text : QPalette::WindowText, text);
    widget_->setPalette(palette);
}

void ControlView::sync(const QPoint& shift) {
    const auto name = toQt(plainCaption(control_->caption));
    if (name != target().accessibleName()) {
        target().setAccessibleName(name);
    }
    syncFont();
    if (const auto place = placeOf(pixels(control_->bounds).translated(shift)); place != widget_->geometry()) {
        widget_->setGeometry(place);
    }
    syncColour();
    widget_->setEnabled(control_->enabled);
    syncContent();
    const bool onPage = control_->strip == nullptr || control_->strip->tabs().current == control_->page;
    if (const bool visible = control_->visible && onPage; visible == widget_->isHidden()) {
        widget_->setVisible(visible);
    }
}

bool ControlView::pressed(const QMouseEvent& event) {
    if (event.button() == Qt::RightButton && control_->on.rightClick) {
        act([this] { desk().rightClick(control(), 0); });
        return true;
    }
    return false;
}

std::unique_ptr<ControlView> makeView(Control& control, Ground& ground, QWidget* parent) {
    switch (control.kind) {
    case ControlKind::TextBox:
        return makeTextView(control, ground, parent);
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::Spin:
        return makeButtonView(control, ground, parent);
    case ControlKind::List:
        return makeListView(control, ground, parent);
    case ControlKind::Combo:
        return makeComboView(control, ground, parent);
    case ControlKind::Grid:
        return makeGridView(control, ground, parent);
    case ControlKind::TabStrip:
        return makeTabView(control, ground, parent);
    case ControlKind::Drawing:
        return makeDrawingView(control, ground, parent);
    case ControlKind::Menu:
    case ControlKind::Timer:
        return nullptr;
    default:
        return makePlainView(control, ground, parent);
    }
}

} // namespace kov::qt
