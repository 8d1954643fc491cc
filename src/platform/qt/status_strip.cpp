#include "platform/qt/status_strip.hpp"

#include "platform/desk.hpp"
#include "platform/qt/control_view.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/text_codec.hpp"

#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QTime>
#include <QTimer>

namespace kov::qt {
namespace {

constexpr int ClockInterval = 1000, Hints = 1, Clock = 2, Gap = 6;
constexpr Twips FormWidth{1500}, ClockWidth{1200};

} // namespace

StatusStrip::StatusStrip(const Desk& desk, bool realTimers, QWidget* parent) : QStatusBar(parent), desk_(&desk) {
    setObjectName(QStringLiteral("StatBar1"));
    setSizeGripEnabled(false);
    setContentsMargins(Gap, 0, Gap, 0);
    for (int i = 0; i <= Clock; ++i) {
        auto* panel = new QLabel(this);
        panel->setObjectName(QStringLiteral("StatBar1.%1").arg(i + 1));
        panel->setTextFormat(Qt::PlainText);
        panel->setMinimumWidth(1);
        addWidget(panel, i == Hints ? 1 : 0);
        panels_.at(static_cast<std::size_t>(i)) = panel;
    }
    panels_.front()->setFixedWidth(pixels(FormWidth));
    panels_.back()->setAlignment(Qt::AlignCenter);
    panels_.back()->setFixedWidth(pixels(ClockWidth));
    if (realTimers) {
        auto* clock = new QTimer(this);
        QObject::connect(clock, &QTimer::timeout, this, [this] { sync(); });
        clock->start(ClockInterval);
    }
}

void StatusStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(lineColor(palette()));
    painter.drawLine(0, 0, width(), 0);
    for (const auto* panel : {panels_.at(Hints), panels_.at(Clock)}) {
        const int x = panel->x() - Gap / 2;
        painter.drawLine(x, Gap, x, height() - Gap);
    }
}

void StatusStrip::sync() {
    for (int i = 0; i < Clock; ++i) {
        const auto text = toQt(desk_->panel(i + 1));
        if (auto* panel = panels_.at(static_cast<std::size_t>(i)); panel->text() != text) {
            panel->setText(text);
        }
    }
    panels_.back()->setText(QLocale().toString(QTime::currentTime(), QLocale::ShortFormat));
}

} // namespace kov::qt
