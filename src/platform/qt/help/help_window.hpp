#pragma once

#include <QString>

namespace kov::qt {

/// The window that shows the help pages. It lives in a library of its own, which is loaded when help is asked for the first
/// time, so that a program whose user needs no help doesn't carry it.
class HelpWindow {
public:
    HelpWindow() = default;
    HelpWindow(const HelpWindow&) = delete;
    HelpWindow& operator=(const HelpWindow&) = delete;
    virtual ~HelpWindow() = default;

    /// The page of a context number, at an anchor when the page has it. False when no page bears that number.
    virtual bool showContext(int context, const QString& anchor) = 0;
    virtual void showContents() = 0;
    /// The keyword list, narrowed down to a keyword when there is one.
    virtual void showSearch(const QString& keyword) = 0;
};

/// The one function of the library, `kovMakeHelpWindow`: the window on a compiled collection, hidden; null when that can't be
/// opened. The caller deletes it.
using MakeHelpWindow = HelpWindow* (*)(const QString& collection);

} // namespace kov::qt
