#pragma once

#include <QDateTime>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>
#include <optional>

namespace orvane {

class Form;
class PageSource;
class Recordset;

enum class Icon { None, Information, Exclamation, Critical, Question };

/// What a Yes to a question does: the answer that Enter gives is No where something is destroyed by it.
enum class Consent { Keeps, Destroys };

/// The one port of the screens to the outside. Two implementations: the desktop and the script player.
class Ui {
public:
    virtual ~Ui() = default;

    /// A message with an OK button; an empty title shows the program's name. Returns when it was read.
    virtual void box(const QString& text, Icon icon = Icon::None, const QString& title = {}) = 0;
    /// `detail`: whose and how much the question is about, shown below its text.
    virtual bool question(const QString& text, const QString& title = {}, Consent consent = Consent::Keeps,
                          const QString& detail = {}) = 0;
    /// Empty optional: cancelled.
    virtual std::optional<QString> inputBox(const QString& prompt, const QString& title = {},
                                            const QString& initial = {}) = 0;

    virtual void show(Form& form) = 0;      ///< shows it, or brings it forward
    virtual void showModal(Form& form) = 0; ///< returns when the form has closed
    virtual void closed(Form& form) = 0;    ///< the form has unloaded: take its window away
    /// The program ends while the form is still open: its window may not touch it any more.
    virtual void abandoned(Form& /*form*/) {}
    virtual void setBusy(bool busy) = 0;
    virtual void processEvents() = 0;

    virtual void printForm(Form& form) = 0; ///< the form as it stands, on the default printer, or a dialog's choice
    /// A report in a window of its own: `file` is its name, `title` the window title.
    virtual void viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) = 0;
    /// A screen's viewer has begun to show a report of so many rows.
    virtual void reportShown(const QString& /*file*/, const Recordset& /*rows*/) {}
    /// Where workbooks are saved: the user's documents.
    virtual QString exportFolder() const { return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation); }
    /// A saved workbook is opened with the desktop's program.
    virtual void exported(const QString& file) = 0;
    virtual void playSound(const QString& file) = 0;
    virtual QDateTime now() const = 0; ///< the workstation's clock
    virtual void quit() = 0;           ///< ends the program after the current event
};

} // namespace orvane
