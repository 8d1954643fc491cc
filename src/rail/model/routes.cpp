#include "rail/model/routes.hpp"

#include "core/cards/failure.hpp"
#include "rail/model/reading.hpp"

#include <utility>

namespace kov {

std::shared_ptr<cRoute> cRoutes::Add(Position before) {
    auto route = std::make_shared<cRoute>();
    if (before.value != 0) {
        routes_.insertBefore(before, route);
    } else {
        routes_.append(route);
    }
    return route;
}

void cRoutes::Copy(Position index) {
    RouteBuffer = std::make_shared<cRoute>();
    RouteBuffer->XCopy(*routes_.at(index));
}

void cRoutes::Cut(Position index) {
    Copy(index);
    Delete(index);
}

void cRoutes::Paste(Position index) {
    if (!RouteBuffer) {
        throw Failure("Nothing has been copied");
    }
    auto route = std::make_shared<cRoute>();
    route->XCopy(*RouteBuffer);
    routes_.insertBefore(index, std::move(route));
}

bool cRoutes::ReadRoutes(CardReader& reader, std::int16_t count, const DataOptions& options) {
    return readObjects(reader, count, routes_, options);
}

std::shared_ptr<cRoute> cRoutes::Route(Position index) const {
    if (index.value > 0 && static_cast<std::size_t>(index.value) > routes_.size()) {
        return nullptr;
    }
    return routes_.at(index);
}

void cRoutes::WriteRoutes(CardWriter& writer, const DataOptions& options) const {
    for (const auto& route : routes_) {
        route->WriteData(writer, options);
    }
}

} // namespace kov
