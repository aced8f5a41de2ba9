#pragma once

#include "desktop/Binding.h"

class QLineEdit;
class QPlainTextEdit;

namespace orvane {

/// What stands in a field of one line, once each line break that was pasted into it has become a blank.
QString takeOneLine(QLineEdit& line);

/// A text of one line.
class LineBinding : public Binding {
    Q_OBJECT

public:
    LineBinding(FormView& view, TextBox& box, QWidget* parent, Place place, int characters);
    bool settle() override; ///< a sum becomes its result
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void refresh() override;
    void released() override { m_box = nullptr; }

private:
    void typed(const QString& text);

    TextBox* m_box;
    QLineEdit* m_line;
    Place m_place;
    int m_characters;
    bool m_clickSelects = false; ///< a press of the mouse has brought the focus; its release selects the number
};

/// A text of several lines.
class TextBinding : public Binding {
    Q_OBJECT

public:
    TextBinding(FormView& view, TextBox& box, QWidget* parent, Place place);

protected:
    void refresh() override;
    void released() override { m_box = nullptr; }

private:
    void edited();

    TextBox* m_box;
    QPlainTextEdit* m_edit;
    bool m_showing = false;
};

} // namespace orvane
