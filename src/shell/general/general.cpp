#include "shell/general/general.hpp"

#include "shell/entry/layout.hpp"
#include "shell/entry/menus.hpp"

#include <array>

namespace kov {
namespace {

constexpr std::array Fields{
    Field{"tbDBAmb", "Ambient Dry Bulb Temp", "Deg F", real(-50, 140), "Dry-bulb Temperature: -50 to 140 Deg F",
          &KOVDataSet::TDBAmb, "Form 1F, columns 1-10"},
    // The hints of the wet bulbs name the dry bulb as their upper limit; the check knows only the fixed range.
    Field{"tbWBAmb", "Ambient Wet Bulb Temp", "Deg F", real(-50, 140), "Wet-bulb Temperature: -50 to Ambient Dry Bulb",
          &KOVDataSet::TWBAmb, "Form 1F, columns 11-20"},
    Field{"tbPAmb", "Barometric Pressure", "In. Hg", real(20, 32), "Barometric Pressure: 20 to 32 in. Hg", &KOVDataSet::PAmb,
          "Form 1F, columns 21-30"},
    Field{"tbAMDB", "Morning Ambient Dry Bulb", "Deg F", real(-50, 140), "Dry-bulb Temperature: -50 to 140 Deg F",
          &KOVDataSet::TAmbA, "Form 1F, columns 31-40"},
    Field{"tbAMWB", "Morning Ambient Wet Bulb", "Deg F", real(-50, 140), "Wet-bulb Temperature: -50 to AM Dry-bulb",
          &KOVDataSet::TWAmbA, "Form 1F, columns 41-50"},
    Field{"tbPMDB", "Evening Ambient Dry Bulb", "Deg F", real(-50, 140), "Dry-bulb Temperature: -50 to 140 Deg F",
          &KOVDataSet::TAmbM, "Form 1F, columns 51-60"},
    Field{"tbPMWB", "Evening Ambient Wet Bulb", "Deg F", real(-50, 140), "Wet-bulb Temperature: -50 to PM Dry-bulb",
          &KOVDataSet::TWAmbE, "Form 1F, columns 61-70"},
    Field{"tbAnnAmp", "Amplitude of Annual Temperature Fluctuation", "Deg F", real(0, 50), "0 to 50 F Deg",
          &KOVDataSet::TAnnAmp, "Form 1F, columns 71-80"},
    Field{"tbEFMux", "Moving Train", "%", real(0, 100), "0 - 100%", &KOVDataSet::EFMux, "Form 1G, columns 21-30"},
    Field{"tbEFSux", "Stopped Train", "%", real(0, 100), "0 - 100%", &KOVDataSet::EFSux, "Form 1G, columns 11-20"},
    Field{"tbEFAMux", "Propulsion and Braking ", "%", real(0, 100), "0 - 100%", &KOVDataSet::EFAMux, "Form 1G, columns 41-50"},
    Field{"tbEFASux", "", "%", real(0, 100), "0 - 100%", &KOVDataSet::EFASux, "Form 1G, columns 31-40"},
    Field{"tbUMaxux", "Maximum Train Speed at Which TES Operates", "MPH", real(0, 100), "Max Train Speed: 0 to 100 MPH",
          &KOVDataSet::UMaxUx, "Form 1G, columns 51-60"},
};

constexpr std::span<const Field> All{Fields};
constexpr auto DesignHour = All.subspan(0, 3), Daily = All.subspan(3, 4), Annual = All.subspan(7, 1);
constexpr auto Auxiliaries = All.subspan(8, 2), Propulsion = All.subspan(10, 2), Speed = All.subspan(12, 1);

constexpr EntryWindowTraits Traits{"General Data", "Form 1", 1110, {}, {}};
constexpr int CaptionCharacters = 18;

void addFields(LayoutPanel& panel, std::span<const Field> fields) {
    for (const auto& field : fields) {
        panel.field(field);
    }
}

} // namespace

std::span<const Field> General::fields() { return All; }

General::General(Application& app, Window& window) : app_(app), window_(window), entry_(app, window, Traits) {
    build();
    for (const auto& field : All) {
        bindField(app_, entry_.flags, window_.control(field.control), field.hint, field.rule);
    }
    entry_.bindStandardControls();
    entry_.bindNavigation("cmdGoOptions", "Options");
    entry_.assign = [this] { assign(); };
    entry_.loadStep();
    load();
}

void General::build() {
    addEditMenu(window_);
    addHelpMenu(window_);
    Layout layout(window_);
    addFields(layout.panel("pnlDesignHour", "Design Hour Weather Data", CaptionCharacters), DesignHour);
    addFields(layout.panel("pnlDaily", "Daily Weather Data", CaptionCharacters), Daily);
    layout.nextColumn();
    addFields(layout.panel("pnlAnnual", "Annual Weather Data", CaptionCharacters), Annual);
    auto& exhaust = layout.panel("pnlExhaust", "Trackway Exhaust System", CaptionCharacters);
    exhaust.note("lblPercent", "Percent of Heat Captured from:");
    exhaust.headings("lblTrain", {Auxiliaries[0].caption, Auxiliaries[1].caption});
    exhaust.boxes("Auxiliaries and Passengers ", Auxiliaries);
    exhaust.boxes(Propulsion[0].caption, Propulsion);
    addFields(exhaust, Speed);
    layout.button("cmdDone", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.button("cmdGoOptions", "OPTIONS");
    layout.finish();
}

void General::load() {
    for (const auto& field : All) {
        window_.control(field.control).setText(((*app_.DataSet).*field.member).view());
    }
}

void General::assign() {
    for (const auto& field : All) {
        (*app_.DataSet).*field.member = window_.control(field.control).text().text;
    }
}

} // namespace kov
