#pragma once

#include "platform/qt/control_view.hpp"

class QLineEdit;

namespace kov::qt {

/// Keeps a QLineEdit and the text of a box alike, also the one inside a combination list.
class LineEditMirror {
public:
    LineEditMirror(Control& control, Ground& ground, QLineEdit& edit);
    void sync();
    /// A press of the mouse gives the box the focus first. True when that is all: the focus was refused, or the window's logic
    /// selected a text, which the press would undo.
    [[nodiscard]] static bool pressTakesFocus(Control& control, Ground& ground);

private:
    void mirrorSelection();
    void showSelection();
    void edited();

    Control* control_;
    Ground* ground_;
    QLineEdit* edit_;
    bool showing_ = false; // what the box reports is our own doing
};

/// The one stretch that two texts differ in.
struct TextDifference {
    qsizetype start = 0;
    qsizetype oldLength = 0;
    QString inserted;
};
[[nodiscard]] TextDifference difference(const QString& before, const QString& after);

} // namespace kov::qt
