#include "app/composition/program.hpp"
#include "platform/headless/surroundings.hpp"
#include "vent/editor/fan_table_print.hpp"
#include "vent/editor/fan_types.hpp"
#include "vent/editor/impulse_fans.hpp"
#include "vent/editor/node_details.hpp"
#include "vent/editor/vent_sections.hpp"
#include "vent/editor/vent_shafts.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <string>

namespace kov {
namespace {

/// The program with nobody in front of it, past its splash.
class VentWindows : public testing::Test {
protected:
    VentWindows() : program_(surroundings_.services(), "/opt/kovin") {
        program_.start("");
        program_.desk().pass(5000);
    }

    [[nodiscard]] KOVDataSet& data() { return *program_.application().DataSet; }
    Window& open(const std::string& name) { return *program_.desk().show(name); }
    [[nodiscard]] bool failed() { return program_.desk().failure().has_value(); }
    std::shared_ptr<cNode> addNode(std::int16_t aero, std::int16_t thermo) {
        auto node = data().Nodes.Add(Position{0});
        node->setId(data().Nodes.Count());
        node->setAType(aero);
        node->setTType(thermo);
        return node;
    }
    [[nodiscard]] const std::string& picture(Window& window, int row) {
        program_.desk().cell(window.control("Grid1"), row, 0);
        return window.control("Image1").image().path;
    }

    Surroundings surroundings_{std::filesystem::temp_directory_path()};
    Program program_;
};

TEST_F(VentWindows, EachAerodynamicTypeHasItsDiagramBesideTheProgram) {
    addNode(0, 3);
    addNode(0, 1);
    for (const std::int16_t type : std::array<std::int16_t, 6>{1, 2, 3, 4, 5, 7}) {
        addNode(type, 1);
    }
    auto& window = open("NodeDtl");
    constexpr std::array Pictures{"aero03", "aero01", "aero1", "aero2", "aero3", "aero4", "aero5", "aero0"};
    for (int row = 1; row < static_cast<int>(Pictures.size()); ++row) {
        EXPECT_EQ(picture(window, row), "/opt/kovin\\" + std::string(Pictures.at(static_cast<std::size_t>(row))) + ".dib");
    }
    EXPECT_EQ(picture(window, 0), "/opt/kovin\\aero03.dib");
}

TEST_F(VentWindows, ABoundaryThatBecomesAMixingNodeGetsTheOtherDiagram) {
    addNode(0, 3);
    auto& window = open("NodeDtl");
    EXPECT_EQ(window.control("Image1").image().path, "/opt/kovin\\aero03.dib");
    program_.desk().select(window.control("cbThermoType"), std::array{0});
    EXPECT_EQ(window.control("Image1").image().path, "/opt/kovin\\aero01.dib");
}

TEST_F(VentWindows, ANodeOfATypeThatIsInNoListKeepsItAndIsNoMoreThanMixing) {
    const auto node = addNode(0, 2);
    node->setAType(6);
    auto& window = open("NodeDtl");
    EXPECT_FALSE(window.control("pnlAero").visible);
    EXPECT_EQ(window.control("Image1").image().path, "");
    program_.desk().select(window.control("cbAeroType"), std::array{2});
    EXPECT_EQ(node->AType(), 6);
    EXPECT_EQ(node->TType(), 1);
    EXPECT_FALSE(failed());
}

TEST_F(VentWindows, CellsOfATypeThatIsGoneStayInTheNode) {
    const auto node = addNode(1, 2);
    node->SetT2({"1.", "2.", "3.", "4.", "5.", "6.", "7."});
    auto& window = open("NodeDtl");
    program_.desk().select(window.control("cbAeroType"), std::array{3});
    program_.desk().close(window);
    EXPECT_EQ(node->AType(), 3);
    EXPECT_EQ(node->TType(), 1);
    EXPECT_EQ(node->GetT2()[6].trimmed(), "7.");
}

TEST_F(VentWindows, TheCurvesAreDrawnWhenTheFanIsShownAndAgainWhenAFieldHasBeenLeft) {
    auto& window = open("frmXFan");
    auto& drawing = window.control("Curves").drawing();
    const auto shown = drawing.revision;
    EXPECT_GT(shown, 0U);
    EXPECT_TRUE(drawing.marks.empty()) << "a bare fan has no curve";

    auto& desk = program_.desk();
    desk.focusOn(window.control("tbFanP", 0));
    desk.type("5");
    EXPECT_EQ(drawing.revision, shown) << "not while it is being typed";
    desk.focusOn(window.control("tbFanQ", 1));
    EXPECT_GT(drawing.revision, shown);
    EXPECT_EQ(drawing.marks.size(), 4U) << "the exhaust curve";
}

TEST_F(VentWindows, TheCurvesFillTheirPlaceWhateverTheWindowsSize) {
    auto fan = data().Fans.Add(Position{0});
    auto values = fan->getFan();
    values.FanP.at(0) = "5.";
    values.FanQ.at(3) = "90000.";
    fan->setFan(values);
    auto& window = open("frmXFan");
    auto& control = window.control("Curves");
    const auto widest = [&] {
        Twips most;
        for (const auto& line : control.drawing().lines) {
            for (const auto& point : line.points) {
                most = std::max(most, point.x);
            }
        }
        return most;
    };
    const auto before = widest();
    program_.desk().resize(window, window.bounds.width * 1.5, window.bounds.height);
    EXPECT_GT(widest(), before * 1.3);
    EXPECT_LE(widest(), control.bounds.width);
}

TEST_F(VentWindows, FieldsAndColumnsCanBeReadWithoutAWindow) {
    EXPECT_EQ(VentSections::columns().size(), 4U);
    EXPECT_EQ(VentShafts::fields().size(), 12U);
    EXPECT_EQ(VentShafts::segmentColumns().size(), 7U);
    EXPECT_EQ(NodeDetails::columns().size(), 1U);
    EXPECT_EQ(FanTypes::fields().size(), 7U);
    EXPECT_EQ(ImpulseFans::fields().size(), 5U);
}

TEST(FanTableLine, CutsAndPadsEachCellToItsWidthOnPaper) {
    Grid grid;
    grid.setCols(6);
    grid.addItem(" 101- 101\tA title that is longer than its column\tMain\t95000.    \t10.\t+1 Exhault", 0);
    EXPECT_EQ(fanTableLine(grid, 0),
              "|  101- 101 | A title that is long| Main                | 95000.| 10.   | +1 Exhault   |");
    EXPECT_EQ(fanTableLine(grid, 1),
              "|           |                     |                     |       |       |              |");
}

} // namespace
} // namespace kov
