#include "platform/qt/control_view.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/text_codec.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QFrame>
#include <QGroupBox>
#include <QImageReader>
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
        const auto text = toQt(plainCaption(control().caption)).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        if (text != label_->text()) {
            label_->setText(text);
        }
        label_->setAlignment((control().alignRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        label_->setWordWrap(label_->height() >= 2 * label_->fontMetrics().height());
    }
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

/// A picture of a file beside the program, fitted into its place. A file that isn't there leaves it empty.
class ImageView final : public ControlView {
public:
    ImageView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground), label_(new QLabel(parent)) {
        label_->setAlignment(Qt::AlignCenter);
        setWidget(label_);
    }

private:
    void syncContent() override {
        const auto& path = std::get<ImagePart>(control().part).path;
        if (path == shown_ && label_->size() == size_) {
            return;
        }
        shown_ = path;
        size_ = label_->size();
        label_->setPixmap(path.empty() ? QPixmap() : load(path));
    }
    [[nodiscard]] QPixmap load(const std::string& path) const {
        auto name = toQt(path);
        name.replace(QLatin1Char('\\'), QLatin1Char('/'));
        QImageReader reader(QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(name));
        // By its name alone a ".dib" would be one without the head that picture files have.
        reader.setDecideFormatFromContent(true);
        const auto ratio = label_->devicePixelRatioF();
        if (const auto whole = reader.size(); whole.isValid()) {
            reader.setScaledSize(whole.scaled((QSizeF(label_->size()) * ratio).toSize(), Qt::KeepAspectRatio));
        }
        auto picture = QPixmap::fromImage(reader.read());
        picture.setDevicePixelRatio(ratio);
        return picture;
    }
    QLabel* label_;
    std::string shown_;
    QSize size_;
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
        return std::make_unique<ImageView>(control, ground, parent);
    case ControlKind::Progress:
        return std::make_unique<ProgressView>(control, ground, parent);
    default:
        return std::make_unique<LabelView>(control, ground, parent);
    }
}

} // namespace kov::qt
