#pragma once

#include "demo/DemoVisits.h"
#include "play/Hand.h"
#include "play/QuietUi.h"
#include "session/Program.h"

namespace orvane {

/// The billing officer and the cashier: collates a visit's bill on the collation screen, adds what the doctor ordered
/// on the item screen, takes the receipt of a private patient, saves.
class DemoBilling {
public:
    DemoBilling(Program& program, QuietUi& ui, DemoHospital& hospital);

    /// Raises DataError when a step is refused.
    void bill(const DemoVisit& visit);

private:
    void addOrders(Form& itemScreen);
    void addOrder(Hand& hand, const DemoOrder& order);
    void takeReceipt(Hand& hand);
    void pay(Hand& hand, double payable);
    void expectBoxes(const QString& step, const QStringList& allowed);

    Program& m_program;
    QuietUi& m_ui;
    DemoHospital& m_hospital;
    const DemoVisit* m_visit = nullptr;
};

} // namespace orvane
