#include "platform/qt/processes.hpp"

#include "platform/disk_files.hpp"
#include "platform/qt/command_line.hpp"
#include "platform/qt/text_codec.hpp"
#include "platform/qt/text_viewer.hpp"

#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

namespace kov::qt {
namespace {

constexpr int FileNotFound = 53, LookMilliseconds = 50;

/// The path behind "notepad ": all the rest of the line.
std::optional<std::string> viewedFile(const std::string& commandLine) {
    constexpr std::string_view viewer = "notepad ";
    const bool views = commandLine.starts_with(viewer) && QStandardPaths::findExecutable(QStringLiteral("notepad")).isEmpty();
    return views ? std::optional(commandLine.substr(viewer.size())) : std::nullopt;
}

QString hostPath(const Files& files, const std::string& path) {
    if (const auto* disk = dynamic_cast<const DiskFiles*>(&files)) {
        return QString::fromStdU16String(disk->place(path).u16string());
    }
    return toQt(path);
}

} // namespace

/// A started program that goes on when nobody looks at it any more.
class ChildProcess final : public QProcess {
public:
    ~ChildProcess() override { setProcessState(NotRunning); }
    ChildProcess() = default;
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
};

QtProcesses::QtProcesses(Files& files) : files_(&files) {}
QtProcesses::~QtProcesses() = default;

std::int32_t QtProcesses::start(const std::string& commandLine, int /*style*/, PlatformError& error) {
    if (const auto viewed = viewedFile(commandLine)) {
        viewText(hostPath(*files_, *viewed));
        children_.emplace(++last_, nullptr);
        return last_;
    }
    const auto call = programCall(toQt(commandLine));
    auto child = std::make_unique<ChildProcess>();
    child->setProcessChannelMode(QProcess::ForwardedChannels);
    child->setStandardInputFile(QProcess::nullDevice());
    child->setWorkingDirectory(hostPath(*files_, files_->currentFolder()));
    if (!call.program.isEmpty()) {
        child->start(call.program, call.arguments);
    }
    if (call.program.isEmpty() || !child->waitForStarted()) {
        error = {FileNotFound, "File not found"};
        return 0;
    }
    children_.emplace(++last_, std::move(child));
    return last_;
}

std::int32_t QtProcesses::exitCode(std::int32_t process) {
    const auto found = children_.find(process);
    if (found == children_.end() || !found->second) {
        return 0;
    }
    auto& child = *found->second;
    if (child.state() != QProcess::NotRunning && !child.waitForFinished(0)) {
        return StillActive;
    }
    // Of a program that a signal ended, the toolkit's exit code is the signal's number.
    return child.exitStatus() == QProcess::CrashExit ? -child.exitCode() : child.exitCode();
}

void QtProcesses::close(std::int32_t process) { children_.erase(process); }

void QtProcesses::wait(int milliseconds) {
    const auto loop = [this, milliseconds] {
        QEventLoop events;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &events, [&] {
            if (ended && ended()) {
                events.quit();
            }
        });
        look.start(LookMilliseconds);
        QTimer::singleShot(milliseconds, &events, &QEventLoop::quit);
        events.exec();
    };
    during ? during(loop) : loop();
}

} // namespace kov::qt
