#include "receipts/ReceiptRoll.h"

#include <algorithm>

namespace orvane {

namespace {

// Millimetres on the roll; its printers leave 4 mm at each side blank.
constexpr double rollWidth = 80, edge = 4, printed = rollWidth - 2 * edge;
constexpr double labelWidth = 25, amountWidth = 23;
constexpr double lineFeed = 0.47;   ///< of a letter size in points
constexpr double charWidth = 0.225; ///< of a letter in capitals of one point, rounded up
constexpr double pictureHeight = 20, tearOff = 8;
constexpr double small = 8, normal = 9, large = 11; ///< points

/// The text in lines of at most so many characters, broken at blanks and behind hyphens, and inside a word where it has
/// neither.
QStringList brokenLines(const QString& text, qsizetype longest) {
    QStringList lines;
    QString rest = text.simplified();
    while (rest.size() > longest) {
        const qsizetype blank = rest.lastIndexOf(QLatin1Char(' '), longest);
        const qsizetype place = std::max(blank, rest.lastIndexOf(QLatin1Char('-'), longest - 1) + 1);
        const qsizetype end = place > 0 ? place : longest;
        lines << rest.left(end);
        rest = rest.mid(end).trimmed();
    }
    return lines << rest;
}

/// Lays a receipt down the roll, one thing below the other.
class RollPainter {
public:
    Page page;

    void paint(const ReceiptText& receipt, const RollText& roll) {
        page.widthMm = rollWidth;
        heading(receipt);
        particulars(receipt, roll);
        paidFor(roll);
        amounts(receipt, roll);
        signature(receipt);
        page.heightMm = m_y + tearOff;
    }

private:
    /// Puts the text into the column at `x` and gives the height that it takes. It stays where it is: the next text may
    /// stand beside it.
    double put(double x, double width, const QString& text, double points, PageAlign align = PageAlign::Left,
               bool bold = false) {
        const QStringList lines = brokenLines(text, qsizetype(width / (charWidth * points)));
        for (qsizetype i = 0; i < lines.size(); ++i)
            page.texts.append(
                {x, m_y + double(i) * points * lineFeed, width, 0, lines.at(i), points, align, bold, false});
        return double(lines.size()) * points * lineFeed;
    }

    void centered(const QString& text, double points, bool bold = false) {
        if (!text.trimmed().isEmpty())
            m_y += put(edge, printed, text, points, PageAlign::Center, bold);
    }

    void labelled(const QString& label, const QString& value, bool bold = false) {
        if (value.isEmpty())
            return;
        put(edge, labelWidth, label, small);
        m_y += put(edge + labelWidth, printed - labelWidth, value, normal, PageAlign::Left, bold) + 0.5;
    }

    /// An amount is one line, however long; what it is for goes on below.
    void priced(const QString& what, const QString& amount, double points, bool bold = false) {
        page.texts.append(
            {edge + printed - amountWidth, m_y, amountWidth, 0, amount, points, PageAlign::Right, bold, false});
        m_y += put(edge, printed - amountWidth - 2, what, points, PageAlign::Left, bold);
    }

    void rule() {
        m_y += 1.5;
        page.lines.append({edge, m_y, edge + printed, m_y, 0.2, true});
        m_y += 1.5;
    }

    void heading(const ReceiptText& receipt) {
        if (!receipt.picture.isEmpty()) {
            page.pictures.append({edge, m_y, printed, pictureHeight, receipt.picture});
            m_y += pictureHeight + 2;
        }
        for (qsizetype i = 0; i < receipt.headings.size(); ++i)
            centered(receipt.headings.at(i), i == 0 ? large : small, i == 0);
        rule();
    }

    void particulars(const ReceiptText& receipt, const RollText& roll) {
        labelled("Receipt No", receipt.receiptNo, true);
        labelled("Date", receipt.date);
        labelled("Received from", receipt.receivedFrom, true);
        labelled("Patient No", roll.patientNo);
        labelled("Bill No", roll.billNo);
        labelled("Payment for", receipt.paymentFor);
        labelled("Pay type", receipt.payType);
        rule();
    }

    void paidFor(const RollText& roll) {
        for (const RollText::Line& line : roll.lines)
            priced(line.item, line.amount, small);
        if (!roll.lines.isEmpty())
            rule();
    }

    void amounts(const ReceiptText& receipt, const RollText& roll) {
        priced("Bill", receipt.bill, normal);
        priced("Amount paid", receipt.amount, large, true);
        if (roll.credit.isEmpty())
            priced("Balance", receipt.balance, normal);
        else
            priced("Credit", roll.credit, normal);
        m_y += 1;
        m_y += put(edge, printed, receipt.sumOf, small);
        rule();
    }

    void signature(const ReceiptText& receipt) { labelled("Received by", receipt.receivedBy); }

    double m_y = edge;
};

} // namespace

Page receiptRoll(const ReceiptText& receipt, const RollText& roll) {
    RollPainter painter;
    painter.paint(receipt, roll);
    return painter.page;
}

} // namespace orvane
