#pragma once

#include "forms/Page.h"

#include <QAbstractScrollArea>
#include <QMap>
#include <QPixmap>

namespace orvane {

/// Shows pages of one size as paper, one under the other. It holds those in sight and their neighbours only: its owner
/// gives them as they are wanted.
class PageStack : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// How large the paper is shown: by its own size, as wide as there is room, or so that a whole page is seen.
    struct Zoom {
        enum Kind { Percent, Width, Whole } kind = Percent;
        double percent = 100;
        bool operator==(const Zoom&) const = default;
    };
    static constexpr Zoom fitWidth() { return {Zoom::Width, 100}; }
    static constexpr Zoom wholePage() { return {Zoom::Whole, 100}; }

    explicit PageStack(QWidget* parent = nullptr);
    void clear();
    void setCount(int pages);
    int count() const { return m_count; }
    /// One of those that are wanted; the first one that comes says how large they all are.
    void setPage(int number, const Page& page);
    /// They say something else now: all that are held are wanted anew.
    void forgetPages();
    QVector<int> wanted() const; ///< in sight and not held
    int current() const;         ///< the page that its user looks at
    void goTo(int number);       ///< its top in sight
    void setZoom(Zoom zoom);
    Zoom zoom() const { return m_zoom; }
    void zoomBy(int steps); ///< larger (or smaller, below 0) by so many of the usual percentages
    double percent() const; ///< as it is shown now
    /// Marks a text wherever it stands, and one of the texts of a page, by its place among them, as the one that was
    /// found; -1: none. That one is brought in sight.
    void mark(const QString& words, int page = -1, int text = -1);
    /// The keys that move through the pages and size them. False: it is none of them.
    bool takesKey(const QKeyEvent& event);
    QSize sizeHint() const override; ///< so that a page is seen in its own size
    static const QVector<int>& percentages();

Q_SIGNALS:
    void pagesWanted();
    void looksMoved(); ///< another current page or size
    void lastWanted(); ///< the end, wherever that is

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    struct Sheet {
        Page page;
        QPixmap drawn; ///< as last painted
    };
    double dotsPerMm() const;
    QSize paper() const;              ///< of a page on the screen, pixels
    QRect place(int number) const;    ///< in the viewport
    std::pair<int, int> seen() const; ///< the first and the last page in sight; the last is -1 where there is none
    void layOut();
    void setRanges();
    void look();
    void turn(int pages);
    void scrollPage(int pages);
    void showFound();
    void paintSheet(QPainter& painter, Sheet& sheet, const QRect& paper) const;
    void paintMarks(QPainter& painter, int number, const QRect& paper) const;

    QMap<int, Sheet> m_sheets; ///< by number
    QSizeF m_size;             ///< of a page, mm; empty: none came yet
    int m_count = 0;
    Zoom m_zoom;
    QString m_marked;
    int m_foundPage = -1, m_foundText = -1;
    bool m_foundHidden = false; ///< not brought in sight yet: its page has not come
};

} // namespace orvane
