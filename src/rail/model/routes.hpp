#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/network.hpp"
#include "rail/model/route.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// All train routes of the data set, numbered from 1 (Form 8), and the clipboard of the route editor. A position outside the
/// list is a Failure but where told otherwise.
class cRoutes {
public:
    /// A new route ahead of `before`; at the end for position 0.
    std::shared_ptr<cRoute> Add(Position before);
    /// Puts a copy (see `cRoute::XCopy`) of the route into `RouteBuffer`.
    void Copy(Position index);
    void Cut(Position index);
    /// A copy of `RouteBuffer` ahead of the position. With an empty `RouteBuffer` a Failure.
    void Paste(Position index);
    [[nodiscard]] std::int16_t Count() const { return routes_.count(); }
    void Delete(Position index) { routes_.remove(index); }
    /// False as soon as one route can't be read; the ones before it stay.
    [[nodiscard]] bool ReadRoutes(CardReader& reader, std::int16_t count, const DataOptions& options);
    /// The route, or none beyond the last one; below 1 is a Failure.
    [[nodiscard]] std::shared_ptr<cRoute> Route(Position index) const;
    /// Routes without a title are left out, though they are counted.
    void WriteRoutes(CardWriter& writer, const DataOptions& options) const;

    std::shared_ptr<cRoute> RouteBuffer; ///< empty until the first copy or cut

private:
    Collection<cRoute> routes_;
};

} // namespace kov
