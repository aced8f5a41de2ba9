#pragma once

#include <QStringList>

namespace orvane {

/// One line of a template, taken word by word from its left. What does not fit raises the fault of the template.
class TemplateLine {
public:
    /// Blanks part the words, "..." is one word with blanks ("" stands for a quote in it), # begins a remark.
    TemplateLine(const QString& file, int number, const QString& text);

    int number() const { return m_number; }
    bool atEnd() const { return m_at == m_words.size(); }
    bool isText() const; ///< the next word is in quotes

    QString take(const QString& what); ///< the next word, whatever it is; `what` names it where there is none
    QString takeText(const QString& what);
    QString takeName(const QString& what); ///< a word without quotes
    double takeNumber(const QString& what, double least, double most);
    bool takes(const QString& word); ///< takes the next word if it is this one, without regard to case
    void demand(const QString& word);
    void demandEnd();
    [[noreturn]] void refuse(const QString& what) const;

private:
    struct Word {
        QString text;
        bool quoted;
    };
    void split(const QString& text);

    QString m_file;
    int m_number;
    QVector<Word> m_words;
    qsizetype m_at = 0;
};

} // namespace orvane
