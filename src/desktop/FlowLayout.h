#pragma once

#include <QLayout>
#include <QVector>

namespace orvane {

/// Items side by side that go on in a next line where the width ends, so that a long row is never cut off. The items of
/// a line stand in its middle; a stretch among them takes what the line has left.
class FlowLayout : public QLayout {
    Q_OBJECT

public:
    FlowLayout(int horizontalSpacing, int verticalSpacing);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    void addLayout(QLayout* layout); ///< takes it over, as addWidget does with widgets
    void addStretch();
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override; ///< all in one line
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    /// The items that stand side by side.
    struct Line {
        QVector<QLayoutItem*> items;
        int width = 0, height = 0, stretches = 0;
    };
    QVector<Line> lines(int width) const;
    void place(const Line& line, QRect room) const;

    QVector<QLayoutItem*> m_items;
    int m_across, m_down;
};

} // namespace orvane
