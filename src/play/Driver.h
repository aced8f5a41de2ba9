#pragma once

#include "forms/Form.h"

#include <exception>

namespace orvane {

/// Why a line of a script cannot be carried out; the player writes it behind "FAIL line N: " and stops.
class PlayError : public std::exception {
public:
    explicit PlayError(QString reason) : m_reason(std::move(reason)), m_what(m_reason.toUtf8()) {}
    const QString& reason() const { return m_reason; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    QString m_reason;
    QByteArray m_what;
};

/// How the script player acts on a control as its user would. The player has already looked up the control, read the
/// value and refused a control that is hidden, disabled or locked in the model; a driver does the act and nothing else.
/// A driver over real widgets raises PlayError when its widget does not let the user do it. None of the calls waits: a
/// modal form that an act opens is run inside it.
class Driver {
public:
    virtual ~Driver() = default;

    /// Replaces the whole text at once, so that one Change comes of it.
    virtual void type(TextBox& box, const QString& text) = 0;
    virtual void type(ComboBox& box, const QString& text) = 0;
    virtual void choose(ComboBox& box, int index) = 0;
    virtual void choose(TabStrip& tabs, int tab) = 0;
    virtual void choose(Tree& tree, const QString& key) = 0;
    virtual void setChecked(CheckBox& box, bool checked) = 0;
    virtual void check(OptionButton& option) = 0;
    virtual void setSelected(ListBox& list, int index, bool selected) = 0;
    virtual void setDate(DatePicker& picker, QDate date) = 0; ///< the invalid date empties it
    virtual void selectRow(Grid& grid, int row) = 0;          ///< counted from 0 in the order of the model
    virtual void selectRow(EntryGrid& grid, int row) = 0;     ///< 1 is the first below the head
    virtual void click(Control& control) = 0;
    virtual void click(MenuItem& entry) = 0;
    virtual void dblClick(Control& control) = 0;
    virtual void leave(Control& control) = 0;
    /// One character typed at the end of the text; '\n' is the Enter key.
    virtual void key(Control& control, QChar character) = 0;
    virtual void tick(Timer& timer) = 0;
    virtual void close(Form& form) = 0; ///< as the window's close button; the form may refuse
    /// Saves the main window as a picture; a relative name lies in the folder of the run's output.
    virtual void picture(const QString& file) = 0;
};

} // namespace orvane
