#pragma once

#include "demo/DemoVisits.h"
#include "play/Hand.h"
#include "play/QuietUi.h"
#include "session/Program.h"

namespace orvane {

/// What a doctor sends a patient to the pharmacy for: an injection and a dressing, by turns of the day and the visit.
QVector<DemoOrder> injectionsOf(const DemoHospital& hospital, int turn);

/// The prices of the bulk store, and purchase orders; writes them in a transaction of its own.
void makeStore(Connection& billing, const DemoHospital& hospital);

/// The pharmacists' part of a day, on their screens.
class DemoPharmacy {
public:
    DemoPharmacy(Program& program, QuietUi& ui, const DemoHospital& hospital);

    void dispense(const DemoVisit& visit);
    void takeGoods(int day); ///< two deliveries, by the number of the day

private:
    void giveOne(Hand& hand, const DemoOrder& order);
    void expectBoxes(const QString& step, const QStringList& allowed);

    Program& m_program;
    QuietUi& m_ui;
    const DemoHospital& m_hospital;
    const QString m_officer; ///< as the screens list him
};

} // namespace orvane
