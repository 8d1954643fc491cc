#pragma once

#include "platform/qt/help/help_browser.hpp"
#include "platform/qt/help/help_window.hpp"

#include <QHelpEngine>
#include <QMainWindow>

class QLineEdit;
class QTabWidget;

namespace kov::qt {

/// Contents and keywords at the left, the page at the right, and the way back and forth above.
class HelpViewerWindow final : public QMainWindow, public HelpWindow {
    Q_OBJECT
public:
    explicit HelpViewerWindow(const QString& collection);
    /// False when the collection can't be opened.
    [[nodiscard]] bool open();

    bool showContext(int context, const QString& anchor) override;
    void showContents() override;
    void showSearch(const QString& keyword) override;

private:
    void build();
    [[nodiscard]] QWidget* makeIndex();
    void makeToolBar();
    void showPage(const QUrl& page, const QString& anchor = {});
    void bringUp();

    QHelpEngine engine_;
    HelpBrowser* browser_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    QLineEdit* keyword_ = nullptr;
};

} // namespace kov::qt
