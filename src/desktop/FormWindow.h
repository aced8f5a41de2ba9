#pragma once

#include "desktop/FormView.h"

class QScrollArea;
class QVBoxLayout;

namespace orvane {

class PageStack;

/// The window of a form, inside the main window or on its own: its view in a scroll area, so that nothing is ever out
/// of reach. A form that is a document shows its page above its buttons.
class FormWindow : public QWidget {
    Q_OBJECT

public:
    FormWindow(Form& form, const ViewSetting& setting, QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    FormView* view() const { return m_view; }
    Form* form() const { return m_form; } ///< null once released
    /// The size inside the main window: a form with a list takes all the room, another one what it needs.
    QSize sizeFor(QSize room) const;
    /// The size as a dialog, where a small form with a list stays a window among others.
    QSize dialogSize(QSize room) const;
    void release(); ///< the form has closed: the window may go

Q_SIGNALS:
    void formReleased();
    void activatedByUser();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSize fitted(QSize wanted, QSize room) const;
    QSize neededSize() const;
    void showPage();
    void addPage(QVBoxLayout& box);
    QWidget* pdfButton();

    Form* m_form;
    FormView* m_view;
    QScrollArea* m_scroll;
    PageStack* m_pages = nullptr;
    bool m_pageScheduled = false;
};

} // namespace orvane
