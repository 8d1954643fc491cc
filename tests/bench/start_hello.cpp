// The least that a desktop program on the toolkit does: one window with one label.
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QLabel hello(QStringLiteral("Hello"));
    hello.resize(633, 458);
    hello.show();
    return QApplication::exec();
}
