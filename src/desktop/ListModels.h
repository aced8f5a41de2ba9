#pragma once

#include "forms/Controls.h"

#include <QAbstractListModel>
#include <QPointer>
#include <functional>

namespace orvane {

/// The entries of a drop-down, read from the control as they are asked for. `reload` when they have changed.
class ComboModel : public QAbstractListModel {
    Q_OBJECT

public:
    ComboModel(ComboBox& box, QObject* parent) : QAbstractListModel(parent), m_box(&box), m_rows(box.entriesRead()) {}
    void reload();
    void catchUp(); ///< entries have come behind the others
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QPointer<ComboBox> m_box;
    int m_rows;
};

/// The entries of a list with a tick before each. Ticking calls `onTick`.
class TickModel : public QAbstractListModel {
    Q_OBJECT

public:
    TickModel(ListBox& list, QObject* parent) : QAbstractListModel(parent), m_list(&list), m_rows(list.count()) {}
    std::function<void(int row, bool ticked)> onTick;
    void reload();
    void redraw(); ///< the ticks have changed
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QPointer<ListBox> m_list;
    int m_rows;
};

} // namespace orvane
