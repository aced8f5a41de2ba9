#pragma once

#include "forms/Page.h"

#include <QPixmap>
#include <QWidget>

namespace orvane {

/// Shows a page as paper, as wide as there is room.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    explicit PagePreview(QWidget* parent = nullptr);
    void setPage(const Page& page);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect paper() const;

    Page m_page;
    QPixmap m_drawn; ///< the page as last painted
};

} // namespace orvane
