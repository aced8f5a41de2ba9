#pragma once

#include <QLabel>

namespace orvane {

class TableModel;

/// The line below a list with amounts: how many rows it has and what its amounts come to. Hidden for any other list, and
/// while rows are still to come.
class TotalsLine : public QLabel {
    Q_OBJECT

public:
    TotalsLine(TableModel& model, QWidget* parent);

private:
    void sumUp();

    TableModel& m_model;
};

} // namespace orvane
