#include "shell/main/counts.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/layout.hpp"
#include "shell/entry/scale_form.hpp"

#include <array>
#include <string_view>

namespace kov {
namespace {

constexpr std::array Fields{
    Field{"tbnnlsec", "Line Sections", "", text(), "", nullptr, "Form 1D, columns 11-20 less columns 21-30"},
    Field{"tbnvsec", "Vent Shafts", "", text(), "", nullptr, "Form 1D, columns 21-30"},
    Field{"tbnls", "Line Segments", "", text(), "", nullptr, "Form 1D, columns 1-10"},
    Field{"tbnnodes", "Nodes", "", text(), "", nullptr, "Form 1D, columns 31-40"},
    Field{"tbnfans", "Supply/Exh Fans", "", text(), "", nullptr, "Form 1D, columns 71-80"},
    Field{"tbnIFans", "Impulse Fans", "", text(), "", nullptr, "Form 1E, columns 51-60"},
    Field{"tbnumul", "Fires", "", text(), "", nullptr, "Form 1D, columns 61-70"},
    Field{"tbntrrte", "Routes", "", text(), "", nullptr, "Form 1E, columns 1-10"},
    Field{"tbntrtyp", "Train Types", "", text(), "", nullptr, "Form 1E, columns 11-20"},
    Field{"tbntran", "Initial Trains", "", text(), "", nullptr, "Form 1E, columns 41-50"},
    Field{"tbclust", "EC Zones", "", text(), "", nullptr, "Form 1E, columns 21-30"},
};

constexpr std::span<const Field> All{Fields};
constexpr std::size_t NetworkItems = 7;
constexpr Twips BesideLeft{150}, BelowTop{360};

void addFields(LayoutPanel& panel, std::span<const Field> fields) {
    for (const auto& field : fields) {
        panel.field(field).text().locked = true;
    }
}

} // namespace

std::span<const Field> Counts::fields() { return All; }

Counts::Counts(Application& app, Window& window) : app_(app), window_(window) {
    window_.caption = "Data Item Counts";
    build();
    window_.oldW = window_.bounds.width;
    window_.oldH = window_.bounds.height;
    if (const auto* main = app_.desk.find("frmMain")) {
        window_.bounds.left = main->bounds.left + BesideLeft;
        window_.bounds.top = main->bounds.top + BelowTop;
    }
    window_.on.resize = [this] { ScaleForm(app_, window_); };
    window_.control("cmdOkay").on.click = [this] { app_.desk.unload(window_); };
    load();
}

void Counts::build() {
    Layout layout(window_);
    addFields(layout.panel("pnlNetwork", "Network"), All.first(NetworkItems));
    layout.nextColumn();
    addFields(layout.panel("pnlTrains", "Trains and Zones"), All.subspan(NetworkItems));
    layout.nextBand();
    layout.panel("pnlNote", "Note")
        .note("lblNote", "This data is for information only.  Data items are added and deleted on their "
                         "respective panels.");
    layout.button("cmdOkay", "OK");
    layout.finish();
}

void Counts::load() {
    const auto counts = app_.DataSet->getCounts();
    const auto put = [this](std::string_view box, std::int32_t count) { window_.control(box).setText(plainNumber(count)); };
    put("tbnnlsec", counts.sections);
    put("tbnvsec", counts.vents);
    put("tbnls", counts.segments);
    put("tbnnodes", counts.nodes);
    put("tbnfans", counts.fans);
    put("tbnIFans", counts.impulseFans);
    put("tbnumul", counts.fires);
    put("tbntrrte", counts.routes);
    put("tbntrtyp", counts.trains);
    put("tbntran", counts.initialTrains);
    put("tbclust", counts.zones);
}

} // namespace kov
