#pragma once

#include "core/dataset/dataset.hpp"
#include "platform/desk.hpp"
#include "shell/entry/current_file.hpp"
#include "shell/entry/line_selection.hpp"

#include <cstdint>
#include <memory>
#include <string>

namespace kov {

/// What the whole program shares: the one data set, the flag of unsaved changes, the program's folder, the cell under the open
/// overlay, and the font that the engineer chose. Every window is given it.
struct Application {
    explicit Application(Desk& theDesk) : desk(theDesk) {}

    Desk& desk;
    /// Shared, since a window goes on holding what it shows when another data set takes its place.
    std::shared_ptr<KOVDataSet> DataSet;
    CurrentFile current;
    LineSelection lineSelection;
    std::int16_t CurShaft = 0; ///< which shaft the window `vshaft` is to show first, from 1; 0: the first
    bool FileDirty = false;    ///< the file has changes that are not saved
    std::string AppPath;       ///< the program's folder, without a separator at its end
    int GridRow = 0;           ///< row of the cell under the open overlay, from 0
    int GridCol = 0;           ///< its column, from 0
    std::string UserFontName;
    int UserFontSize = 0; ///< 0: the design font

    [[nodiscard]] MessageSink& messages() const { return desk.services().messages; }
};

} // namespace kov
