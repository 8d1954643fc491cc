#pragma once

#include "platform/controls.hpp"

#include <QColor>
#include <QFont>

class QApplication;
class QPalette;

namespace kov::qt {

enum class Look { Light, Dark };

/// One style and one set of colours for all windows, so that they look alike on every desktop.
void setLook(QApplication& application, Look look);
/// What the person's desktop asks for.
[[nodiscard]] Look lookOfDesktop(const QApplication& application);

/// The font of everything that has none of its own.
[[nodiscard]] QFont designFont();
/// The font of boxes whose columns count.
[[nodiscard]] QFont fixedFont();

/// Lines between the cells of a grid, around panels and the like.
[[nodiscard]] QColor lineColor(const QPalette& palette);
/// The colour of a drawing's tone on the palette's base colour.
[[nodiscard]] QColor toneColor(DrawingPart::Tone tone, const QPalette& palette);

} // namespace kov::qt
