#include "desktop/PagePainter.h"

#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

namespace orvane {

namespace {

// The page is painted in hundredths of a millimetre, in which a letter is some hundred units high: so its outline does
// not depend on the dots of the device, and a text breaks at the same word everywhere.
constexpr double unitsPerMm = 100;
constexpr double mmPerInch = 25.4, mmPerPoint = mmPerInch / 72;
constexpr double smallestShare = 0.4; ///< a text is made smaller down to this share of its size

QFont fontOf(int size, bool bold) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(size);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// A font and how wide its texts are. Most texts of a report are Latin: the widths of their letters are asked once.
class Letters {
public:
    explicit Letters(const QFont& font) : m_font(font), m_metrics(font), m_widths(lastKept - firstKept + 1, -1) {}
    const QFont& font() const { return m_font; }
    const QFontMetricsF& metrics() const { return m_metrics; }
    /// Without what pairs of letters take off, which is little.
    double roughWidth(const QString& text) {
        double width = 0;
        for (const QChar letter : text) {
            if (letter.unicode() < firstKept || letter.unicode() > lastKept)
                return m_metrics.horizontalAdvance(text);
            double& kept = m_widths[letter.unicode() - firstKept];
            kept = kept < 0 ? m_metrics.horizontalAdvance(letter) : kept;
            width += kept;
        }
        return width;
    }
    double width(const QString& text) {
        const bool pairs = std::any_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.isLetter(); });
        return pairs ? m_metrics.horizontalAdvance(text) : roughWidth(text);
    }

private:
    static constexpr char16_t firstKept = u' ', lastKept = u'~';
    QFont m_font;
    QFontMetricsF m_metrics;
    QVector<double> m_widths; ///< by letter; below 0: not asked yet
};

/// The fonts of a document, made once for each size.
class Fonts {
public:
    Letters& of(const PageText& text, double share) {
        const int size = std::max(1, int(text.points * mmPerPoint * unitsPerMm * share));
        const int key = size * 2 + (text.bold ? 1 : 0);
        const auto made = m_made.find(key);
        return made != m_made.end() ? *made : *m_made.insert(key, Letters(fontOf(size, text.bold)));
    }

private:
    QHash<int, Letters> m_made;
};

int flagsOf(const PageText& text) {
    const Qt::AlignmentFlag side = text.align == PageAlign::Left    ? Qt::AlignLeft
                                   : text.align == PageAlign::Right ? Qt::AlignRight
                                                                    : Qt::AlignHCenter;
    return int(side) | int(Qt::AlignTop) | (text.wraps ? int(Qt::TextWordWrap) : int(Qt::TextSingleLine));
}

QRectF boxOf(const PageText& text) {
    return {text.x * unitsPerMm, text.y * unitsPerMm, text.width * unitsPerMm,
            (text.height > 0 ? text.height : 200) * unitsPerMm};
}

bool fitsInALine(const QString& text, Letters& letters, double width) {
    return letters.roughWidth(text) <= width || letters.width(text) <= width;
}

bool fits(const PageText& text, Letters& letters, const QRectF& box) {
    if (!text.wraps)
        return fitsInALine(text.text, letters, box.width());
    const QRectF taken =
        letters.metrics().boundingRect(QRectF(box.topLeft(), QSizeF(box.width(), 1e6)), flagsOf(text), text.text);
    return taken.width() <= box.width() + 1 && (text.height <= 0 || taken.height() <= box.height());
}

/// In the largest letters, up to its own, in which the text fits.
Letters& fitted(Fonts& fonts, const PageText& text, const QRectF& box) {
    double share = 1;
    while (share > smallestShare && !fits(text, fonts.of(text, share), box))
        share -= 0.05;
    return fonts.of(text, share);
}

void paintText(QPainter& painter, Fonts& fonts, PageText text) {
    if (text.text.isEmpty())
        return;
    const QRectF box = boxOf(text);
    // To break a text takes many times what a line does.
    text.wraps = text.wraps &&
                 (text.text.contains(QLatin1Char('\n')) || !fitsInALine(text.text, fonts.of(text, 1), box.width()));
    Letters& letters = fitted(fonts, text, box);
    if (painter.font() != letters.font())
        painter.setFont(letters.font());
    if (text.wraps) {
        painter.drawText(box, flagsOf(text) | Qt::TextDontClip, text.text);
        return;
    }
    const double room = text.align == PageAlign::Left ? 0 : box.width() - letters.width(text.text);
    const double left = text.align == PageAlign::Center ? room / 2 : room;
    painter.drawText(QPointF(box.x() + left, box.y() + letters.metrics().ascent()), text.text);
}

void paintPicture(QPainter& painter, const PagePicture& picture) {
    const QImage image = picture.file.isEmpty() ? QImage() : QImageReader(picture.file).read();
    if (image.isNull())
        return;
    const QRectF box(picture.x * unitsPerMm, picture.y * unitsPerMm, picture.width * unitsPerMm,
                     picture.height * unitsPerMm);
    QRectF target(QPointF(), QSizeF(image.size()).scaled(box.size(), Qt::KeepAspectRatio));
    target.moveCenter(box.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
}

void paintLine(QPainter& painter, const PageLine& line) {
    painter.setPen(
        QPen(Qt::black, line.thickness * unitsPerMm, line.dashed ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QLineF(line.x1 * unitsPerMm, line.y1 * unitsPerMm, line.x2 * unitsPerMm, line.y2 * unitsPerMm));
}

void paintPageWith(Fonts& fonts, QPainter& painter, const Page& page, const QRectF& target) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double scale = std::min(target.width() / page.widthMm, target.height() / page.heightMm) / unitsPerMm;
    painter.translate(target.topLeft());
    painter.scale(scale, scale);
    for (const PagePicture& picture : page.pictures)
        paintPicture(painter, picture);
    for (const PageLine& line : page.lines)
        paintLine(painter, line);
    painter.setPen(Qt::black);
    for (const PageText& text : page.texts)
        paintText(painter, fonts, text);
    painter.restore();
}

} // namespace

void paintPage(QPainter& painter, const Page& page, const QRectF& target) {
    Fonts fonts;
    paintPageWith(fonts, painter, page, target);
}

QVector<QRectF> placesOf(const PageText& text, const QString& words) {
    QVector<QRectF> places;
    qsizetype at = text.text.indexOf(words, 0, Qt::CaseInsensitive);
    if (at < 0 || words.isEmpty())
        return places;
    Fonts fonts;
    const QRectF box = boxOf(text);
    const QFontMetricsF& metrics = fitted(fonts, text, box).metrics();
    const QRectF taken = metrics.boundingRect(box, flagsOf(text), text.text);
    const auto add = [&](double left, double width) {
        places << QRectF(left / unitsPerMm, taken.y() / unitsPerMm, width / unitsPerMm, taken.height() / unitsPerMm);
    };
    if (text.wraps)
        add(taken.x(), taken.width());
    for (; at >= 0 && !text.wraps; at = text.text.indexOf(words, at + words.size(), Qt::CaseInsensitive))
        add(taken.x() + metrics.horizontalAdvance(text.text.left(at)),
            metrics.horizontalAdvance(text.text.mid(at, words.size())));
    return places;
}

bool paintDocument(QPagedPaintDevice& device, const Document& document) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    Fonts fonts;
    for (int number = document.first; number < document.first + document.count; ++number) {
        if (number > document.first && !device.newPage())
            return false;
        const Page page = document.page(number);
        const double dotsPerMm = device.logicalDpiX() / mmPerInch;
        paintPageWith(fonts, painter, page,
                      QRectF(0, 0, std::min<double>(device.width(), page.widthMm * dotsPerMm),
                             std::min<double>(device.height(), page.heightMm * dotsPerMm)));
    }
    return painter.end();
}

bool renderPdf(const Document& document, const QString& file) {
    QFile output(file);
    if (!output.open(QIODevice::WriteOnly))
        return false;
    QPdfWriter writer(&output);
    writer.setResolution(1200);
    const QSizeF sheet = document.sheet();
    writer.setPageSize(QPageSize(sheet, QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    return paintDocument(writer, document) && output.error() == QFile::NoError;
}

} // namespace orvane
