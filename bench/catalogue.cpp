// The list reports over a month of a large hospital, and a laboratory's result among a million findings: until their
// first page, against the same statements read whole by the bare engine.
#include "bench/BareEngine.h"
#include "bench/Benches.h"
#include "bench/Site.h"
#include "forms/ReportViewer.h"
#include "play/Hand.h"
#include "reports/StockTemplates.h"

#include <cstdio>

namespace orvane {

namespace {

/// A report as its user asks for it, with the days set and the lists filled.
struct Question {
    const char* what;
    const char* screen;
    const char* list;   ///< the button that fills the list of names; null: there is none
    const char* pick;   ///< what is picked there; null: the first entry, empty: none
    const char* button; ///< that shows the report
};

const Question questions[] = {
    {"attendance of private patients", "FrmRptAttendByCoy", nullptr, "PRIVATE", "cmdDisplay"},
    {"bills by billing officers", "FrmRptBillsByBillingOfficers", "cmdList", "", "cmdDisplay"},
    {"bills of one officer", "FrmRptBillsByBillingOfficers", "cmdList", "AMINA", "cmdDisplay"},
    {"bills of all clients, lines", "FrmRptBillsByClient", "cmdList", "", "cmdDisplay"},
    {"bills of private patients, lines", "FrmRptBillsByClient", "cmdList", "PRIVATE", "cmdDisplay"},
    {"attendance nobody has billed", "FrmRptBillsUnAttendedTo", nullptr, "", "cmdDisplay"},
    {"payments by cashiers", "FrmRptPaymentsByCashier", "cmdList", "", "cmdDisplay"},
    {"payments by way of payment", "FrmRptPaymentsByCashier", "cmdList", "", "cmdDetails"},
    {"a laboratory result", "FrmRptSummQVR", "cmdList", nullptr, "cmdDisplay"},
};

/// A request for each visit, a finding for each line of its bill; of ten visits one waits for its bill.
void layRows(Connection& billing) {
    billing.run("update hRecords set BillDate=null where SUBSTRING(consultID, 13, 1)='0'");
    billing.run("insert into hInvestigate (consultID, conID, PNo, invDate, labnum) select consultID, 0, PNo, recDate, "
                "'L' + consultID from hRecords");
    billing.run(
        "insert into hInvestigateFindings (consultID, conID, PNo, invDate, sympItem, sympItemCat, Result) select "
        "billNo, 0, PNo, dtDate, drgName, 'BLOOD', '41 %' from BillingDetails");
    if (billing.engine() == Engine::Postgresql)
        billing.run("vacuum analyze");
}

Hand prepared(Site& site, const Question& question, QDate first, QDate last) {
    site.tidy();
    site.program.open(question.screen);
    Hand hand(site.program.form(question.screen));
    hand.date("DTPicker1", first);
    hand.date("DTPicker2", last);
    if (question.list)
        hand.click(question.list);
    const QLatin1StringView pick(question.pick ? question.pick : "[");
    if (!pick.isEmpty())
        hand.chooseContaining("cboCust", pick);
    return hand;
}

void showFirstPage(Site& site, Hand& hand, const Question& question) {
    hand.click(question.button);
    auto& viewer = dynamic_cast<ReportViewer&>(*site.program.form(question.screen).find("crViewer1"));
    if (!viewer.has(0))
        throw DataError(question.what + (": no report. " + site.ui.takeBoxes().join('\n')));
    viewer.page(0);
}

void measure(Site& site, BareEngine& bare, const Question& question, QDate first, QDate last, int rounds) {
    Hand hand = prepared(site, question, first, last);
    QVector<double> program, engine;
    for (int round = 0; round < rounds; ++round) {
        site.recorder.take();
        site.recorder.measure("page", [&] { showFirstPage(site, hand, question); });
        const Stretch stretch = site.recorder.take().at(1);
        program << stretch.milliseconds;
        engine << milliseconds(site.copy.engine(), [&] {
            for (const BareStatement& statement : bare.translated(stretch.statements))
                bare.run(statement);
        });
    }
    std::printf("  %-40s %9.1f %9.1f %8.2f\n", question.what, median(program), median(engine),
                median(program) / median(engine));
    std::fflush(stdout);
}

} // namespace

void benchCatalogue(const QString&, const QString& largeHome, int rounds) {
    Site site(largeHome, "catalogue", Moment::LastEvening);
    renewStockTemplates(site.copy.folder());
    {
        Connection billing = site.program.openBilling();
        layRows(billing);
    }
    const auto bare = BareEngine::open(site.copy.folder(), site.now);
    const QDate first = QDate(site.now.date().year(), site.now.date().month(), 1).addMonths(-1);
    std::printf("%s, the reports of %s, %d rounds, medians\n  %-40s %9s %9s %8s\n",
                site.copy.engine() == Engine::Sqlite ? "SQLite, processor time" : "PostgreSQL, elapsed time",
                qPrintable(first.toString("MMMM yyyy")), rounds, "", "ms", "bare ms", "ratio");
    for (const Question& question : questions)
        measure(site, *bare, question, first, first.addMonths(1).addDays(-1), rounds);
}

} // namespace orvane
