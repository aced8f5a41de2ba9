#pragma once

#include <QPixmap>
#include <QWidget>
#include <optional>

namespace orvane {

/// Shows a picture from a file in its proportions; without one, a plain colour or nothing.
class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);
    void setFile(const QString& path);
    void setColor(std::optional<unsigned> rgb);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_file;
    QPixmap m_picture;
    std::optional<unsigned> m_color;
};

} // namespace orvane
