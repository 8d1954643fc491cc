// A plug-in for the toolkit that measures a program from inside without a change to it: when the first window shows, it notes
// the time; when the program has come to rest, it prints the time and the resident memory, and ends the program.
//   stdout: NANOSECONDS-OF-THE-MONOTONIC-CLOCK KILOBYTES

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QObject>
#include <QTimer>
#include <QWindow>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int RestMilliseconds = 300;

long residentKilobytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const auto& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.mid(6).trimmed().split(' ').constFirst().toLong();
            }
        }
    }
    return 0;
}

class Probe final : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!seen_ && event->type() == QEvent::Expose) {
            if (const auto* window = qobject_cast<QWindow*>(watched); window != nullptr && window->isExposed()) {
                seen_ = true;
                // Behind the paint that this event asks for.
                QTimer::singleShot(0, this, [this] { shown(); });
            }
        }
        return false;
    }

private:
    void shown() {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        const long long shownAt = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
        QTimer::singleShot(RestMilliseconds, this, [shownAt] {
            std::printf("%lld %ld\n", shownAt, residentKilobytes());
            std::fflush(stdout);
            std::_Exit(0);
        });
    }
    bool seen_ = false;
};

} // namespace

class ProbePlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "start_probe.json")
public:
    QObject* create(const QString& key, const QString& /*arguments*/) override {
        if (key.compare(QStringLiteral("kovprobe"), Qt::CaseInsensitive) != 0) {
            return nullptr;
        }
        auto* probe = new Probe(QCoreApplication::instance());
        QCoreApplication::instance()->installEventFilter(probe);
        return probe;
    }
};

#include "start_probe.moc"
