#pragma once

#include <QDate>
#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace orvane {

class Form;

/// What a control is; the desktop picks its widget by it, the script player its reading of `set`.
enum class ControlKind {
    Label,
    TextBox,
    ComboBox,
    CheckBox,
    OptionButton,
    ListBox,
    DatePicker,
    Button,
    Frame,
    TabStrip,
    Tree,
    Grid,
    EntryGrid,
    Picture,
    ProgressBar,
    StatusBar,
    Timer,
    Menu,
    Viewer
};

/// One named part of a form. It knows no widget: the desktop and the script player show and drive it.
/// Its handlers are plain functions of the form; the one that a control is there for is given where it is declared:
///     Button cmdAdd{*this, "cmdAdd", "&Add", &frmReceiptTemp::cmdAdd_Click}; the user's and the code's actions raise
///     them through Form::run,
/// where a fault of the database is caught and shown once.
class Control : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void()>;

    Control(Form& form, ControlKind kind, const QString& name);
    ~Control() override;

    Form& form() const { return m_form; }
    ControlKind kind() const { return m_kind; }
    const QString& name() const { return m_name; }

    const QString& caption() const { return m_caption; } ///< "&" before a letter makes it the mnemonic
    void setCaption(const QString& caption);
    const QString& toolTip() const { return m_toolTip; }
    void setToolTip(const QString& toolTip);
    bool isEnabled() const { return m_enabled; } ///< its own flag; see isUsable
    void setEnabled(bool enabled);
    bool isVisible() const { return m_visible; }
    void setVisible(bool visible);
    /// A frame's `enabled` and `visible` reach the controls inside it.
    void setParentFrame(Control* frame) { m_frame = frame; }
    Control* parentFrame() const { return m_frame; }
    bool isUsable() const; ///< enabled and visible, and so are the frames around it
    bool isShown() const;  ///< visible, and so are the frames around it
    std::optional<unsigned> color() const {
        return m_color;
    } ///< background of a strip or label as 0xRRGGBB; none: the usual one
    void setColor(std::optional<unsigned> rgb);
    void setFocus(); ///< asks the desktop for the focus; the form remembers it for scripts

    /// Counts the changes of a list's entries, a tree's nodes or a grid's rows and columns, so that a view that shows
    /// them knows whether it must read them anew or whether only the choice has moved.
    unsigned contentRevision() const { return m_contentRevision; }

    /// A long list may not be read whole yet. Its view shows what is here and reads on while its user looks at it;
    /// whatever asks the control for all entries or rows, or for how many there are, reads on to the end at once.
    virtual bool hasMore() const { return false; }
    virtual void readMore(int) {} ///< up to so many more; raises DataError

    /// The value as the script player prints it and expects it.
    virtual QString valueText() const { return m_caption; }

    Handler onClick;
    Handler onDblClick;
    Handler onFocus;                       ///< the control has got the focus from its user
    Handler onLeave;                       ///< the focus has left the control
    std::function<bool(QChar)> onKeyPress; ///< false drops the character

    void click(); ///< raises the event as the user does
    void dblClick();
    void gotFocus();
    void leave();
    bool keyPress(QChar key); ///< false: the character was dropped

Q_SIGNALS:
    void changed(); ///< anything that is shown has changed
    void focusWanted();

protected:
    /// A function of the form, as the declaration of a control names it.
    template <typename FormClass, typename Class, typename Result>
    static Handler handlerOf(FormClass& form, Result (Class::*handler)()) {
        return [&form, handler] { (form.*handler)(); };
    }

    void raise(const Handler& handler); ///< runs it at the form's edge, where faults are caught
    void touch();                       ///< something shown has changed
    void touchContent();                ///< as touch, for entries, nodes, rows and columns

private:
    Form& m_form;
    ControlKind m_kind;
    QString m_name;
    QString m_caption;
    QString m_toolTip;
    bool m_enabled = true;
    bool m_visible = true;
    Control* m_frame = nullptr;
    std::optional<unsigned> m_color;
    unsigned m_contentRevision = 0;
};

} // namespace orvane
