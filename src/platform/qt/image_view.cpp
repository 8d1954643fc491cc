#include "platform/qt/control_view.hpp"
#include "platform/qt/text_codec.hpp"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>

namespace kov::qt {
namespace {

/// The file of a picture beside the program. The diagrams that come with the program are vector drawings: "aero1.svg" stands
/// for "aero1.dib" where that one isn't there.
QString pictureFile(const std::string& path) {
    auto name = toQt(path);
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QFileInfo file(QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(name));
    if (file.exists()) {
        return file.absoluteFilePath();
    }
    return file.dir().absoluteFilePath(file.completeBaseName() + QStringLiteral(".svg"));
}

/// A picture fitted into its place. A file that isn't there leaves it empty.
class ImageView final : public ControlView {
public:
    ImageView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground), label_(new QLabel(parent)) {
        label_->setAlignment(Qt::AlignCenter);
        setWidget(label_);
    }

private:
    void syncContent() override {
        const auto& path = control().image().path;
        const auto ink = label_->palette().color(QPalette::WindowText);
        if (path == shown_ && label_->size() == size_ && ink == ink_) {
            return;
        }
        shown_ = path;
        size_ = label_->size();
        ink_ = ink;
        label_->setPixmap(path.empty() ? QPixmap() : load());
    }
    [[nodiscard]] QPixmap load() const {
        QFile file(pictureFile(shown_));
        if (!file.open(QIODevice::ReadOnly)) {
            return {};
        }
        auto content = file.readAll();
        if (file.fileName().endsWith(QStringLiteral(".svg"))) {
            content.replace("currentColor", ink_.name().toLatin1()); // lines as dark, or as light, as the texts around
        }
        QBuffer buffer(&content);
        QImageReader reader(&buffer);
        const auto ratio = label_->devicePixelRatioF();
        if (const auto whole = reader.size(); whole.isValid()) {
            reader.setScaledSize(whole.scaled((QSizeF(size_) * ratio).toSize(), Qt::KeepAspectRatio));
        }
        auto picture = QPixmap::fromImage(reader.read());
        picture.setDevicePixelRatio(ratio);
        return picture;
    }
    QLabel* label_;
    std::string shown_;
    QSize size_;
    QColor ink_;
};

} // namespace

std::unique_ptr<ControlView> makeImageView(Control& control, Ground& ground, QWidget* parent) {
    return std::make_unique<ImageView>(control, ground, parent);
}

} // namespace kov::qt
