#pragma once

#include <QScrollArea>

namespace orvane {

/// Scrolls to whatever inside the area gets the focus.
void followFocus(QScrollArea& area);

/// What lies on a page of a tab strip: where the room is short the page gives way and scrolls, so that what stands
/// below the tabs, the buttons, stays in sight.
class PageScroll : public QScrollArea {
    Q_OBJECT

public:
    explicit PageScroll(QWidget* parent);
    void setPage(QWidget* page);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

} // namespace orvane
