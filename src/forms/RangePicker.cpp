#include "forms/RangePicker.h"

namespace orvane {

void RangePicker::setDates(QDate day) {
    DTPicker1.setDate(day);
    DTPicker2.setDate(day);
}

Layout RangePicker::layout(std::initializer_list<Layout> beside) const {
    using namespace orvane::layout;
    Layout range = row({field(m_range, DTPicker1), field("and", DTPicker2), cell(get)});
    for (const Layout& item : beside)
        range.children.append(item);
    range.children.append(stretch());
    return column({range, field(m_list, cboVehNo)});
}

} // namespace orvane
