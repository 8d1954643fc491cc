#include "rail/editor/train_editor.hpp"

#include "core/cards/numbers.hpp"
#include "rail/editor/motor_chart.hpp"

#include <string>

namespace kov {
namespace {

// Where the curve table keeps a point's speed and its line current.
constexpr int BoxesOfPoint = 4, CurvePoints = 4;

} // namespace

// The model to the window.

void TrainEditor::LoadTrain() {
    if (TrnIndex > trains().Count() || TrnIndex < 1) {
        return;
    }
    train_ = trains().Train(Position{TrnIndex});
    show("tbTrnNo", plainNumber(TrnIndex));
    showBody(*train_);
    const bool cam = train_->Motor.CtrlOpt == cMotor::CamControl;
    window_.control("rbCtrlOpt", 1).checked = cam;
    window_.control("rbCtrlOpt", 2).checked = !cam;
    setPage(TrainPage::FlyWheel, false);
    if (trainOption() < 3) {
        showMotor(*train_);
        if (trainOption() == 1) {
            const auto& rates = train_->getRates();
            for (int i = 0; i < static_cast<int>(rates.size()); ++i) {
                show("tbRate", i, rates.at(static_cast<std::size_t>(i)).view());
            }
        }
    }
    redraw();
}

void TrainEditor::showBody(const cTrain& train) {
    const auto physical = train.GetPhysical();
    show("tbTrainId", physical.TrainID);
    show("tbNCars", physical.NCars);
    show("tbNPwrd", physical.NPwrd);
    show("tbNMtr", physical.NMtr);
    show("tbTLength", physical.TLength);
    show("tbAFront", physical.AFront);
    show("tbPerim", physical.Perim);
    show("tbCwt", physical.Cwt);
    const auto resistance = train.getResist();
    show("tbCSkin", resistance.CSkin.view());
    show("tbCTruck", resistance.CTruck.view());
    show("tbCFront", resistance.CFront.view());
    show("tbCRR1", resistance.CRR1.view());
    show("tbCRR2", resistance.CRR2.view());
    show("tbCRR3", resistance.CRR3.view());
    show("tbARRP", resistance.ARRP.view());
    const auto heat = train.getHtLoads();
    show("tbSensAuxE", heat.SensAuxE.view());
    show("tbLatentAuxE", heat.LatentAuxE.view());
    show("tbSensPac", heat.SensPac.view());
    show("tbLatentPac", heat.LatentPac.view());
    show("tbPwrAuxE", heat.PwrAuxE.view());
    show("tbPwrPac", heat.PwrPac.view());
    const auto& grids = train.getRGrid();
    for (int i = 0; i < static_cast<int>(grids.size()); ++i) {
        show("tbAccRg", i, grids.at(static_cast<std::size_t>(i)).view());
    }
}

void TrainEditor::showMotor(const cTrain& train) {
    const auto specs = train.Motor.getMtrSpecs();
    show("tbMotorID", specs.MotorID.view());
    show("tbMotorID2", specs.MotorID.view());
    for (int i = 0; i < static_cast<int>(specs.MtrSpecs.size()); ++i) {
        show("tbMtrSpec", i, specs.MtrSpecs.at(static_cast<std::size_t>(i)).view());
    }
    const auto curve = train.Motor.getMtrData();
    for (int i = 1; i <= static_cast<int>(curve.size()); ++i) {
        show("tbMtrDat", i, curve.at(static_cast<std::size_t>(i) - 1));
    }
    showController(train);
}

void TrainEditor::showController(const cTrain& train) {
    const bool cam = train.Motor.CtrlOpt == cMotor::CamControl;
    window_.control("pnlCam").visible = cam;
    window_.control("pnlChopper").visible = !cam;
    if (cam) {
        const auto data = train.Motor.getCam();
        for (int i = 0; i < static_cast<int>(data.size()); ++i) {
            show("tbController", i, data.at(static_cast<std::size_t>(i)).view());
        }
        return;
    }
    const auto data = train.Motor.getChopper();
    for (int i = 0; i < static_cast<int>(data.Amps.size()); ++i) {
        show("tbMtrDat", i * BoxesOfPoint, data.Amps.at(static_cast<std::size_t>(i)).view());
        show("tbChopper", i + 1, data.Chop.at(static_cast<std::size_t>(i)).view());
    }
    repeatSpeeds();
    showFlyWheel(train);
}

void TrainEditor::showFlyWheel(const cTrain& train) {
    auto& carried = window_.control("cbFlyWheel");
    carried.checked = trainOption() != 1 || train.Motor.FWOpt != 1;
    if (!carried.checked) {
        return;
    }
    setPage(TrainPage::FlyWheel, true);
    const auto texts = train.FlyWheel.getFlyWheel();
    for (int i = 0; i < static_cast<int>(texts.size()); ++i) {
        show("tbFlyWheel", i, texts.at(static_cast<std::size_t>(i)));
    }
}

void TrainEditor::repeatSpeeds() {
    for (int point = 1; point <= CurvePoints; ++point) {
        window_.control("lblCrvSpeed", point).caption = box("tbMtrDat", BoxesOfPoint * (point - 1) + 1);
    }
}

// The window to the model.

void TrainEditor::storeBody(cTrain& train) {
    train.SetPhysical({box("tbTrainId"), box("tbNCars"), box("tbNPwrd"), box("tbNMtr"), box("tbTLength"), box("tbAFront"),
                       box("tbPerim"), box("tbCwt")});
    train.setResist(
        {box("tbCSkin"), box("tbCTruck"), box("tbCFront"), box("tbCRR1"), box("tbCRR2"), box("tbCRR3"), box("tbARRP")});
    train.setHtLoads(
        {box("tbSensAuxE"), box("tbLatentAuxE"), box("tbSensPac"), box("tbLatentPac"), box("tbPwrAuxE"), box("tbPwrPac")});
    cTrain::GridTexts grids;
    for (std::size_t i = 0; i < grids.size(); ++i) {
        grids.at(i) = box("tbAccRg", static_cast<int>(i));
    }
    train.setRGrid(grids);
}

void TrainEditor::storeMotor(cTrain& train) {
    cMotor::Specs specs;
    specs.MotorID = box("tbMotorID");
    for (std::size_t i = 0; i < specs.MtrSpecs.size(); ++i) {
        specs.MtrSpecs.at(i) = box("tbMtrSpec", static_cast<int>(i));
    }
    train.Motor.setMtrSpecs(specs);
    train.Motor.setMtrData(curveTexts());
    if (train.Motor.CtrlOpt == cMotor::CamControl) {
        cMotor::CamData data;
        for (std::size_t i = 0; i < data.size(); ++i) {
            data.at(i) = box("tbController", static_cast<int>(i));
        }
        train.Motor.setCam(data);
    } else {
        storeChopper(train);
    }
    if (trainOption() == 1) {
        train.setRates({box("tbRate", 0), box("tbRate", 1), box("tbRate", 2), box("tbRate", 3), box("tbRate", 4)});
    }
}

void TrainEditor::storeChopper(cTrain& train) {
    cMotor::ChopperData data;
    for (std::size_t i = 0; i < data.Amps.size(); ++i) {
        data.Amps.at(i) = box("tbMtrDat", static_cast<int>(i) * BoxesOfPoint);
        data.Chop.at(i) = box("tbChopper", static_cast<int>(i) + 1);
    }
    train.Motor.setChopper(data);
    if (!window_.control("cbFlyWheel").checked && trainOption() == 1) {
        train.Motor.FWOpt = 1;
        return;
    }
    // Only mode 1 has trains without flywheels: in every other one a chopper train carries them, whatever the box says.
    train.Motor.FWOpt = cMotor::Carried;
    cFlyWheel::Texts texts;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts.at(i) = box("tbFlyWheel", static_cast<int>(i));
    }
    train.FlyWheel.setFlyWheel(texts);
}

cMotor::CurveTexts TrainEditor::curveTexts() {
    cMotor::CurveTexts curve;
    for (std::size_t i = 0; i < curve.size(); ++i) {
        curve.at(i) = box("tbMtrDat", static_cast<int>(i) + 1);
    }
    return curve;
}

void TrainEditor::redraw() {
    auto& picture = window_.control("Curves");
    showDrawing(picture, drawMotorChart(motorChartOf(curveTexts()), picture.bounds.width, picture.bounds.height));
}

} // namespace kov
