#include "platform/qt/control_view.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/text_codec.hpp"

#include <QPaintEvent>
#include <QPainter>
#include <QPolygonF>

#include <cstddef>

namespace kov::qt {
namespace {

using Tone = DrawingPart::Tone;
using Anchor = DrawingPart::Anchor;

constexpr double AxisWidth = 1.2, FaintWidth = 1, CurveWidth = 2, MarkRadius = 2.8;

QPointF pointOf(const DrawingPart::Point& point) { return {point.x.pixels(), point.y.pixels()}; }

double widthOf(Tone tone) {
    switch (tone) {
    case Tone::Faint:
        return FaintWidth;
    case Tone::First:
    case Tone::Second:
        return CurveWidth;
    default:
        return AxisWidth;
    }
}

/// Paints what the logic has computed, in the colours of the look, and computes nothing itself.
class DrawingWidget final : public QWidget {
public:
    DrawingWidget(const DrawingPart& drawing, QWidget* parent) : QWidget(parent), drawing_(&drawing) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.fillRect(event->rect(), palette().color(QPalette::Base));
        painter.setRenderHint(QPainter::Antialiasing);
        for (const auto& line : drawing_->lines) {
            paint(painter, line);
        }
        painter.setPen(Qt::NoPen);
        for (const auto& mark : drawing_->marks) {
            painter.setBrush(toneColor(mark.tone, palette()));
            painter.drawEllipse(pointOf(mark.at), MarkRadius, MarkRadius);
        }
        for (const auto& label : drawing_->labels) {
            paint(painter, label);
        }
    }

private:
    void paint(QPainter& painter, const DrawingPart::Polyline& line) const {
        QPen pen(toneColor(line.tone, palette()), widthOf(line.tone));
        pen.setJoinStyle(Qt::RoundJoin);
        pen.setStyle(line.dashed ? Qt::DashLine : Qt::SolidLine);
        painter.setPen(pen);
        QPolygonF points;
        for (const auto& point : line.points) {
            points.append(pointOf(point));
        }
        painter.drawPolyline(points);
    }
    void paint(QPainter& painter, const DrawingPart::Label& label) const {
        const auto text = toQt(label.text);
        const auto metrics = painter.fontMetrics();
        const double width = metrics.horizontalAdvance(text);
        const auto at = pointOf(label.at);
        const double left =
            label.anchor == Anchor::Left ? at.x() : at.x() - (label.anchor == Anchor::Center ? width / 2 : width);
        painter.setPen(toneColor(label.tone, palette()));
        painter.drawText(QPointF(left, at.y() + (metrics.ascent() - metrics.descent()) / 2.0), text);
    }

    const DrawingPart* drawing_;
};

class DrawingView final : public ControlView {
public:
    DrawingView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground) {
        setWidget(new DrawingWidget(control.drawing(), parent));
    }

private:
    void syncContent() override {
        if (const auto revision = control().drawing().revision; revision != shown_) {
            shown_ = revision;
            widget().update();
        }
    }
    std::size_t shown_ = 0;
};

} // namespace

std::unique_ptr<ControlView> makeDrawingView(Control& control, Ground& ground, QWidget* parent) {
    return std::make_unique<DrawingView>(control, ground, parent);
}

} // namespace kov::qt
