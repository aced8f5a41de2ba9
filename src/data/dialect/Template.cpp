#include "data/dialect/Template.h"

#include "data/dialect/StandIn.h"
#include "data/dialect/Value.h"

namespace orvane {

namespace {

/// The mark of a stand-in that begins here; empty where none does.
QStringView markAt(QStringView text) {
    for (const QStringView mark : {textMark, numberMark, valueMark})
        if (text.startsWith(mark))
            return mark;
    return {};
}

} // namespace

std::optional<Template> Template::of(const QString& made, bool wideTexts) {
    Template result;
    result.m_wideTexts = wideTexts;
    qsizetype from = 0;
    for (qsizetype i = 0; i < made.size(); ++i) {
        const QStringView mark = markAt(QStringView(made).mid(i));
        if (mark.isEmpty())
            continue;
        qsizetype start = i, end = i + mark.size() + standInDigits;
        const int value = QStringView(made).mid(end - standInDigits, standInDigits).toInt() - int(firstStandIn);
        if (mark == textMark) {
            // The quotes go with the gap, and the N of a wide text: the stand-in is beyond ASCII.
            if (start == from || made.at(start - 1) != u'\'' || end >= made.size() || made.at(end) != u'\'')
                return {};
            start -= wideTexts && start - from > 1 && made.at(start - 2) == u'N' ? 2 : 1;
            ++end;
        }
        const bool inQuotes = mark == numberMark && start > 0 && made.at(start - 1) == u'\'';
        result.m_gaps.append({made.mid(from, start - from), value, inQuotes});
        from = end;
        i = end - 1;
    }
    result.m_rest = made.mid(from);
    result.mark();
    return result;
}

void Template::mark() {
    QString text;
    for (const Gap& gap : m_gaps) {
        text += gap.before;
        const bool namesColumn =
            text.startsWith("select", Qt::CaseInsensitive) && !text.contains(" from ", Qt::CaseInsensitive);
        if (gap.inQuotes || namesColumn)
            return;
        text += u'?';
    }
    m_marked = text + m_rest;
}

QVariantList Template::bound(const QVariantList& values) const {
    QVariantList list;
    list.reserve(m_gaps.size());
    for (const Gap& gap : m_gaps)
        list += values.at(gap.value);
    return list;
}

QString Template::filled(const QVariantList& values) const {
    const auto isWide = [](const QString& text) {
        return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 127; });
    };
    QString text;
    for (const Gap& gap : m_gaps) {
        const QVariant& value = values.at(gap.value);
        text += gap.before;
        if (m_wideTexts && value.typeId() == QMetaType::QString && isWide(value.toString()))
            text += u'N';
        text += valueLiteral(value);
    }
    return text + m_rest;
}

} // namespace orvane
