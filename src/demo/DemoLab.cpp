#include "demo/DemoLab.h"

#include "data/rows/Transaction.h"

namespace orvane {

namespace {

/// A part of what the laboratory writes for a test.
struct Finding {
    QString category, part, result, reference;
};

/// What is found for a test: its parts, or one word for a test that has none.
QVector<Finding> findingsOf(const DemoItem& test, DemoRandom& random) {
    static const QVector<QStringList> facts = demoFacts("labfindings");
    QVector<Finding> findings;
    for (const QStringList& fact : facts)
        if (test.name.startsWith(fact.at(0)))
            findings.append({fact.at(1), fact.at(2), random.pick(fact.at(3).split(u'|')), fact.at(4)});
    if (findings.isEmpty())
        findings.append({test.category, test.name, random.chance(80) ? "NORMAL" : "ABNORMAL, SEE THE DOCTOR", {}});
    return findings;
}

/// The tests that a doctor ordered; where everything shall be seen, blood, the WIDAL reaction and tissue.
QVector<const DemoItem*> testsOf(const DemoVisit& visit, bool everything, const DemoHospital& hospital) {
    QVector<const DemoItem*> tests;
    for (const DemoOrder& order : visit.orders)
        if (order.item->kind == QLatin1String("LAB"))
            tests.append(order.item);
    for (const DemoItem& test : hospital.labServices)
        for (const char* shown : {"FULL BLOOD COUNT", "WIDAL TEST", "HISTOLOGY SMALL"})
            if (everything && test.name.startsWith(QLatin1StringView(shown)) && !tests.contains(&test))
                tests.append(&test);
    return tests;
}

class Laboratory {
public:
    Laboratory(Connection& billing, const DemoHospital& hospital, QDate day)
        : m_billing(billing), m_hospital(hospital), m_day(day), m_random(quint64(day.toJulianDay())),
          m_requests(billing, Sql("select * from hInvestigate where 1=2")),
          m_findings(billing, Sql("select * from hInvestigateFindings where 1=2")) {}

    void answer(const DemoVisit& visit, const QVector<const DemoItem*>& tests) {
        const Recordset consultation(m_billing, Sql("select max(SNo) as SNo from hconsulting where consultID='")
                                                    << visit.consultID << "'");
        const qlonglong conID = consultation.integer("SNo");
        QStringList names;
        for (const DemoItem* test : tests)
            names << test->name;
        addRow(m_requests,
               {{"consultID", visit.consultID},
                {"conID", conID},
                {"PNo", visit.patient->number},
                {"invDate", m_day},
                {"labnum",
                 QStringLiteral("L%1%2/001").arg(m_day.toString("yyMMdd")).arg(++m_number, 2, 10, QLatin1Char('0'))},
                {"investigate", names.join(u'\n')},
                {"clientCat", visit.patient->category},
                {"attendedto", 1},
                {"attendedTobyLab", 1}});
        for (const DemoItem* test : tests)
            for (const Finding& finding : findingsOf(*test, m_random))
                write(visit, conID, *test, finding);
    }

private:
    void write(const DemoVisit& visit, qlonglong conID, const DemoItem& test, const Finding& finding) {
        addRow(m_findings, {{"consultID", visit.consultID},
                            {"conID", conID},
                            {"PNo", visit.patient->number},
                            {"invDate", m_day},
                            {"drgName", test.name},
                            {"sympItem", finding.part},
                            {"sympItemCat", finding.category},
                            {"Result", finding.result},
                            {"Remarks", finding.reference},
                            {"empID", m_hospital.employeesOf("LAB").value(0).id},
                            {"attendedto", 1},
                            {"attendedTobyLab", 1}});
    }

    Connection& m_billing;
    const DemoHospital& m_hospital;
    QDate m_day;
    DemoRandom m_random; ///< its own: the rest of the hospital is what it is without a laboratory
    Recordset m_requests, m_findings;
    int m_number = 0; ///< of the day's last request
};

} // namespace

void answerFromLaboratory(Connection& billing, const DemoHospital& hospital, QDate day,
                          const QVector<DemoVisit>& visits) {
    constexpr int shownVisits = 2;
    Transaction transaction(billing);
    Laboratory laboratory(billing, hospital, day);
    int shown = day == hospital.options.until ? shownVisits : 0;
    for (const DemoVisit& visit : visits)
        if (const auto tests = testsOf(visit, shown-- > 0, hospital); !tests.isEmpty())
            laboratory.answer(visit, tests);
    transaction.commit();
}

} // namespace orvane
