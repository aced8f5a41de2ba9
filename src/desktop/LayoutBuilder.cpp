#include "desktop/LayoutBuilder.h"

#include "data/Assert.h"
#include "desktop/FlowLayout.h"
#include "desktop/FormView.h"
#include "desktop/GridBinding.h"
#include "desktop/Keyed.h"
#include "desktop/LayoutRules.h"
#include "desktop/ListFind.h"
#include "desktop/Look.h"
#include "desktop/PageScroll.h"
#include "desktop/SmallBindings.h"
#include "desktop/TotalsLine.h"

#include <QGridLayout>
#include <QScopedValueRollback>
#include <algorithm>

namespace orvane {

namespace {

constexpr int cardWidth = 300;
constexpr int markedSlack = 2; ///< pixels; an underlined letter parts its neighbours a little
constexpr int narrowestList = 160;
constexpr int narrowestField = 110; ///< of a field without a width of its own, pixels

/// A widget that asks for the height it needs and not for the height it would like: what grows in it has its stretch
/// for that.
template <typename Base>
class Compact : public Base {
public:
    using Base::Base;
    int heightForWidth(int width) const override { return this->layout()->totalMinimumHeightForWidth(width); }
};

void spread(QBoxLayout& layout, int margin = 0) {
    layout.setContentsMargins(margin, margin, margin, margin);
    const bool across = layout.direction() == QBoxLayout::LeftToRight;
    layout.setSpacing(across ? look::spacing : look::rowSpacing);
}

void add(QBoxLayout& box, QWidget* widget, QLayout* layout, int stretch, Qt::Alignment alignment = {}) {
    if (widget)
        box.addWidget(widget, stretch, alignment);
    else if (layout)
        box.addLayout(layout, stretch);
}

} // namespace

void LayoutBuilder::build(const Layout& layout) {
    m_parent = &m_view;
    m_heading = m_view.form()->caption();
    QLayout* whole = layout.kind == Layout::Column ? column(layout.children) : column({layout});
    whole->setContentsMargins(look::margin, look::margin, look::margin, look::margin);
    m_view.setLayout(whole);
}

LayoutBuilder::Piece LayoutBuilder::piece(const Layout& item) {
    switch (item.kind) {
    case Layout::Row:
        return {nullptr, row(item)};
    case Layout::Flow:
        return {nullptr, flow(item.children)};
    case Layout::Column:
    case Layout::Page:
        return {nullptr, column(item.children)};
    case Layout::Field:
        return {nullptr, fieldBlock({item})};
    case Layout::Cell:
        return {control(item, Place::Plain), nullptr};
    case Layout::Facts:
        return {nullptr, facts(item)};
    case Layout::Card:
        return {card(item), nullptr};
    case Layout::Group:
        return {group(item), nullptr};
    case Layout::Tabs:
        return {tabs(item), nullptr};
    case Layout::Buttons:
        return {nullptr, buttons(item)};
    case Layout::Stretch:
        break;
    }
    return {};
}

QWidget* LayoutBuilder::control(const Layout& item, Place place) {
    Binding* binding = bindControl(m_view, *item.control, m_parent, place, item.characters);
    QWidget* widget = binding->widget();
    const bool line = item.control->kind() == ControlKind::ComboBox ||
                      (item.control->kind() == ControlKind::TextBox && !isMultiline(*item.control));
    if (line)
        widget->setMinimumHeight(place == Place::Plain ? look::lineHeight() : 0);
    if (line && place == Place::Plain) {
        if (item.characters > 0)
            widget->setFixedWidth(look::charactersWidth(*widget, item.characters) + 22);
        else
            widget->setMinimumWidth(narrowestField);
    }
    if (isMultiline(*item.control) && place == Place::Plain) {
        widget->setMinimumSize(std::max(narrowestField, look::charactersWidth(*widget, item.characters)), 48);
        widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }
    if (isList(*item.control))
        widget->setMinimumSize(std::max(narrowestList, look::charactersWidth(*widget, item.characters)), 72);
    const QString name = !item.text.isEmpty() ? item.text : isList(*item.control) ? m_heading : QString();
    if (!name.isEmpty())
        binding->editor()->setAccessibleName(Mnemonics::plain(name));
    if (auto* grid = qobject_cast<GridBinding*>(binding))
        return withTotals(*grid);
    return widget;
}

QWidget* LayoutBuilder::withTotals(GridBinding& grid) {
    auto* both = new Compact<QWidget>(m_parent);
    auto* box = new QVBoxLayout(both);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(2);
    box->addWidget(grid.widget(), 1);
    box->addWidget(new ListFind(*grid.table(), both));
    box->addWidget(new TotalsLine(*grid.table(), both));
    grid.addCompanion(both);
    return both;
}

/// The label of a field: its key brings the focus to the field.
QLabel* LayoutBuilder::label(const Layout& field, QWidget* buddy) {
    auto* text = new KeyLabel(m_parent);
    look::mark(*text, "heading");
    text->setContentsMargins(0, 0, markedSlack, 0);
    Binding* binding = m_view.bindingOf(*field.control);
    binding->addCompanion(text);
    const bool reachable = buddy && buddy->focusPolicy() != Qt::NoFocus;
    if (!reachable || isOnlyRead(*field.control)) {
        text->setText(Mnemonics::plain(field.text));
        return text;
    }
    text->setBuddy(buddy);
    m_view.mnemonics().add(Mnemonics::Field, field.text,
                           [text](const QString& words, Mnemonics::Key key) { text->setWords(words, key); });
    return text;
}

QLayout* LayoutBuilder::column(const QVector<Layout>& items) {
    auto* box = new QVBoxLayout;
    spread(*box);
    bool grows = false;
    for (qsizetype i = 0; i < items.size();) {
        qsizetype end = i;
        while (end < items.size() && isFieldLine(items.at(end)))
            ++end;
        if (end > i) {
            const QVector<Layout> block = items.mid(i, end - i);
            const bool down = std::any_of(block.cbegin(), block.cend(), growsDown);
            box->addLayout(fieldBlock(block), down ? 1 : 0);
            grows = grows || down;
            i = end;
            continue;
        }
        const Layout& item = items.at(i++);
        const bool down = growsDown(item);
        grows = grows || down;
        if (item.kind == Layout::Stretch) {
            box->addStretch(1);
            continue;
        }
        const Piece made = piece(item);
        const bool narrow = item.kind == Layout::Cell && !growsAcross(item) &&
                            item.control->kind() != ControlKind::Label && item.control->kind() != ControlKind::Picture;
        add(*box, made.widget, made.layout, down ? 1 : 0, narrow ? Qt::AlignLeft : Qt::Alignment());
        if (auto* text = qobject_cast<QLabel*>(made.widget))
            text->setWordWrap(true);
    }
    if (!grows)
        box->addStretch(1);
    return box;
}

/// Successive fields: labels in one column, what they belong to beside them. Rows that are fields throughout share
/// further columns.
QLayout* LayoutBuilder::fieldBlock(const QVector<Layout>& items) {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(look::spacing);
    grid->setVerticalSpacing(look::rowSpacing);
    int pairs = 1;
    for (const Layout& item : items)
        if (item.kind == Layout::Row && isAllFields(item))
            pairs = std::max(pairs, int(item.children.size()));
    bool across = false;
    for (int row = 0; row < int(items.size()); ++row) {
        fieldRow(*grid, row, items.at(row), 2 * pairs);
        grid->setRowStretch(row, growsDown(items.at(row)) ? 1 : 0);
        across = across || growsAcross(items.at(row));
    }
    // Where nothing takes the room that is left, a last empty column does.
    if (!across)
        grid->setColumnStretch(2 * pairs, 1);
    return grid;
}

/// The rest goes on below the first field, not below its label.
void LayoutBuilder::fieldFlow(QGridLayout& grid, int row, QVector<Layout> items, int columns) {
    const Layout first = items.first();
    items.first().kind = Layout::Cell;
    grid.addLayout(flow(items), row, 1, 1, columns);
    QLabel* text = label(first, m_view.bindingOf(*first.control)->editor());
    text->setMinimumHeight(look::lineHeight());
    grid.addWidget(text, row, 0, Qt::AlignTop);
    grid.setColumnStretch(columns - 1, std::max(1, grid.columnStretch(columns - 1)));
}

void LayoutBuilder::fieldRow(QGridLayout& grid, int row, const Layout& item, int columns) {
    if (item.kind == Layout::Flow) {
        fieldFlow(grid, row, item.children, columns);
        return;
    }
    const QVector<Layout> fields = item.kind == Layout::Field ? QVector<Layout>{item} : item.children;
    const bool aligned = isAllFields(item);
    const qsizetype count = aligned ? fields.size() : 1;
    for (qsizetype i = 0; i < count; ++i) {
        const Layout& field = fields.at(i);
        const int column = int(2 * i);
        QWidget* widget = control(field, field.emphasis ? Place::Large : Place::Plain);
        QLabel* text = label(field, m_view.bindingOf(*field.control)->editor());
        text->setContentsMargins(i > 0 ? look::spacing : 0, 0, markedSlack, 0);
        const bool tall = growsDown(field) || field.control->kind() == ControlKind::Picture;
        grid.addWidget(text, row, column, tall ? Qt::AlignTop : Qt::AlignVCenter);
        const bool last = i == count - 1;
        if (aligned) {
            const Qt::Alignment side =
                growsAcross(field) || field.control->kind() == ControlKind::Label ? Qt::Alignment() : Qt::AlignLeft;
            grid.addWidget(widget, row, column + 1, 1, last ? columns - column : 1, side);
            if (growsAcross(field))
                grid.setColumnStretch(column + 1, 1);
            continue;
        }
        auto* rest = new QHBoxLayout;
        spread(*rest);
        rest->addWidget(widget, shareAcross(field));
        fillRow(*rest, fields, 1);
        if (std::none_of(fields.cbegin(), fields.cend(), growsAcross))
            rest->addStretch(1);
        grid.addLayout(rest, row, 1, 1, columns);
        grid.setColumnStretch(columns - 1, std::max(1, grid.columnStretch(columns - 1)));
    }
}

void LayoutBuilder::fillRow(QBoxLayout& box, const QVector<Layout>& items, qsizetype first) {
    for (qsizetype i = first; i < items.size(); ++i) {
        const Layout& item = items.at(i);
        if (item.kind == Layout::Stretch) {
            box.addStretch(1);
        } else if (item.kind == Layout::Field) {
            QWidget* widget = control(item, item.emphasis ? Place::Large : Place::Plain);
            if (!item.text.isEmpty())
                box.addWidget(label(item, m_view.bindingOf(*item.control)->editor()));
            box.addWidget(widget, shareAcross(item));
        } else {
            const Piece made = piece(item);
            add(box, made.widget, made.layout, shareAcross(item));
        }
    }
}

QLayout* LayoutBuilder::row(const Layout& item) {
    auto* box = new QHBoxLayout;
    spread(*box);
    fillRow(*box, item.children, 0);
    if (std::none_of(item.children.cbegin(), item.children.cend(), growsAcross))
        box->addStretch(1);
    return box;
}

FlowLayout* LayoutBuilder::flow(const QVector<Layout>& items) {
    auto* flow = new FlowLayout(look::spacing, look::rowSpacing);
    for (const Layout& item : items) {
        if (item.kind == Layout::Stretch) {
            flow->addStretch();
            continue;
        }
        // A field stays with its label.
        const Piece made = item.kind == Layout::Field ? Piece{nullptr, row(layout::row({item}))} : piece(item);
        if (made.widget)
            flow->addWidget(made.widget);
        else
            flow->addLayout(made.layout);
    }
    return flow;
}

QLayout* LayoutBuilder::facts(const Layout& item) {
    auto* flow = new FlowLayout(2 * look::spacing + 2, 4);
    for (const Layout& field : item.children) {
        auto* pair = new QVBoxLayout;
        pair->setContentsMargins(0, 0, 0, 0);
        pair->setSpacing(0);
        QWidget* widget = control(field, Place::Facts);
        pair->addWidget(label(field, m_view.bindingOf(*field.control)->editor()));
        pair->addWidget(widget);
        flow->addLayout(pair);
    }
    return flow;
}

QWidget* LayoutBuilder::card(const Layout& item) {
    auto* frame = new Compact<QFrame>(m_parent);
    look::mark(*frame, "card");
    frame->setFixedWidth(cardWidth);
    const QScopedValueRollback<QWidget*> inside(m_parent, frame);
    auto* box = new QVBoxLayout(frame);
    spread(*box, look::margin);
    for (const Layout& child : item.children)
        cardItem(*box, child);
    const auto takesRest = [](const Layout& child) {
        return growsDown(child) && (child.grows || !child.control || !isMultiline(*child.control));
    };
    if (std::none_of(item.children.cbegin(), item.children.cend(), takesRest))
        box->addStretch(1);
    return frame;
}

void LayoutBuilder::cardItem(QBoxLayout& box, const Layout& item) {
    if (item.kind == Layout::Field) {
        if (item.emphasis) {
            auto* rule = new QFrame(m_parent);
            look::mark(*rule, "rule");
            box.addWidget(rule);
        }
        auto* line = new QHBoxLayout;
        spread(*line);
        cardField(*line, item);
        box.addLayout(line);
    } else if (item.kind == Layout::Row) {
        auto* line = new QHBoxLayout;
        spread(*line);
        for (const Layout& child : item.children)
            if (child.kind == Layout::Field)
                cardField(*line, child);
            else
                add(*line, piece(child).widget, nullptr, 0);
        box.addLayout(line);
    } else if (item.kind == Layout::Stretch) {
        box.addStretch(1);
    } else {
        const bool note = item.kind == Layout::Cell && isMultiline(*item.control) && !item.grows;
        const Piece made = note ? Piece{control(item, Place::Card), nullptr} : piece(item);
        add(box, made.widget, made.layout, growsDown(item) && !note ? 1 : 0);
        if (auto* text = qobject_cast<QLabel*>(made.widget)) {
            text->setWordWrap(true);
            look::mark(*text, "quiet");
        }
    }
}

void LayoutBuilder::cardField(QBoxLayout& line, const Layout& field) {
    QWidget* widget = control(field, field.emphasis ? Place::Large : Place::Card);
    line.addWidget(label(field, m_view.bindingOf(*field.control)->editor()));
    if (field.control->kind() == ControlKind::Label) {
        line.addWidget(widget, 1);
    } else {
        line.addStretch(1);
        line.addWidget(widget);
    }
    if (field.control->kind() == ControlKind::TextBox && field.characters == 0 && !field.emphasis)
        widget->setFixedWidth(look::charactersWidth(*widget, 14));
}

QWidget* LayoutBuilder::group(const Layout& item) {
    auto* box = new Compact<QGroupBox>(Mnemonics::marked(Mnemonics::plain(item.text), {}), m_parent);
    QString heading = item.text;
    if (item.control) {
        ORVANE_ASSERT(item.control->kind() == ControlKind::Frame);
        new FrameBinding(m_view, static_cast<Frame&>(*item.control), box);
        heading += item.control->caption();
    }
    look::mark(*box, "bare", heading.isEmpty());
    const QScopedValueRollback<QWidget*> inside(m_parent, box);
    const QScopedValueRollback<QString> named(m_heading, heading.isEmpty() ? m_heading : heading);
    QLayout* content = column(item.children);
    content->setContentsMargins(look::spacing, look::rowSpacing, look::spacing, look::rowSpacing);
    box->setLayout(content);
    return box;
}

QWidget* LayoutBuilder::tabs(const Layout& item) {
    auto* tabs = new QTabWidget(m_parent);
    for (const Layout& page : item.children) {
        auto* scroll = new PageScroll(tabs);
        auto* widget = new Compact<QWidget>(scroll);
        const QScopedValueRollback<QWidget*> inside(m_parent, widget);
        const QScopedValueRollback<QString> named(m_heading, page.text);
        m_view.mnemonics().setPage(++m_pages);
        QLayout* content = column(page.children);
        m_view.mnemonics().setPage(0);
        content->setContentsMargins(look::spacing, look::spacing, look::spacing, look::spacing);
        widget->setLayout(content);
        scroll->setPage(widget);
        const int index = tabs->addTab(scroll, page.text);
        m_view.mnemonics().add(Mnemonics::First, page.text,
                               [tabs, index](const QString& words, Mnemonics::Key) { tabs->setTabText(index, words); });
    }
    ORVANE_ASSERT(item.control);
    new TabBinding(m_view, static_cast<TabStrip&>(*item.control), tabs);
    return tabs;
}

QLayout* LayoutBuilder::buttons(const Layout& item) {
    auto* line = new QHBoxLayout;
    spread(*line);
    auto* left = new FlowLayout(look::spacing, look::spacing);
    for (const Layout& child : item.children.value(0).children)
        left->addWidget(control(child, Place::Plain));
    line->addLayout(left, 1);
    const QVector<Layout> right = item.children.value(1).children;
    for (const Layout& child : right)
        line->addWidget(control(child, Place::Plain), 0, Qt::AlignBottom);
    // The last one is what the form is for, unless it only leaves the form.
    if (!right.isEmpty() && right.last().control->kind() == ControlKind::Button &&
        right.last().control != m_view.form()->cancelButton())
        look::mark(*m_view.widgetOf(*right.last().control), "primary");
    return line;
}

} // namespace orvane
