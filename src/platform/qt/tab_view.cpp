#include "platform/qt/control_view.hpp"
#include "platform/qt/text_codec.hpp"

#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>

namespace kov::qt {
namespace {

/// Tabs with an empty pane below; the controls of the pages lie above it.
class TabView final : public ControlView {
public:
    TabView(Control& control, Ground& ground, QWidget* parent) : ControlView(control, ground), tabs_(new QTabWidget(parent)) {
        setWidget(tabs_);
        tabs_->tabBar()->setObjectName(controlLabel(control) + QStringLiteral(".tabs"));
        tabs_->tabBar()->setFocusPolicy(Qt::NoFocus);
        tabs_->setUsesScrollButtons(true);
    }
    [[nodiscard]] QWidget& target() const override { return *tabs_->tabBar(); }

    bool pressed(const QMouseEvent& event) override {
        const int tab = tabs_->tabBar()->tabAt(event.position().toPoint());
        if (event.button() == Qt::LeftButton && tab >= 0) {
            act([&] { desk().chooseTab(control(), tab); });
        }
        return true;
    }

private:
    void syncContent() override {
        const auto& part = control().tabs();
        const int count = static_cast<int>(part.tabs.size());
        while (tabs_->count() > count) {
            auto* page = tabs_->widget(tabs_->count() - 1);
            tabs_->removeTab(tabs_->count() - 1);
            page->deleteLater();
        }
        for (int i = 0; i < count; ++i) {
            const auto& tab = part.tabs[static_cast<std::size_t>(i)];
            const auto caption = toQt(tab.caption);
            if (i >= tabs_->count()) {
                tabs_->addTab(new QWidget(tabs_), caption);
            } else if (tabs_->tabText(i) != caption) {
                tabs_->setTabText(i, caption);
            }
            tabs_->setTabEnabled(i, tab.enabled);
        }
        tabs_->setCurrentIndex(part.current);
    }
    QTabWidget* tabs_;
};

} // namespace

std::unique_ptr<ControlView> makeTabView(Control& control, Ground& ground, QWidget* parent) {
    return std::make_unique<TabView>(control, ground, parent);
}

} // namespace kov::qt
