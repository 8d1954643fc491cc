#include "platform/qt/control_view.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/text_codec.hpp"

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>

#include <algorithm>

namespace kov::qt {
namespace {

class LabelView final : public ControlView {
public:
    LabelView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground), label_(new QLabel(parent)) {
        label_->setTextFormat(Qt::PlainText);
        setWidget(label_);
    }

private:
    void syncContent() override {
        if (const auto text = shownText(); text != label_->text()) {
            label_->setText(text);
        }
        label_->setAlignment((control().alignRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        label_->setWordWrap(wraps(label_->height()));
    }
    /// A text that is wider than its place takes the free room beside it, and is set a little narrower when that isn't enough:
    /// a unit or a caption is never cut. In a place of several lines only its longest word, or a little more, has to fit.
    [[nodiscard]] QRect placeOf(const QRect& own) override {
        const bool tall = wraps(own.height());
        const int missing = std::max(wanted(own.width(), tall) - own.width(), 0);
        const auto* parent = label_->parentWidget();
        const int room = control().alignRight ? own.left() - Edge : parent->width() - Edge - own.right();
        const int taken = std::min(std::max(room, 0), missing);
        const auto place = own.adjusted(control().alignRight ? -taken : 0, 0, control().alignRight ? 0 : taken, 0);
        narrow(tall ? QWIDGETSIZE_MAX : place.width());
        return place;
    }
    [[nodiscard]] int wanted(int width, bool tall) const {
        const auto text = shownText();
        const int whole = needed(text, Plain);
        if (!tall || (!control().index && whole - width <= Little)) { // columns stand close by
            return whole;
        }
        int longest = 0;
        for (const auto& word : text.split(QLatin1Char(' '))) {
            longest = std::max(longest, needed(word, Plain));
        }
        return longest;
    }
    void narrow(int width) {
        for (const int stretch : {Plain, 95, 90, 85, Narrowest}) {
            auto font = label_->font();
            font.setStretch(stretch);
            if (needed(shownText(), stretch) <= width || stretch == Narrowest) {
                if (font != label_->font()) {
                    label_->setFont(font);
                }
                return;
            }
        }
    }
    [[nodiscard]] int needed(const QString& text, int stretch) const {
        auto font = label_->font();
        font.setStretch(stretch);
        return QFontMetrics(font).horizontalAdvance(text) + 1;
    }
    [[nodiscard]] bool wraps(int height) const { return height >= 2 * label_->fontMetrics().height(); }
    [[nodiscard]] QString shownText() const {
        return toQt(plainCaption(control().caption)).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    }
    static constexpr int Edge = 2, Little = 8, Plain = QFont::Unstretched, Narrowest = 80;
    QLabel* label_;
};

class PanelView final : public ControlView {
public:
    PanelView(Control& control, Ground& ground, QWidget* parent)
        : ControlView(control, ground), frame_(new QFrame(parent)), caption_(new QLabel(frame_)) {
        frame_->setFrameShape(QFrame::StyledPanel);
        caption_->setTextFormat(Qt::PlainText);
        caption_->setAlignment(Qt::AlignCenter);
        setWidget(frame_);
    }

private:
    void syncContent() override {
        caption_->setText(toQt(plainCaption(control().caption)));
        caption_->setGeometry(frame_->rect());
        caption_->setVisible(!control().caption.empty());
    }
    QFrame* frame_;
    QLabel* caption_;
};

class FrameView final : public ControlView {
public:
    FrameView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground), box_(new QGroupBox(parent)) {
        setWidget(box_);
    }

private:
    void syncContent() override {
        auto title = toQt(plainCaption(control().caption)).replace(QLatin1Char('&'), QStringLiteral("&&"));
        if (title != box_->title()) {
            box_->setTitle(title);
        }
    }
    QGroupBox* box_;
};

/// A straight line from corner to corner.
class LineWidget final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing, width() > 1 && height() > 1);
        painter.setPen(lineColor(palette()));
        painter.drawLine(0, 0, width() - 1, height() - 1);
    }
};

class LineView final : public ControlView {
public:
    LineView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground) {
        setWidget(new LineWidget(parent));
        widget().setMinimumSize(1, 1);
    }
};

class ProgressView final : public ControlView {
public:
    ProgressView(Control& control, Ground& ground, QWidget* parent)
        : ControlView(control, ground), bar_(new QProgressBar(parent)) {
        bar_->setTextVisible(false);
        setWidget(bar_);
    }

private:
    void syncContent() override {
        const auto& part = control().progress();
        const int max = std::max(part.max, 1);
        const int value = std::clamp(part.value, 0, max); // beyond its end it is full
        if (bar_->maximum() == max && bar_->value() == value) {
            return;
        }
        bar_->setRange(0, max);
        bar_->setValue(value);
        if (desk().busy() && bar_->isVisible()) {
            bar_->repaint(); // the task goes on without giving the event loop a turn
        }
    }
    QProgressBar* bar_;
};

} // namespace

std::unique_ptr<ControlView> makePlainView(Control& control, Ground& ground, QWidget* parent) {
    switch (control.kind) {
    case ControlKind::Panel:
        return std::make_unique<PanelView>(control, ground, parent);
    case ControlKind::Frame:
        return std::make_unique<FrameView>(control, ground, parent);
    case ControlKind::Line:
        return std::make_unique<LineView>(control, ground, parent);
    case ControlKind::Image:
        return makeImageView(control, ground, parent);
    case ControlKind::Progress:
        return std::make_unique<ProgressView>(control, ground, parent);
    default:
        return std::make_unique<LabelView>(control, ground, parent);
    }
}

} // namespace kov::qt
