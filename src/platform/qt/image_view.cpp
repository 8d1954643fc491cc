#include "platform/qt/control_view.hpp"
#include "platform/qt/text_codec.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <QLabel>

namespace kov::qt {
namespace {

/// The file of a picture beside the program.
QString pictureFile(const std::string& path) {
    auto name = toQt(path);
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(name);
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
        if (path == shown_ && label_->size() == size_) {
            return;
        }
        shown_ = path;
        size_ = label_->size();
        label_->setPixmap(path.empty() ? QPixmap() : load());
    }
    [[nodiscard]] QPixmap load() const {
        QImageReader reader(pictureFile(shown_));
        reader.setDecideFormatFromContent(true); // a ".dib" bears the head of a bitmap file
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
};

} // namespace

std::unique_ptr<ControlView> makeImageView(Control& control, Ground& ground, QWidget* parent) {
    return std::make_unique<ImageView>(control, ground, parent);
}

} // namespace kov::qt
