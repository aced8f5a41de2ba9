#include "reports/TemplateLine.h"

#include "data/words/ShownText.h"
#include "reports/Template.h"

namespace orvane {

TemplateLine::TemplateLine(const QString& file, int number, const QString& text) : m_file(file), m_number(number) {
    split(text);
}

void TemplateLine::split(const QString& text) {
    for (qsizetype i = 0; i < text.size();) {
        if (text.at(i).isSpace()) {
            ++i;
        } else if (text.at(i) == u'#') {
            return;
        } else if (text.at(i) == u'"') {
            QString word;
            for (++i; i < text.size() && (text.at(i) != u'"' || (i + 1 < text.size() && text.at(i + 1) == u'"')); ++i) {
                word += text.at(i);
                i += text.at(i) == u'"' ? 1 : 0;
            }
            if (i >= text.size())
                refuse(QStringLiteral("a text has no closing quote"));
            ++i;
            m_words.append({word, true});
        } else {
            const qsizetype begin = i;
            while (i < text.size() && !text.at(i).isSpace() && text.at(i) != u'"')
                ++i;
            m_words.append({text.mid(begin, i - begin), false});
        }
    }
}

bool TemplateLine::isText() const {
    return !atEnd() && m_words.at(m_at).quoted;
}

QString TemplateLine::take(const QString& what) {
    if (atEnd())
        refuse(what + " is missing");
    return m_words.at(m_at++).text;
}

QString TemplateLine::takeText(const QString& what) {
    if (!isText())
        refuse(what + " in quotes is missing");
    return take(what);
}

QString TemplateLine::takeName(const QString& what) {
    if (isText())
        refuse(what + " stands without quotes");
    return take(what);
}

double TemplateLine::takeNumber(const QString& what, double least, double most) {
    const QString word = takeName(what);
    bool ok = false;
    const double number = word.toDouble(&ok);
    if (!ok || !(number >= least && number <= most))
        refuse(
            QStringLiteral("%1 is a number from %2 to %3, not %4").arg(what).arg(least).arg(most).arg(shownText(word)));
    return number;
}

bool TemplateLine::takes(const QString& word) {
    if (atEnd() || isText() || m_words.at(m_at).text.compare(word, Qt::CaseInsensitive) != 0)
        return false;
    ++m_at;
    return true;
}

void TemplateLine::demand(const QString& word) {
    if (!takes(word))
        refuse(QStringLiteral("\"%1\" is missing%2")
                   .arg(word, atEnd() ? QString() : " before " + shownText(m_words.at(m_at).text)));
}

void TemplateLine::demandEnd() {
    if (!atEnd())
        refuse(QStringLiteral("%1 is not understood here").arg(shownText(m_words.at(m_at).text)));
}

void TemplateLine::refuse(const QString& what) const {
    refuseTemplate(m_file, m_number, what);
}

} // namespace orvane
