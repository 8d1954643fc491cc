#include "platform/qt/help/help_browser.hpp"

#include <QDesktopServices>

namespace kov::qt {
namespace {

constexpr double Margin = 14;

} // namespace

HelpBrowser::HelpBrowser(QHelpEngine& engine, QWidget* parent) : QTextBrowser(parent), engine_(engine) {
    setObjectName(QStringLiteral("HelpPage"));
    setAccessibleName(tr("Help page"));
    document()->setDocumentMargin(Margin);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const auto place = name.isRelative() ? source().resolved(name) : name;
    return place.scheme() == QLatin1String("qthelp") ? QVariant(engine_.fileData(place))
                                                     : QTextBrowser::loadResource(type, name);
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    const auto place = name.isRelative() ? source().resolved(name) : name;
    if (place.scheme() == QLatin1String("qthelp")) {
        QTextBrowser::doSetSource(place, type);
    } else {
        QDesktopServices::openUrl(place);
    }
}

void HelpBrowser::showPage(const QUrl& page, const QString& anchor) {
    auto place = page;
    place.setFragment(anchorOn(page, anchor));
    setSource(place);
}

QString HelpBrowser::anchorOn(const QUrl& page, const QString& anchor) const {
    const auto html = QString::fromUtf8(engine_.fileData(page));
    // A box of an array may have no line of its own: then its array has.
    for (const auto& name : {anchor, anchor.section(QLatin1Char('('), 0, 0)}) {
        if (!name.isEmpty() && html.contains(QStringLiteral("<a name=\"%1\">").arg(name))) {
            return name;
        }
    }
    return {};
}

} // namespace kov::qt
