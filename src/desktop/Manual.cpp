#include "desktop/Manual.h"

#include "desktop/FindLine.h"
#include "desktop/Look.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QFile>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolBar>
#include <QVBoxLayout>

namespace orvane {

namespace {

const QString folder = QStringLiteral(":/docs/manual/");
constexpr int pictureWidth = 800; ///< pixels
constexpr QSize windowSize(920, 700);

/// Finds a text on the page in hand.
class TextFind : public FindLine {
public:
    TextFind(ManualBrowser& browser, QWidget* parent) : FindLine("manual", browser, parent), m_browser(browser) {}

protected:
    void go(bool forward) override {
        const QTextDocument::FindFlags way = forward ? QTextDocument::FindFlags() : QTextDocument::FindBackward;
        if (m_browser.find(text(), way))
            return;
        m_browser.moveCursor(forward ? QTextCursor::Start : QTextCursor::End);
        const QString round = QStringLiteral("From the %1 again").arg(forward ? "top" : "end");
        say(m_browser.find(text(), way) ? round : QStringLiteral("Not found"));
    }

private:
    ManualBrowser& m_browser;
};

} // namespace

ManualPlace manualPlace(const QString& form) {
    QFile index(folder + "screens.txt");
    if (index.open(QIODevice::ReadOnly | QIODevice::Text)) {
        while (!index.atEnd()) {
            const QString line = QString::fromUtf8(index.readLine()).trimmed();
            if (line.section(u' ', 0, 0).compare(form, Qt::CaseInsensitive) == 0)
                return {line.section(u' ', 1, 1), line.section(u' ', 2)};
        }
    }
    return {"README.md", {}};
}

ManualBrowser::ManualBrowser(QWidget* parent) : QTextBrowser(parent) {
    setAccessibleName("Manual");
    setOpenExternalLinks(false);
    document()->setDocumentMargin(look::spacing * 2);
}

bool ManualBrowser::show(const ManualPlace& place) {
    setSource(QUrl("qrc" + folder + place.page), QTextDocument::MarkdownResource);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || block.text() != place.heading)
            continue;
        setTextCursor(QTextCursor(block));
        verticalScrollBar()->setValue(int(document()->documentLayout()->blockBoundingRect(block).top()));
        return true;
    }
    return place.heading.isEmpty();
}

QVariant ManualBrowser::loadResource(int type, const QUrl& name) {
    const QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource)
        return loaded;
    const auto picture = QImage::fromData(loaded.toByteArray());
    return picture.width() > pictureWidth ? picture.scaledToWidth(pictureWidth, Qt::SmoothTransformation) : picture;
}

ManualWindow::ManualWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), m_browser(new ManualBrowser(this)), m_find(new TextFind(*m_browser, this)) {
    setWindowTitle("Manual");
    setAttribute(Qt::WA_DeleteOnClose);
    resize(windowSize);
    auto* bar = new QToolBar(this);
    connect(bar->addAction("&Contents"), &QAction::triggered, this, [this] { m_browser->show({"README.md", {}}); });
    QAction* back = bar->addAction("&Back");
    back->setEnabled(false);
    connect(back, &QAction::triggered, m_browser, &QTextBrowser::backward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(bar->addAction("&Find (Ctrl+F)"), &QAction::triggered, m_find, &FindLine::begin);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(bar);
    box->addWidget(m_browser, 1);
    box->addWidget(m_find);
    m_browser->setFocus();
}

void ManualWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Find))
        m_find->begin();
    else if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void showManual(const QString& form, QWidget& asker) {
    auto* window = asker.window()->findChild<ManualWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!window)
        window = new ManualWindow(asker.window());
    window->show();
    window->raise();
    window->activateWindow();
    window->browser()->show(manualPlace(form));
}

} // namespace orvane
