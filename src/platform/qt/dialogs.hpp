#pragma once

#include "platform/services.hpp"

#include <QString>

#include <functional>

namespace kov::qt {

class QtPrinter;

/// The common dialogs of the toolkit.
class QtDialogs final : public Dialogs {
public:
    explicit QtDialogs(QtPrinter& printer) : printer_(&printer) {}
    DialogResult show(const DialogRequest& request) override;
    /// Called before a dialog opens.
    std::function<void()> beforeDialog;

private:
    [[nodiscard]] DialogResult showPrint();
    QtPrinter* printer_;
};

/// "Name|*.A;*.B|Name|*.*" as the toolkit writes it. Names of files are compared with their case on some hosts, so a pattern
/// counts in capitals and in small letters.
[[nodiscard]] QStringList nameFilters(const std::string& filter);

} // namespace kov::qt
