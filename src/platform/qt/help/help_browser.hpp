#pragma once

#include <QHelpEngine>
#include <QTextBrowser>

namespace kov::qt {

/// Shows pages out of a help collection.
class HelpBrowser final : public QTextBrowser {
    Q_OBJECT
public:
    HelpBrowser(QHelpEngine& engine, QWidget* parent);
    /// The page, at the anchor when the page has it.
    void showPage(const QUrl& page, const QString& anchor);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

private:
    [[nodiscard]] QString anchorOn(const QUrl& page, const QString& anchor) const;

    QHelpEngine& engine_;
};

} // namespace kov::qt
