#pragma once

#include "desktop/FormView.h"

#include <QMainWindow>

class QAction;
class QMdiArea;
class QMenu;

namespace orvane {

/// A menu or an entry of one.
class MenuBinding : public Binding {
    Q_OBJECT

public:
    MenuBinding(FormView& view, MenuItem& item, QAction* action, QMenu* menu);
    QAction* action() const { return m_action; }
    QMenu* menu() const { return m_menu; } ///< null for an entry

protected:
    void refresh() override;
    void released() override { m_item = nullptr; }

private:
    MenuItem* m_item;
    QAction* m_action;
    QMenu* m_menu;
    int m_mnemonic;
};

/// The main window: the form that has a menu bar. Its own controls are the strip below the menus and the status bar;
/// all other forms show inside it.
class ShellWindow : public QMainWindow {
    Q_OBJECT

public:
    ShellWindow(Form& form, bool scripted);

    FormView* view() const { return m_strip; }
    QMdiArea* area() const { return m_area; }
    QString menuLetters() const { return m_menuLetters; }
    void release();
    static bool isShell(const Form& form);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenus();
    void fillMenu(QMenu& menu, const MenuItem& item);
    void buildStatusBar();
    void addArrangement(const QString& entry, void (ShellWindow::*arrange)());
    void listChildren(QMenu& menu);
    void tileVertical();
    void tileHorizontal();
    void cascade();

    Form* m_form;
    FormView* m_strip;
    QMdiArea* m_area;
    QString m_menuLetters;
    QVector<QAction*> m_children; ///< of the window menu, the list of open windows
};

} // namespace orvane
