#pragma once

#include "desktop/PageStack.h"

#include <QWidget>
#include <functional>

class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace orvane {

class PageFind;

/// A report as its user reads it: the pages, above them what can be done with them, below them the line that finds.
class ReportView : public QWidget {
    Q_OBJECT

public:
    explicit ReportView(QWidget* parent);
    PageStack& pages() { return *m_pages; }
    PageFind& find() { return *m_find; }
    /// So many pages are laid out; `whole`: they are all.
    void setCount(int pages, bool whole);
    /// The keys of a report, wherever in the window the focus is. False: it is none of them.
    bool takesKey(const QKeyEvent& event);

Q_SIGNALS:
    void printWanted();
    void pdfWanted();
    void workbookWanted();
    void pageWanted(int number); ///< which may not be laid out yet, or not be there
    void lastWanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* button(const QString& words, const QString& hint, const std::function<void()>& act);
    QWidget* bar();
    void addZooms();
    void zoomChosen(int index);
    void numberEntered();
    void showPlace();

    PageStack* m_pages;
    PageFind* m_find;
    QLineEdit* m_number;
    QLabel* m_count;
    QComboBox* m_zoom;
    QVector<QToolButton*> m_buttons;
};

} // namespace orvane
