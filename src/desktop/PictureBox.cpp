#include "desktop/PictureBox.h"

#include <QImageReader>
#include <QPainter>

namespace orvane {

namespace {

constexpr int stripWidth = 12;    ///< pixels; what is no wider is a coloured strip and has no frame
constexpr int largestSide = 2000; ///< pixels; a camera's picture is read no larger than any screen shows it

QPixmap readPicture(const QString& path) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > largestSide || size.height() > largestSide)
        reader.setScaledSize(size.scaled(largestSide, largestSide, Qt::KeepAspectRatio));
    return QPixmap::fromImageReader(&reader);
}

} // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {}

void PictureBox::setFile(const QString& path) {
    if (path == m_file)
        return;
    m_file = path;
    m_picture = path.isEmpty() ? QPixmap() : readPicture(path);
    updateGeometry();
    update();
}

void PictureBox::setColor(std::optional<unsigned> rgb) {
    m_color = rgb;
    update();
}

QSize PictureBox::sizeHint() const {
    return m_picture.isNull() && m_color ? QSize(stripWidth, 24) : QSize(150, 130);
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_color)
        painter.fillRect(rect(), QColor(QRgb(*m_color)));
    if (m_picture.isNull()) {
        if (!m_color && width() > stripWidth) {
            painter.setPen(palette().color(QPalette::Mid));
            painter.drawRect(rect().adjusted(0, 0, -1, -1));
        }
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect target(QPoint(0, 0), m_picture.size().scaled(size(), Qt::KeepAspectRatio));
    target.moveCenter(rect().center());
    painter.drawPixmap(target, m_picture);
}

} // namespace orvane
