#pragma once

#include "desktop/Binding.h"
#include "forms/Layout.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLayout;

namespace orvane {

class FlowLayout;
class GridBinding;

/// Turns a form's layout in words into widgets and Qt layouts inside its view.
class LayoutBuilder {
public:
    explicit LayoutBuilder(FormView& view) : m_view(view), m_parent(nullptr) {}
    void build(const Layout& layout);

private:
    /// What an item has become: a widget or a layout.
    struct Piece {
        QWidget* widget = nullptr;
        QLayout* layout = nullptr;
    };

    Piece piece(const Layout& item);
    QWidget* control(const Layout& item, Place place);
    QWidget* withTotals(GridBinding& grid);
    QLabel* label(const Layout& field, QWidget* buddy);
    QLayout* column(const QVector<Layout>& items);
    QLayout* fieldBlock(const QVector<Layout>& items);
    void fieldRow(QGridLayout& grid, int row, const Layout& item, int columns);
    void fieldFlow(QGridLayout& grid, int row, QVector<Layout> items, int columns);
    void fillRow(QBoxLayout& row, const QVector<Layout>& items, qsizetype first);
    QLayout* row(const Layout& item);
    FlowLayout* flow(const QVector<Layout>& items);
    QLayout* facts(const Layout& item);
    QWidget* card(const Layout& item);
    void cardItem(QBoxLayout& box, const Layout& item);
    void cardField(QBoxLayout& line, const Layout& field);
    QWidget* group(const Layout& item);
    QWidget* tabs(const Layout& item);
    QLayout* buttons(const Layout& item);

    FormView& m_view;
    QWidget* m_parent; ///< of the widgets being made
    QString m_heading; ///< of what is around the widgets being made
    int m_pages = 0;   ///< of tab strips, made so far
};

} // namespace orvane
