#pragma once

#include "platform/window.hpp"
#include "shell/entry/field.hpp"

#include <array>
#include <string_view>

namespace kov {

/// The design size of the main window.
inline constexpr Twips DesignWidth{9495}, DesignHeight{6870};

/// The fields of the main window, Forms 1A and 1B and the last field of Form 1C.
inline constexpr std::array MainFields{
    Field{"tbSysID", "System Identification", "", text(), "System Identification", nullptr, "Form 1A, line 1"},
    Field{"tbTitle", "Run Description", "", text(), "Up to 19 additional lines of up to 80 characters each", nullptr,
          "Form 1A, lines 2 to 20"},
    Field{"tbDgnHr", "Design Hour", "", real(0, 24), "Design Hour (0-24) with minutes entered as fraction of 60",
          &KOVDataSet::DgnHr, "Form 1B, columns 1-10"},
    Field{"tbDgnMon", "Design Month", "", real(0, 12), "Design Month (1=Coldest; 7=Hottest)", &KOVDataSet::DgnMon,
          "Form 1B, columns 11-20"},
    Field{"tbDgnYr", "Design Year", "", real(40, 2999), "Design Year", &KOVDataSet::DgnYr, "Form 1B, columns 21-30"},
    Field{"ckInputVer", "Input Verification Only", "", checkBox(),
          "Checking this box prevents simulation from starting after input verification.", nullptr, "Form 1C, columns 71-80"},
};

/// Makes the controls and the menu of the main window, at their design places.
void buildMainControls(Window& window);

} // namespace kov
