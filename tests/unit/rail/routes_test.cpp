#include "core/cards/failure.hpp"
#include "rail/model/routes.hpp"
#include "unit/rail/deck.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using rail_test::card;
using rail_test::file;
using rail_test::padded;
using rail_test::written;

const DataOptions NoPerformance;

void addRoute(cRoutes& routes, std::string_view id, Position before = Position{0}) { routes.Add(before)->RouteID = id; }

std::string ids(const cRoutes& routes) {
    std::string text;
    for (std::int32_t i = 1; i <= routes.Count(); ++i) {
        text += std::string(routes.Route(Position{i})->id().trimmed()) + ";";
    }
    return text;
}

std::string emptyRoute(const std::string& id) {
    return file({padded(id, 68), card({"0.", " 1", " 0", "0.", " 1", "0.", " 0"}), card({" 0", "0."})});
}

TEST(Routes, ANewCollectionIsEmptyAndWritesNothing) {
    const cRoutes routes;
    EXPECT_EQ(routes.Count(), 0);
    EXPECT_EQ(routes.RouteBuffer, nullptr);
    EXPECT_EQ(written([&](CardWriter& w) { routes.WriteRoutes(w, NoPerformance); }), "");
}

TEST(Routes, AreAddedAtTheEndOrAheadOfAnother) {
    cRoutes routes;
    addRoute(routes, "A");
    addRoute(routes, "B");
    addRoute(routes, "C", Position{1});
    addRoute(routes, "D", Position{3});
    EXPECT_EQ(ids(routes), "C;A;D;B;");
    EXPECT_THROW(routes.Add(Position{5}), Failure);
    EXPECT_THROW(routes.Add(Position{-1}), Failure);
}

TEST(Routes, BeyondTheLastThereIsNoneAndBelowTheFirstIsAFailure) {
    cRoutes routes;
    addRoute(routes, "A");
    EXPECT_NE(routes.Route(Position{1}), nullptr);
    EXPECT_EQ(routes.Route(Position{2}), nullptr);
    EXPECT_EQ(routes.Route(Position{32767}), nullptr);
    EXPECT_THROW((void)routes.Route(Position{0}), Failure);
    EXPECT_THROW((void)routes.Route(Position{-1}), Failure);
}

TEST(Routes, ARouteWithoutTitleInTheMiddleIsLeftOutOfTheFile) {
    cRoutes routes;
    addRoute(routes, "A");
    addRoute(routes, "");
    addRoute(routes, "B");
    EXPECT_EQ(routes.Count(), 3);
    EXPECT_EQ(written([&](CardWriter& w) { routes.WriteRoutes(w, NoPerformance); }), emptyRoute("A") + emptyRoute("B"));
}

TEST(Routes, PastingTwiceGivesTwoRoutesWithTheSameGroupsAndNoSections) {
    cRoutes routes;
    const auto route = routes.Add(Position{0});
    route->RouteID = "A";
    route->TGroups.append(std::make_shared<cRtGroup>());
    ItemList sections;
    sections.addItem("5");
    sections.addItem(" ");
    route->TSectSave(sections);

    routes.Copy(Position{1});
    routes.Paste(Position{1});
    routes.Paste(Position{1});
    EXPECT_EQ(ids(routes), "A;A;A;");
    ASSERT_NE(routes.RouteBuffer, nullptr);
    for (const std::int32_t pasted : {1, 2}) {
        const auto copy = routes.Route(Position{pasted});
        EXPECT_NE(copy, routes.RouteBuffer);
        EXPECT_EQ(copy->TGroups.at(Position{1}), route->TGroups.at(Position{1}));
        copy->TSectList(sections);
        EXPECT_EQ(sections.count(), 1);
    }
    EXPECT_EQ(routes.Route(Position{3}), route);
}

TEST(Routes, CuttingKeepsACopyAndRemovesTheRoute) {
    cRoutes routes;
    addRoute(routes, "A");
    addRoute(routes, "B");
    routes.Cut(Position{1});
    EXPECT_EQ(ids(routes), "B;");
    EXPECT_EQ(routes.RouteBuffer->id().trimmed(), "A");
}

TEST(Routes, WithNothingCopiedPastingIsAFailure) {
    cRoutes routes;
    addRoute(routes, "A");
    EXPECT_THROW(routes.Paste(Position{1}), Failure);
}

TEST(Routes, DeletingAPlaceThatIsNotThereIsAFailure) {
    cRoutes routes;
    addRoute(routes, "A");
    EXPECT_THROW(routes.Delete(Position{2}), Failure);
    routes.Delete(Position{1});
    EXPECT_EQ(routes.Count(), 0);
}

TEST(Routes, AsManyAreReadAsDeclared) {
    const auto text = emptyRoute("A") + emptyRoute("B") + emptyRoute("C");
    CardReader reader(text);
    cRoutes routes;
    ASSERT_TRUE(routes.ReadRoutes(reader, 2, NoPerformance));
    EXPECT_EQ(ids(routes), "A;B;");
    EXPECT_EQ(reader.readLine(), padded("C", 68));
}

TEST(Routes, ABadRouteEndsReadingAndTheOnesBeforeStay) {
    const auto text = emptyRoute("A") + file({"B", card({"0.", "x", "0"})});
    CardReader reader(text);
    cRoutes routes;
    EXPECT_FALSE(routes.ReadRoutes(reader, 2, NoPerformance));
    EXPECT_EQ(ids(routes), "A;");
}

TEST(Routes, ANegativeCountReadsNoneAndAHugeOneEndsWithTheFile) {
    const auto text = emptyRoute("A");
    CardReader reader(text);
    cRoutes routes;
    EXPECT_TRUE(routes.ReadRoutes(reader, -1, NoPerformance));
    EXPECT_EQ(routes.Count(), 0);
    EXPECT_FALSE(routes.ReadRoutes(reader, 32767, NoPerformance));
    EXPECT_EQ(routes.Count(), 1);
}

} // namespace
} // namespace kov
