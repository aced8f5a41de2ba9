#pragma once

#include "forms/ReportViewer.h"
#include "session/Screen.h"

#include <QHash>

namespace orvane {

/// A report of a template in the program's folder, as a screen asks for it.
struct ReportWanted {
    QString file; ///< the template's name
    Recordset rows;
    QString nothing;                          ///< said where there are no rows
    QHash<QString, QString> textObjects = {}; ///< the texts of named text objects
    QString title = {};                       ///< in place of the template's; empty: that one
    QHash<QString, QString> values = {};      ///< that the template may ask for beside the hospital's letterhead
};

/// A screen with a viewer of reports.
class ReportScreen : public Screen {
public:
    using Screen::Screen;

protected:
    /// Opens the template, gives it the rows, its texts and the hospital's letterhead, and shows it. Where there are no
    /// rows it says so, and the viewer keeps what it shows. A fault of the template or the engine is raised, and the
    /// viewer is empty then.
    void showReport(const ReportWanted& wanted);
    /// The same of a plain list, whose layout the program bears itself.
    void showList(const QString& name, const QString& title, const Recordset& rows);

    /// "from 01/03/2026 to 31/03/2026", as a report's head names its days.
    static QString periodWords(QDate from, QDate to);
    /// "01/03/2026 and 31/03/2026", behind "between".
    static QString bothDays(QDate from, QDate to);

    ReportViewer crViewer1{*this};
};

} // namespace orvane
