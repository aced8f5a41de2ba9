#pragma once

#include <QLayout>
#include <QVector>

namespace orvane {

/// Items side by side that go on in a next line where the width ends, so that a long row is never cut off.
class FlowLayout : public QLayout {
    Q_OBJECT

public:
    FlowLayout(int horizontalSpacing, int verticalSpacing);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    void addLayout(QLayout* layout); ///< takes it over, as addWidget does with widgets
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
    /// Places the items where `apply`; gives the height.
    int arrange(const QRect& rect, bool apply) const;

    QVector<QLayoutItem*> m_items;
    int m_across, m_down;
};

} // namespace orvane
