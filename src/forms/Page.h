#pragma once

#include <QString>
#include <QVector>

namespace orvane {

/// A printed page in words: what stands where, in millimetres from its upper left corner. The desktop paints it alike
/// on the screen, on a printer and into a PDF.
enum class PageAlign { Left, Center, Right };

/// A text inside a box. One line stands on the top edge of its box; with `wraps` it breaks at blanks and goes on below.
/// A text that is wider than its box is shown smaller, never cut off: an amount must not lose a digit on paper.
struct PageText {
    double x = 0, y = 0;          ///< upper left corner of the box, mm
    double width = 0, height = 0; ///< of the box, mm; height 0: as many lines as it takes
    QString text;
    double points = 10; ///< letter size in typographic points
    PageAlign align = PageAlign::Left;
    bool bold = false;
    bool wraps = false;
};

/// A picture from a file, kept in proportion and centred in its box; a file that cannot be read leaves the box empty.
struct PagePicture {
    double x = 0, y = 0, width = 0, height = 0; ///< mm
    QString file;
};

struct PageLine {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0; ///< mm
    double thickness = 0.2;                ///< mm
    bool dashed = false;                   ///< a line to cut along
};

struct Page {
    double widthMm = 210, heightMm = 297; ///< A4 upright
    QVector<PageText> texts;
    QVector<PagePicture> pictures;
    QVector<PageLine> lines;
};

} // namespace orvane
