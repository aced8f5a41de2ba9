#pragma once

#include <QString>
#include <QVariantList>
#include <optional>

namespace orvane {

/// What was made of a statement's form, ready to take the values of a statement.
class Template {
public:
    /// `wideTexts`: a text beyond ASCII is written N'...'. Nothing when a stand-in for a text lost its quotes.
    static std::optional<Template> of(const QString& made, bool wideTexts);
    QString filled(const QVariantList& values) const;

    /// The text with ? for each gap, where a statement that has the values bound does the same as one that has them in
    /// its text: in a select, which names its columns by their text, all gaps stand behind the first "from". Null
    /// elsewhere.
    QString marked() const { return m_marked; }
    /// What is bound to marked().
    QVariantList bound(const QVariantList& values) const;

private:
    struct Gap {
        QString before;        ///< what stands between the gap in front and this one
        int value = 0;         ///< index of the value
        bool inQuotes = false; ///< of a number that became a text
    };
    void mark();

    QList<Gap> m_gaps;
    QString m_rest;
    QString m_marked;
    bool m_wideTexts = false;
};

} // namespace orvane
