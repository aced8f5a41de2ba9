#pragma once

#include "bench/Site.h"
#include "support/Entries.h"

namespace orvane {

/// A patient as the attendance screen finds one.
struct RoadPatient {
    QString number, name;
};

/// The road of one visit through a workstation's screens, from the attendance to a receipt and its reversal, and of a
/// customer of an outlet. Each save, and the load of the bill, is a measured stretch of the site's recorder.
class Road {
public:
    /// The stretches that a walk measures, in their order.
    static const QStringList actions;
    static constexpr int itemsOfAVisit = 20;

    explicit Road(Site& site);

    /// Private patients of the whole hospital, as far apart as there are many: with a valid card and no open visit.
    QVector<RoadPatient> patients(int count);
    /// Raises DataError when a screen says what it must not.
    void walk(const RoadPatient& patient);

private:
    QString attend(const RoadPatient& patient);
    void seeDoctor(const RoadPatient& patient, const QString& visit);
    void serveOutlet(const RoadPatient& patient);
    /// Measures the press, which must show these boxes.
    void press(const QString& action, Hand hand, const QString& button, const QStringList& boxes = {});

    Site& m_site;
    QStringList m_items; ///< names of drugs
    QString m_clinic, m_officer;
};

} // namespace orvane
