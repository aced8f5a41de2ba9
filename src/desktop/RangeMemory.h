#pragma once

#include "desktop/Memory.h"
#include "forms/Controls.h"

#include <QPointer>

namespace orvane {

/// A screen's range of days as its user left it. One that ended on the screen's own last day, today, comes again with
/// as many days up to the new one; any other range only on the day on which it was chosen, for the next morning nobody
/// looks for the bills of some weeks ago.
class RangeMemory {
public:
    /// The screen has just been loaded and shows its own range, which the remembered one replaces. `from` must live
    /// until `keep`.
    RangeMemory(DatePicker& from, Memory& memory);
    void keep();

private:
    DatePicker& m_from;
    Memory& m_memory;
    QString m_key;
    QDate m_today; ///< where the screen's own range ends
};

} // namespace orvane
