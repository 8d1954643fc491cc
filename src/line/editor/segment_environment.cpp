#include "line/editor/segment_environment.hpp"

#include "core/cards/numbers.hpp"

#include <array>

namespace kov {
namespace {

constexpr std::size_t EnvironmentPage = 2;

constexpr std::array Fields{
    Field{"tbWThk", "Wall Thickness", "ft", real(0, 30), "Tunnel Wall Thickness:  0. to 30. Ft", nullptr, "Form 3F, 1-10"},
    Field{"tbWDist", "Distance to face of  Adjacent Tunnel", "ft", real(0, 100),
          "Distance Between Adjacent Wall Surfaces:  0. to 100. Ft", nullptr, "Form 3F, 11-20"},
    Field{"tbWCond", "Thermal Conductivity", "Btu/ ft-hr-Deg F", real(0.005, 2),
          "Thermal Conductivity of Wall: 0.005 to 2 Btu/ft-hr-Deg F", nullptr, "Form 3F, 21-30"},
    // The hint says 1; 2 is taken.
    Field{"tbWDiff", "Thermal Diffusirvity", "Sqft/Hr", real(0.005, 2), "Thermal Diffusivity of Wall:  0.005 to 1. FtSq/Hr",
          nullptr, "Form 3F, 31-40"},
    Field{"tbSCond", "Thermal Conductivity", "Btu/ ft-hr-Deg F", real(0.005, 2),
          "Thermal Conductivity of Surrounding Soil: 0.005 to 2 Btu/ft-hr-Deg F", nullptr, "Form 3F, 41-50"},
    Field{"tbSDiff", "Thermal Diffusivity", "Sqft/Hr", real(0.005, 1), "Thermal Diffusivity of Wall:  0.005 to 1. FtSq/Hr",
          nullptr, "Form 3F, 51-60"},
    Field{"tbTSink", "Deep Sink Temperature", "Deg F", real(0, 100),
          "Deep Sink Temperature of Surrounding Soil:  0. to 100. Deg F", nullptr, "Form 3F, 61-70"},
};
constexpr std::array<Fixed<10> cSegment::*, Fields.size()> Members{&cSegment::WThk,  &cSegment::WDist, &cSegment::WCond,
                                                                   &cSegment::WDiff, &cSegment::SCond, &cSegment::SDiff,
                                                                   &cSegment::TSink};

} // namespace

std::span<const Field> SegmentEnvironment::fields() { return Fields; }

SegmentEnvironment::SegmentEnvironment(Window& window, SegmentEditing& editing) : window_(window), editing_(editing) {
    for (const auto& field : Fields) {
        editing_.bind(box(field.control), field);
    }
    auto& first = box("tbWThk");
    first.turnsPage = true;
    first.on.gotFocus = [this, &first] {
        window_.control("SSTab1").tabs().current = EnvironmentPage;
        enterField(editing_.app, first, Fields[0].hint);
    };
    // This one field keeps the text as it was typed.
    box("tbSDiff").on.lostFocus = [this] { editing_.leave(box("tbSDiff"), Fields[5].rule, false); };
}

void SegmentEnvironment::setAvailable(bool available) {
    window_.control("SSTab1").tabs().tabs.at(EnvironmentPage).enabled = available;
    window_.control("ECPanel1").enabled = available;
    window_.control("ECPanel2").enabled = available;
}

void SegmentEnvironment::show(const cSegment& segment) {
    for (std::size_t i = 0; i < Fields.size(); ++i) {
        box(Fields.at(i).control).setText((segment.*Members.at(i)).trimmed());
    }
}

void SegmentEnvironment::save(cSegment& segment) const {
    for (std::size_t i = 0; i < Fields.size(); ++i) {
        segment.*Members.at(i) = box(Fields.at(i).control).text().text;
    }
}

void SegmentEnvironment::fillZeros(const Collection<cSegment>& segments) const {
    for (const auto& segment : segments) {
        for (std::size_t i = 0; i < Fields.size(); ++i) {
            auto& kept = *segment.*Members.at(i);
            if (strictValue(kept.view()) == 0) {
                kept = box(Fields.at(i).control).text().text;
            }
        }
    }
}

} // namespace kov
