#include "app/composition/program.hpp"
#include "platform/headless/surroundings.hpp"
#include "shell/general/general.hpp"
#include "shell/general/options.hpp"
#include "shell/general/sim_ctrl.hpp"
#include "shell/main/counts.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace kov {
namespace {

/// The program with nobody in front of it, past its splash.
class GeneralWindows : public testing::Test {
protected:
    GeneralWindows() : program_(surroundings_.services(), "app") {
        program_.start("");
        program_.desk().pass(5000);
    }

    [[nodiscard]] KOVDataSet& data() { return *program_.application().DataSet; }
    Window& open(const std::string& name) { return *program_.desk().show(name); }
    void click(Window& window, const char* control) { program_.desk().click(window.control(control)); }
    [[nodiscard]] bool failed() { return program_.desk().failure().has_value(); }

    Surroundings surroundings_{std::filesystem::temp_directory_path()};
    Program program_;
};

std::shared_ptr<cPGroup> groupOfIntervals(std::int16_t intervals) {
    auto group = std::make_shared<cPGroup>();
    group->setPGroup({.NIntervals = intervals, .IntLength = "60."});
    return group;
}

TEST_F(GeneralWindows, GivenASuppressedGroupWhenSimCtrlIsLeftByOkThenItIsGoneAlthoughNothingWasEdited) {
    data().AddPGroup(groupOfIntervals(-1));
    data().AddPGroup(groupOfIntervals(7));

    auto& window = open("SimCtrl");
    EXPECT_EQ(window.control("grdPGroup").grid().text(0, 0), "-1");
    click(window, "cmdDone");

    ASSERT_EQ(data().NPGroups(), 1);
    EXPECT_EQ(data().PGroup(1)->getPGroup().NIntervals, 7);
    EXPECT_FALSE(program_.application().FileDirty);
}

TEST_F(GeneralWindows, GivenASuppressedGroupWhenSimCtrlIsClosedByItsFrameUneditedThenItStays) {
    data().AddPGroup(groupOfIntervals(-1));

    program_.desk().close(open("SimCtrl"));

    ASSERT_EQ(data().NPGroups(), 1);
    EXPECT_EQ(data().PGroup(1)->getPGroup().NIntervals, -1);
}

TEST_F(GeneralWindows, GivenNoGroupsWhenSimCtrlIsStoredThenOneGroupWithNothingSetIsAdded) {
    click(open("SimCtrl"), "cmdDone");

    ASSERT_EQ(data().NPGroups(), 1);
    EXPECT_EQ(data().PGroup(1)->getPGroup(), PGroupValues{});
}

TEST_F(GeneralWindows, GivenAGroupCountWithoutItsGroupWhenSimCtrlOpensThenTheProgramEnds) {
    data().AddPGroup(nullptr);

    program_.desk().act([this] { open("SimCtrl"); });

    EXPECT_TRUE(failed());
}

TEST_F(GeneralWindows, GivenValuesThatTheListsDoNotHoldWhenOptionsOpensThenNothingIsSelectedAndThePositionIsStored) {
    data().SupOpt = 9;
    data().HDOpt = 7;
    data().THOpt = -3;

    auto& window = open("Options");
    EXPECT_EQ(window.control("cbSupOpt").items().index(), -1);
    EXPECT_EQ(window.control("cbHDOpt").items().index(), -1);
    click(window, "cmdDone");

    EXPECT_EQ(data().SupOpt, -1);
    EXPECT_EQ(data().HDOpt, 0);
    EXPECT_EQ(data().THOpt, -1);
}

TEST_F(GeneralWindows, GivenAShortNameWithoutAPointWhenOptionsOpensThenTheOutputNameIsTheNameWithRst) {
    data().RstWrite = 1;
    program_.application().current.KOVShortName = "tunnel";

    auto& window = open("Options");

    EXPECT_EQ(window.control("lblRestartOutFile").caption, "tunnel.RST");
}

TEST_F(GeneralWindows, WhenBrowsingForARestartFileThenTheDialogIsAskedForRestartFiles) {
    data().RstRead = 1;
    surroundings_.dialogs.queueError(DialogCancelled);

    click(open("Options"), "cmdRstBrowse");

    const auto& request = surroundings_.dialogs.requests().back();
    EXPECT_EQ(request.kind, DialogKind::Open);
    EXPECT_EQ(request.title, "Restart File)");
    EXPECT_EQ(request.filter, "Restart (*.RST)|*.RST|All Files (*.*)|*.*");
    EXPECT_EQ(request.defaultExtension, "RST");
}

TEST(GeneralTables, EveryFieldNamesItsPlaceOnTheCards) {
    for (const auto fields : {General::fields(), Options::fields(), SimCtrl::fields(), Counts::fields()}) {
        for (const auto& field : fields) {
            EXPECT_FALSE(field.place.empty()) << field.control;
        }
    }
}

/// A caption or box that lies over another one of the same panel, or reaches beyond it.
void expectOrderly(const Window& window) {
    for (const auto& control : window.controls()) {
        if (control->kind == ControlKind::Menu || control->name == "gtext" || control->name == "Dummy") {
            continue;
        }
        const auto& place = control->bounds;
        const auto& around = control->parent == nullptr ? window.bounds : control->parent->bounds;
        EXPECT_LE((place.left + place.width).value, around.width.value + 1) << control->label();
        EXPECT_LE((place.top + place.height).value, around.height.value + 1) << control->label();
        for (const auto& other : window.controls()) {
            if (other.get() == control.get() || other->kind == ControlKind::Menu || other->parent != control->parent ||
                other->name == "gtext" || other->name == "Dummy") {
                continue;
            }
            const auto& second = other->bounds;
            const Twips hair{1};
            const bool apart = place.left + place.width <= second.left + hair ||
                               second.left + second.width <= place.left + hair ||
                               place.top + place.height <= second.top + hair || second.top + second.height <= place.top + hair;
            EXPECT_TRUE(apart) << control->label() << " over " << other->label();
        }
    }
}

TEST_F(GeneralWindows, NoControlLiesOverAnotherOneAndTheDesignFitsTheSizeThatTheWindowOpensWith) {
    for (const std::string name : {"General", "Options", "SimCtrl", "frmCounts"}) {
        SCOPED_TRACE(name);
        auto& window = open(name);
        expectOrderly(window);
        // A button is made 1200 by 405: the first scaling only enlarges, so no text gets less room than was reckoned for it.
        const auto& button = window.control(name == "frmCounts" ? "cmdOkay" : "cmdDone").bounds;
        EXPECT_GE(button.width.value, 1200);
        EXPECT_GE(button.height.value, 405);
    }
}

} // namespace
} // namespace kov
