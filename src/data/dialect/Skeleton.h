#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>
#include <optional>

namespace orvane {

/// A statement and the values in it that the rules of the dialect treat all alike, apart from each other. Statements
/// that differ in such values only have one skeleton, so what is made of the skeleton serves them all.
struct Skeleton {
    QString text;       ///< the statement with a stand-in for each value: a statement itself
    QStringList values; ///< as the statement writes them: texts without their outer quotes, numbers in plain digits
};

/// Whether SQLite stores the text as it stands when it is bound: it takes U+FEFF and U+FFFE at the start for the byte
/// order, drops them, and swaps the bytes of all that follows the latter.
bool isBoundAsItStands(QStringView text);

/// A text is set apart when it neither begins nor ends with a blank, is not empty, does not look like a date and may be
/// bound; a number when it is the plain decimal behind "=" or "+". Everything else stays in the skeleton. Nothing for a
/// statement that is no select, insert, update or delete, that ends too early, or that holds a comment or a character
/// that could be taken for a stand-in.
std::optional<Skeleton> skeletonOf(const QString& tsql);

/// What was made of a skeleton's text, ready to take the values of a statement.
class Template {
public:
    /// `wideTexts`: a text beyond ASCII is written N'...'. Nothing when a stand-in for a text lost its quotes.
    static std::optional<Template> of(const QString& made, bool wideTexts);
    QString filled(const QStringList& values) const;

    /// The text with ? for each gap, where a statement that has the values bound does the same as one that has them in
    /// its text: in a select, which names its columns by their text, all gaps stand behind the first "from". Null
    /// elsewhere.
    QString marked() const { return m_marked; }
    /// What is bound to marked().
    QVariantList bound(const QStringList& values) const;

private:
    struct Gap {
        QString before; ///< what stands between the gap in front and this one
        int value = 0;  ///< index of the value
        bool quoted = false;
    };
    void mark();

    QList<Gap> m_gaps;
    QString m_rest;
    QString m_marked;
    bool m_wideTexts = false;
};

} // namespace orvane
