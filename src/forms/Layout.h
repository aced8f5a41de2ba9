#pragma once

#include <QString>
#include <QVector>
#include <initializer_list>
#include <utility>

namespace orvane {

class Button;
class Control;
class TabStrip;

/// How a form is laid out, in words: the desktop turns it into widgets, in one spacing and with labels aligned down the
/// form.
struct Layout {
    enum Kind {
        Row,    ///< children side by side
        Flow,   ///< as a row, going on in a further line where the room across ends
        Column, ///< children below each other; successive fields align their labels
        Field,  ///< label text left of the control
        Cell,   ///< the control alone
        Facts,  ///< label-over-value pairs in one line: the facts of the thing in hand
        Card,   ///< a framed summary column: label left, amount right; a Field in it with emphasis shows large
        Group,  ///< a heading and a frame around its children; `control` may be the Frame it belongs to
        Tabs,   ///< one Page each child; `control` is the TabStrip
        Page,
        Buttons, ///< one row at the bottom: the first child's left, the second child's right; the default last
        Stretch  ///< takes the room that is left
    };
    Kind kind = Column;
    QString text;
    Control* control = nullptr;
    QVector<Layout> children;
    bool grows = false;    ///< takes the room that is left (grids and multi-line texts do by themselves)
    bool emphasis = false; ///< shown large
    int characters = 0;    ///< wished width in characters; 0: by kind
};

namespace layout {

Layout row(std::initializer_list<Layout> items);
Layout flow(std::initializer_list<Layout> items);
Layout column(std::initializer_list<Layout> items);
Layout field(const QString& label, const Control& control, int characters = 0);
Layout cell(const Control& control, int characters = 0);
Layout large(const QString& label, const Control& control); ///< a field shown large, for the one figure that matters
Layout facts(std::initializer_list<std::pair<QString, const Control*>> items);
Layout card(std::initializer_list<Layout> items);
Layout group(const QString& heading, std::initializer_list<Layout> items, const Control* frame = nullptr);
Layout tabs(const TabStrip& strip, std::initializer_list<Layout> pages);
Layout page(const QString& caption, std::initializer_list<Layout> items);
Layout buttons(std::initializer_list<const Control*> left, std::initializer_list<const Control*> right);
Layout stretch();
Layout growing(Layout item); ///< the same item, taking the room that is left

} // namespace layout

} // namespace orvane
