#include "receipts/ReceiptPage.h"

namespace orvane {

namespace {

// Millimetres on an upright A4 page.
constexpr double halfPage = 148.5;
constexpr double leftEdge = 15, rightEdge = 195;
constexpr double labelWidth = 38;

/// Lays one copy down from `m_top`.
class CopyPainter {
public:
    CopyPainter(Page& page, const ReceiptText& receipt, double top) : m_page(page), m_receipt(receipt), m_top(top) {}

    void paint() {
        heading();
        numberAndDate();
        particulars();
        amounts();
        signature();
    }

private:
    void text(double x, double y, double width, const QString& words, double points, bool bold = false,
              PageAlign align = PageAlign::Left, double height = 0) {
        PageText item;
        item.x = x;
        item.y = m_top + y;
        item.width = width;
        item.height = height;
        item.text = words;
        item.points = points;
        item.align = align;
        item.bold = bold;
        item.wraps = height > 0;
        m_page.texts.append(item);
    }

    void rule(double x1, double x2, double y, double thickness = 0.2) {
        m_page.lines.append({x1, m_top + y, x2, m_top + y, thickness, false});
    }

    void heading() {
        if (!m_receipt.picture.isEmpty())
            m_page.pictures.append({leftEdge, m_top + 9, 26, 24, m_receipt.picture});
        static constexpr struct {
            double y, points;
            bool bold;
        } lines[] = {{9, 16, true}, {17.5, 11, false}, {23.5, 9.5, false}, {28.5, 9.5, false}};
        for (int i = 0; i < 4 && i < m_receipt.headings.size(); ++i)
            text(45, lines[i].y, 120, m_receipt.headings.at(i), lines[i].points, lines[i].bold, PageAlign::Center);
        text(165, 9, rightEdge - 165, m_receipt.copyName, 8, false, PageAlign::Right);
        rule(leftEdge, rightEdge, 36, 0.6);
    }

    void numberAndDate() {
        text(leftEdge, 40, 80, "RECEIPT", 14, true);
        text(105, 41, 25, "Receipt No", 9);
        text(130, 40, rightEdge - 130, m_receipt.receiptNo, 12, true, PageAlign::Right);
        text(105, 48, 25, "Date", 9);
        text(130, 47.5, rightEdge - 130, m_receipt.date, 11, false, PageAlign::Right);
    }

    void line(double y, const QString& label, const QString& value, bool bold, double height) {
        text(leftEdge, y + 0.6, labelWidth, label, 9);
        text(leftEdge + labelWidth, y, rightEdge - leftEdge - labelWidth, value, 11, bold, PageAlign::Left, height);
        rule(leftEdge + labelWidth, rightEdge, y + height);
    }

    void particulars() {
        line(58, "Received from", m_receipt.receivedFrom, true, 6.5);
        line(68, "The sum of", m_receipt.sumOf, false, 12);
        line(83.5, "Being payment for", m_receipt.paymentFor, false, 6.5);
        line(93.5, "Pay type", m_receipt.payType, false, 6.5);
    }

    void amounts() {
        const struct {
            QString label, value;
            bool paid;
        } rows[] = {{"Bill", m_receipt.bill, false},
                    {"Amount paid", m_receipt.amount, true},
                    {"Balance", m_receipt.balance, false}};
        double y = 106;
        rule(125, rightEdge, y - 1.5, 0.4);
        for (const auto& row : rows) {
            text(125, y + (row.paid ? 0.8 : 0), 28, row.label, row.paid ? 10 : 9.5, row.paid);
            text(153, y, rightEdge - 153, row.value, row.paid ? 13 : 11, row.paid, PageAlign::Right);
            y += row.paid ? 8 : 7;
        }
        rule(125, rightEdge, y, 0.4);
    }

    void signature() {
        text(leftEdge, 119, 30, "Received by", 9);
        text(leftEdge + 24, 118.4, 60, m_receipt.receivedBy, 11);
        rule(leftEdge, 100, 132);
        text(leftEdge, 133, 85, "Signature", 8);
    }

    Page& m_page;
    const ReceiptText& m_receipt;
    double m_top;
};

} // namespace

Page receiptPage(const ReceiptText& upper, const ReceiptText& lower) {
    Page page;
    CopyPainter(page, upper, 0).paint();
    CopyPainter(page, lower, halfPage).paint();
    page.lines.append({8, halfPage, page.widthMm - 8, halfPage, 0.2, true});
    return page;
}

} // namespace orvane
