#include "desktop/RangeMemory.h"

#include "forms/Form.h"

namespace orvane {

RangeMemory::RangeMemory(DatePicker& from, Memory& memory)
    : m_from(from), m_memory(memory), m_key(from.form().name() + '/' + from.name() + "/range"),
      m_today(from.rangeEnd()->date()) {
    const QStringList kept = memory.value(m_key).toStringList();
    const QDate first = QDate::fromString(kept.value(0), Qt::ISODate),
                last = QDate::fromString(kept.value(1), Qt::ISODate),
                day = QDate::fromString(kept.value(2), Qt::ISODate);
    if (!first.isValid() || !last.isValid() || !m_today.isValid() || (last != day && day != m_today))
        return;
    from.setDate(first.addDays(day.daysTo(m_today)));
    from.rangeEnd()->setDate(last.addDays(day.daysTo(m_today)));
}

void RangeMemory::keep() {
    const QDate first = m_from.date(), last = m_from.rangeEnd()->date();
    const QStringList now{first.toString(Qt::ISODate), last.toString(Qt::ISODate), m_today.toString(Qt::ISODate)};
    if (first.isValid() && last.isValid() && m_today.isValid() && now != m_memory.value(m_key).toStringList())
        m_memory.keep(m_key, now);
}

} // namespace orvane
