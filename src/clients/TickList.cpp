#include "clients/TickList.h"

namespace orvane {

void TickList::setAll(bool ticked) {
    for (int i = 0; i < LstDate.count(); ++i)
        LstDate.setSelected(i, ticked);
}

QVector<int> TickList::ticked() const {
    QVector<int> found;
    for (int i = 0; i < LstDate.count(); ++i)
        if (LstDate.isSelected(i))
            found.append(i);
    return found;
}

} // namespace orvane
