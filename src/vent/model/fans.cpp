#include "vent/model/fans.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"

#include <string>
#include <utility>

namespace kov {
namespace {

// Both lists work alike; what differs is only what they hold.

template <typename T> std::shared_ptr<T> addTo(Collection<T>& list, Position position) {
    auto fan = std::make_shared<T>();
    if (position.value == 0) {
        list.append(fan);
    } else {
        list.insertBefore(position, fan);
    }
    return fan;
}

template <typename T> std::shared_ptr<T> copyOf(const T& source) {
    auto fan = std::make_shared<T>();
    fan->XCopy(source);
    return fan;
}

template <typename T> std::shared_ptr<T> unlessAbove(const Collection<T>& list, Position position) {
    return position.value > list.count() ? nullptr : list.at(position);
}

template <typename T> void pasteInto(Collection<T>& list, Position position, const std::shared_ptr<T>& clip) {
    if (!clip) {
        throw Failure("There is no fan to paste");
    }
    list.insertBefore(position, copyOf(*clip));
}

template <typename T> bool readInto(Collection<T>& list, CardReader& reader, std::int16_t count) {
    for (std::int32_t n = 1; n <= count; ++n) {
        auto fan = std::make_shared<T>();
        if (!fan->ReadData(reader)) {
            return false;
        }
        list.append(std::move(fan));
    }
    return true;
}

} // namespace

std::shared_ptr<cFan> cFans::Add(Position position) { return addTo(Fans, position); }
std::shared_ptr<cIFan> cFans::AddI(Position position) { return addTo(IFans, position); }

void cFans::Copy(Position position) { ClipFan = copyOf(*Fans.at(position)); }
void cFans::CopyI(Position position) { ClipIFan = copyOf(*IFans.at(position)); }

void cFans::Cut(Position position) {
    Copy(position);
    Fans.remove(position);
}

void cFans::CutI(Position position) {
    CopyI(position);
    IFans.remove(position);
}

void cFans::Delete(Position position) {
    if (position.value <= Count()) {
        Fans.remove(position);
    }
}

std::shared_ptr<cFan> cFans::Fan(Position position) const { return unlessAbove(Fans, position); }
std::shared_ptr<cIFan> cFans::IFan(Position position) const { return unlessAbove(IFans, position); }

void cFans::Paste(Position position) { pasteInto(Fans, position, ClipFan); }
void cFans::PasteI(Position position) { pasteInto(IFans, position, ClipIFan); }

void cFans::List(ItemList& list) const {
    list.clear();
    list.addItem("0. None");
    std::int32_t position = 0;
    for (const auto& fan : Fans) {
        ++position;
        list.addItem(bareNumber(position) + ". " + std::string(fan->id().trimmed()));
    }
}

bool cFans::ReadFans(CardReader& reader, std::int16_t fans, std::int16_t impulseFans) {
    return readInto(Fans, reader, fans) && readInto(IFans, reader, impulseFans);
}

void cFans::WriteFans(CardWriter& writer) const {
    for (const auto& fan : Fans) {
        fan->WriteData(writer);
    }
    for (const auto& fan : IFans) {
        fan->WriteData(writer);
    }
}

} // namespace kov
