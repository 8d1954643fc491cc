#include "platform/qt/messages.hpp"

#include "platform/qt/text_codec.hpp"

#include <QApplication>
#include <QMessageBox>

namespace kov::qt {
namespace {

constexpr int ButtonBits = 7, IconBits = 0x70;

QMessageBox::StandardButtons buttonsOf(int style) {
    switch (style & ButtonBits) {
    case 1:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case 3:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case 4:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int style) {
    switch (style & IconBits) {
    case 16:
        return QMessageBox::Critical;
    case 32:
        return QMessageBox::Question;
    case 48:
        return QMessageBox::Warning;
    case 64:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

Answer answerOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

} // namespace

Answer QtMessages::show(int style, const std::string& title, const std::string& prompt) {
    if (beforeBox) {
        beforeBox();
    }
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setWindowTitle(title.empty() ? QStringLiteral("KOV Input Data") : toQt(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQtLines(prompt));
    box.setIcon(iconOf(style));
    box.setStandardButtons(buttonsOf(style));
    return answerOf(box.exec());
}

} // namespace kov::qt
