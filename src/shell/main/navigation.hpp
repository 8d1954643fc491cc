#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kov {

/// What must be switched on, or be there, before an editor opens.
enum class Needs : std::uint8_t { Nothing, TrainOption, ZoneOption, LineSections, VentSections, Fans };

/// One editor: the window it is, its button in the main window, and its entry in the Data menu.
struct Destination {
    int button; ///< index of `Command1`, from 0; -1 when there is none
    std::string_view buttonCaption;
    std::string_view window;
    std::string_view entry;
    std::string_view entryCaption;
    Needs needs = Needs::Nothing;
    bool entryConnected = true; ///< false: the menu entry is enabled and disabled, and does nothing
};

/// In the order of the Data menu.
inline constexpr std::array Destinations{
    Destination{0, "General", "General", "ME_General", "&General ..."},
    Destination{1, "Options", "Options", "MD_Options", "&Options ..."},
    Destination{2, "Sim Control", "SimCtrl", "ME_Control", "&Control ..."},
    Destination{3, "Line Sections", "frmLSect", "ME_Line", "&Line Sections ..."},
    Destination{4, "Line Segments", "lseg", "ME_LSeg", "Line &Segments ...", Needs::LineSections},
    Destination{5, "Nodes", "NodeDtl", "MD_Nodes", "&Nodes ..."},
    Destination{6, "Vent Sections", "frmVSect", "ME_Vent", "&Vent Sections ..."},
    Destination{7, "Vent Shafts", "vshaft", "ME_Shafts", "Vent S&hafts ...", Needs::VentSections},
    Destination{8, "Fans", "frmXFan", "ME_Fans", "Supply/Exh &Fans ..."},
    Destination{11, "Impulse Fans", "frmIFan", "MD_Impulse", "&Impulse Fans ..."},
    Destination{-1, "", "FanTable", "MD_FanTable", "Fan Table ...", Needs::Fans},
    Destination{9, "Fires", "frmFires", "MD_Fires", "Fir&es ..."},
    Destination{10, "EC Zones", "ECZones", "MD_ECZones", "Env Control &Zones ...", Needs::ZoneOption},
    Destination{14, "Routes", "Route1", "ME_Routes", "&Routes ...", Needs::TrainOption},
    Destination{13, "Trains", "Trains", "ME_Trains", "&Trains ...", Needs::TrainOption},
    Destination{12, "Train Init", "TrnInit", "MD_TrainInit", "Tr&ain Initialization ...", Needs::TrainOption, false},
    Destination{-1, "", "frmCounts", "MD_Counts", "&Data Counts ..."},
};

inline constexpr int ButtonCount = 15;

} // namespace kov
