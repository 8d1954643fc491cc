#pragma once

#include <QString>

namespace kov::qt {

/// Shows a text file to read: the desktop's viewer, else a plain window of ours, which goes when it is closed.
void viewText(const QString& path);

} // namespace kov::qt
