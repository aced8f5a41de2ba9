#include "desktop/UnreadMark.h"

#include "desktop/Look.h"

#include <QLineEdit>

namespace orvane {

void markUnread(QLineEdit& line, const QString& why) {
    const QString before = look::plainHint(line.accessibleDescription());
    look::mark(line, "invalid", !why.isEmpty());
    line.setAccessibleDescription(why);
    if (!why.isEmpty())
        line.setToolTip(look::plainHint(why));
    else if (line.toolTip() == before)
        line.setToolTip({});
}

} // namespace orvane
