#pragma once

#include <QString>
#include <QTextBrowser>

namespace orvane {

class FindLine;

/// A section of the user's manual.
struct ManualPlace {
    QString page;    ///< a file of docs/manual/
    QString heading; ///< as it stands on the page; empty: its top
};

/// Where the manual tells of a form, by docs/manual/screens.txt; its front page where that does not name the form.
ManualPlace manualPlace(const QString& form);

/// Reads the manual, which lies in the program itself. Pictures are as wide as a page of text.
class ManualBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit ManualBrowser(QWidget* parent);
    /// Shows the section at the top of the window. False: the page has no such heading, and is shown from its own top.
    bool show(const ManualPlace& place);
    QVariant loadResource(int type, const QUrl& name) override;
};

/// The window of the manual. It stands beside the screens, so that one can be read while the other is used.
class ManualWindow : public QWidget {
    Q_OBJECT

public:
    explicit ManualWindow(QWidget* parent);
    ManualBrowser* browser() const { return m_browser; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    ManualBrowser* m_browser;
    FindLine* m_find;
};

/// Shows the manual at the section of a form; `asker`'s window keeps one window of it, a modal one has its own.
void showManual(const QString& form, QWidget& asker);

} // namespace orvane
