#include "core/cards/numbers.hpp"
#include "shell/entry/field_cycle.hpp"
#include "vent/editor/node_controls.hpp"
#include "vent/editor/node_details.hpp"
#include "vent/editor/window_tools.hpp"

#include <algorithm>
#include <cmath>

namespace kov {
namespace {

constexpr int PlainBox = 0;
constexpr std::int16_t Straight = 0, Crossover = 1, DividingWall = 2, Tee = 3, Angled = 4, Wye = 5, NoPressureChange = 7;
constexpr std::int16_t Mixing = 1, PartialMixing = 2, Boundary = 3;

std::string orElse(const Fixed<10>& text, std::string_view otherwise) {
    return std::string(isNumeric(text.view()) ? text.trimmed() : otherwise);
}

/// Chooses an entry; a number without an entry chooses none.
bool chooseIfThere(Control& list, int entry) {
    const bool there = entry >= 0 && entry < list.items().count();
    chooseEntry(list, there ? entry : -1);
    return there;
}

} // namespace

const std::string& NodeDetails::boxText(std::string_view control) const { return window_.control(control).text().text; }

// Node to controls.

void NodeDetails::ShowData() {
    Showing_ = true;
    ThisNode_ = nodes_.Node(Position{CurNode_});
    if (!ThisNode_) {
        ThisNode_ = nodes_.Add(Position{0});
        CurNode_ = nodes_.Count();
    }
    window_.control("lblNode").caption = "Node " + plainNumber(ThisNode_->id());
    showTypes();
    showPanels();
    showBranches();
    showTemperatures();
    Showing_ = false;
}

void NodeDetails::showTypes() {
    // Choosing an entry runs what a click on it runs, which also corrects a thermodynamic type that doesn't go with the other.
    const int aero = ThisNode_->AType() == NoPressureChange ? NoPressureChange - 1 : ThisNode_->AType();
    if (chooseIfThere(window_.control("cbAeroType"), aero)) {
        onAeroType();
    }
    if (chooseIfThere(window_.control("cbThermoType"), ThisNode_->TType() - 1)) {
        onThermoType();
    }
}

void NodeDetails::showPanels() {
    const auto aero = ThisNode_->AType();
    const auto thermo = ThisNode_->TType();
    window_.control("pnlAero").visible = aero >= Crossover && aero <= Wye;
    window_.control("pnlThermo").visible = thermo == Boundary;
    window_.control("pnlPartialMix").visible = thermo == PartialMixing;
    const auto diagram = diagramOf(aero, thermo);
    window_.control("Image1").image().path = diagram.empty() ? std::string{} : app_.AppPath + std::string(diagram);
    const auto present = [&](std::string_view name, const Field* field, std::string_view caption) -> Control& {
        auto& box = window_.control(name);
        box.visible = field != nullptr;
        window_.control(caption).visible = field != nullptr;
        if (field != nullptr) {
            window_.control(caption).caption = field->caption;
        }
        return box;
    };
    const auto* fourth = fourthField(aero);
    const auto* fifth = fifthField(aero);
    auto& fourthBox = present("tb4", fourth, "ALbl4");
    auto& fifthBox = present("tb5", fifth, "ALbl5");
    window_.control("AUnit5").visible = fifth != nullptr && !fifth->unit.empty();
    if (fourth != nullptr) {
        bindField(app_, entry_.flags, fourthBox, fourth->hint, fourth->rule);
    }
    if (fifth != nullptr) {
        const bool angle = aero != Crossover;
        bindField(app_, entry_.flags, fifthBox, fifth->hint, fifth->rule,
                  angle ? [this, &fifthBox] { leaveAngle(fifthBox); } : std::function<void()>{});
    }
}

void NodeDetails::showBranches() {
    const auto aero = ThisNode_->AType();
    if (aero < Crossover || aero > Wye) {
        return;
    }
    const auto data = ThisNode_->GetA1();
    window_.control("tb1").setText(bareNumber(data.i1));
    window_.control("tb2").setText(bareNumber(data.i2));
    window_.control("tb3").setText(bareNumber(data.i3));
    const auto ratio = orElse(data.AR, "1.");
    if (aero == Crossover) {
        window_.control("tb4").setText(bareNumber(data.i4));
        window_.control("tb5").setText(ratio);
    } else if (aero != DividingWall) {
        window_.control("tb4").setText(ratio);
    }
    if (aero == Angled || aero == Wye) {
        window_.control("tb5").setText(orElse(ThisNode_->GetA4().Angle, "10."));
    }
}

void NodeDetails::showTemperatures() {
    const auto thermo = ThisNode_->TType();
    const bool control = data_->ECLOpt >= 1;
    for (int i = 0; i < 4; ++i) {
        for (const std::string_view name : {"ttb3", "tLbl3", "unit3t"}) {
            window_.control(name, i).visible = control;
        }
    }
    if (thermo == PartialMixing) {
        const auto cells = ThisNode_->GetT2();
        for (std::size_t i = 0; i < cells.size(); ++i) {
            boxOf(window_, SubnodeBoxes.at(i)).setText(cells.at(i).trimmed());
        }
    } else if (thermo == Boundary) {
        const auto cells = ThisNode_->GetT3();
        constexpr std::size_t Always = 2; // the boundary's own two
        for (std::size_t i = 0; i < (control ? cells.size() : Always); ++i) {
            boxOf(window_, TemperatureBoxes.at(i)).setText(orElse(cells.at(i), "0."));
        }
    }
}

// Controls to node.

void NodeDetails::SaveData() {
    saveBranches();
    saveCells();
}

void NodeDetails::saveBranches() {
    const auto first = [this] { return fieldInteger(boxText("tb1")); };
    const auto second = [this] { return fieldInteger(boxText("tb2")); };
    const auto third = [this] { return fieldInteger(boxText("tb3")); };
    switch (ThisNode_->AType()) {
    case Crossover:
        ThisNode_->SetA1({first(), second(), third(), fieldInteger(boxText("tb4")), boxText("tb5")});
        break;
    case DividingWall:
        ThisNode_->SetA2({first(), second(), third()});
        break;
    case Tee:
        ThisNode_->SetA3({first(), second(), third(), boxText("tb4")});
        break;
    case Angled:
        ThisNode_->SetA4({first(), second(), third(), boxText("tb4"), boxText("tb5")});
        break;
    case Wye:
        ThisNode_->SetA5({first(), second(), third(), boxText("tb4"), boxText("tb5")});
        break;
    default:
        break; // what a type doesn't use stays as it is
    }
}

void NodeDetails::saveCells() {
    if (ThisNode_->TType() == PartialMixing) {
        cNode::T2 cells;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            cells.at(i) = boxOf(window_, SubnodeBoxes.at(i)).text().text;
        }
        ThisNode_->SetT2(cells);
    } else if (ThisNode_->TType() == Boundary) {
        cNode::T3 cells;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            cells.at(i) = boxOf(window_, TemperatureBoxes.at(i)).text().text;
        }
        ThisNode_->SetT3(cells);
    }
}

// The types.

void NodeDetails::onAeroType() {
    const int entry = window_.control("cbAeroType").items().index();
    if (entry < 0) {
        return;
    }
    ThisNode_->setAType(AeroTypes.at(static_cast<std::size_t>(entry)));
    // A node of a type that is in no list keeps it, whatever was chosen.
    const auto aero = ThisNode_->AType();
    const auto thermo = ThisNode_->TType();
    const bool fits = aero == Straight                                ? thermo != PartialMixing
                      : aero == Crossover || aero == NoPressureChange ? thermo != Boundary
                                                                      : thermo == Mixing;
    if (!fits) {
        ThisNode_->setTType(Mixing);
    }
    if (!Showing_) {
        ShowData();
    }
}

void NodeDetails::onThermoType() {
    auto& list = window_.control("cbThermoType");
    if (list.items().index() < 0) {
        return;
    }
    ThisNode_->setTType(static_cast<std::int16_t>(list.items().index() + 1));
    const auto aero = ThisNode_->AType();
    const auto thermo = ThisNode_->TType();
    if ((thermo == Boundary && aero != Straight) ||
        (thermo == PartialMixing && aero != Crossover && aero != NoPressureChange)) {
        chooseEntry(list, 0);
        app_.desk.beep();
        onThermoType(); // the entry chosen instead counts as clicked
        return;
    }
    if (!Showing_) {
        ShowData();
    }
}

std::string NodeDetails::thermoHint() const {
    switch (const auto aero = ThisNode_->AType()) {
    case Straight:
        return "Thermo Type 1 or 3 permitted with Aero Type 0";
    case Crossover:
    case NoPressureChange:
        return "Thermo Type 1 or 2 permitted with Aero Types 1 and 7";
    default:
        return "Only Thermo Type 1 is permitted with Aero Type " + plainNumber(aero);
    }
}

void NodeDetails::leaveAngle(Control& box) {
    constexpr double Step = 10;
    if (std::fmod(std::nearbyint(fieldValue(box.text().text)), Step) != 0) {
        app_.messages().show(PlainBox, "", "Junction Angle must be 10., 20. or 30.");
        app_.desk.setFocus(box);
    }
}

} // namespace kov
