// What the program asks for numbers, sums, lists and debts, in a small and in a large hospital: the questions are the
// program's own, recorded and sent once more to the bare engine, which says how it found the answer.
#include "bench/BareEngine.h"
#include "bench/Benches.h"
#include "bench/Site.h"
#include "books/ReceiptNumber.h"
#include "books/Visit.h"
#include "play/Hand.h"
#include "billing/BillLook.h"
#include "books/Bill.h"

#include <cstdio>

namespace orvane {

namespace {

/// The bill that a question is about, and its patient.
struct Subject {
    QString visit, pno, oldPno, name;
};

struct Question {
    const char* name;
    void (*ask)(Site&, const Subject&);
    const char* part;   ///< only the statements with these words are the question; null: all of them
    bool ofAll = false; ///< about every patient: asked a few times only
};

Form& opened(Site& site, const char* name) {
    site.program.open(name);
    return site.program.form(name);
}

/// frmDebtInfo as its menu entry opens it.
Form& debtInfo(Site& site) {
    site.program.session.sDebtMode.clear();
    return opened(site, "frmDebtInfo");
}

/// frmDebtInfo as the collation screen opens it.
Form& debtOf(Site& site, const Subject& subject) {
    site.program.session.sBillPatName = subject.name;
    site.program.session.sBillPno = subject.pno;
    site.program.session.sDebtMode = "AUTO";
    return opened(site, "frmDebtInfo");
}

void searchDebts(Site& site, const char* kind, const QString& text) {
    Hand hand(debtInfo(site));
    hand.choose("cboGroup", kind);
    hand.type("txtName", text);
    hand.click("OKButton");
}

void summarizeDebts(Site& site, const char* button, bool byAmount) {
    Hand hand(debtInfo(site));
    hand.tick("chkDebt", byAmount);
    hand.click(button);
}

const Question questions[] = {
    {"number of the next visit",
     [](Site& site, const Subject&) {
         Connection billing = site.program.openBilling();
         genConsultID(billing, site.program.session.gHospID);
     },
     nullptr},
    {"number of the next receipt, of a counter",
     [](Site& site, const Subject&) {
         Connection billing = site.program.openBilling();
         generatedReceiptNumber(billing);
     },
     nullptr},
    {"number of the next receipt, of a clinic",
     [](Site& site, const Subject& subject) {
         Connection billing = site.program.openBilling();
         clinicReceiptNumber(billing, site.program.session.gHospIDName, subject.visit);
     },
     nullptr},
    {"number of the session", [](Site& site, const Subject&) { site.program.openUserActivity(false, false, {}); },
     nullptr},
    {"total of a bill: vwBillingProcessDetailsGrouped",
     [](Site& site, const Subject& subject) {
         Connection billing = site.program.openBilling();
         billDetailsTotal(billing, subject.visit);
     },
     nullptr},
    {"figures of a bill: vwbillInfo",
     [](Site& site, const Subject& subject) {
         lookAtBill(site.program, subject.visit);
     },
     "vwbillInfo"},
    {"figures of a bill: the whole look",
     [](Site& site, const Subject& subject) {
         lookAtBill(site.program, subject.visit);
     },
     nullptr},
    {"worklist: the shell's look every minute",
     [](Site& site, const Subject&) { Hand(site.program.form("MdiTolmek")).ring("Timer1"); }, nullptr},
    {"worklist: frmFlash opened", [](Site& site, const Subject&) { opened(site, "frmFlash"); }, nullptr},
    {"frmDebtInfo opened on a patient", [](Site& site, const Subject& subject) { debtOf(site, subject); }, nullptr},
    {"frmDebtInfo refreshed", [](Site& site, const Subject& subject) { Hand(debtOf(site, subject)).click("cmdList"); },
     "vwTranxaction"},
    {"frmDebtInfo search by number",
     [](Site& site, const Subject& subject) { searchDebts(site, "SysNo", subject.pno); }, "vwhpatients"},
    {"frmDebtInfo search by old number",
     [](Site& site, const Subject& subject) { searchDebts(site, "CardNo", subject.oldPno); }, "vwhpatients"},
    {"frmDebtInfo search by name", [](Site& site, const Subject& subject) { searchDebts(site, "Name", subject.name); },
     "vwhpatients"},
    {"frmDebtInfo summary of all patients by name",
     [](Site& site, const Subject&) { summarizeDebts(site, "cmdRpt", false); }, "qryhFullnameHosp", true},
    {"frmDebtInfo summary of all patients by amount",
     [](Site& site, const Subject&) { summarizeDebts(site, "cmdRpt", true); }, "qryhFullnameHosp", true},
    {"frmDebtInfo summary of the debts by name",
     [](Site& site, const Subject&) { summarizeDebts(site, "cmdDebtOnly", false); }, "qryhFullnameHosp", true},
    {"frmDebtInfo summary of the debts by amount",
     [](Site& site, const Subject&) { summarizeDebts(site, "cmdDebtOnly", true); }, "qryhFullnameHosp", true},
};

/// What one question cost in one hospital, one value a subject.
struct Cost {
    QVector<double> engine, program; ///< milliseconds
    qint64 rows = 0, work = 0;
    QStringList plan; ///< of the last subject
};

class Hospital {
public:
    Hospital(const QString& home, const QString& name, int subjects)
        : m_site(home, name, Moment::LastEvening), m_engine(BareEngine::open(m_site.copy.folder(), m_site.now)) {
        Connection billing = m_site.program.openBilling();
        const Recordset last(billing, Sql("select max(ID) as ID from Billing"));
        for (int i = 1; i <= subjects; ++i)
            addSubject(billing, last.integer("ID") * i / (subjects + 1));
    }

    Engine engine() const { return m_site.copy.engine(); }

    void ask(const Question& question, qsizetype number, Cost& cost) {
        m_site.tidy();
        m_site.recorder.take();
        m_site.recorder.measure("question", [&] { question.ask(m_site, m_subjects.at(number)); });
        const Stretch stretch = m_site.recorder.take().at(1);
        cost.program << stretch.milliseconds;
        const QList<BareStatement> statements = m_engine->translated(partOf(stretch.statements, question.part));
        cost.plan.clear();
        for (const BareStatement& statement : statements)
            addExamination(m_engine->examine(statement), statement, cost);
        cost.engine << milliseconds(engine(), [&] {
            for (const BareStatement& statement : statements)
                m_engine->run(statement);
        });
    }

private:
    void addSubject(Connection& billing, qlonglong atLeast) {
        const Recordset bill(billing, Sql("select top 1 b.billNo,b.PNo,p.OldPNo,p.fullname from Billing b inner join "
                                          "hPatients p on p.PNo=b.PNo where b.ID>=")
                                          << atLeast << " and p.clientcatID='PRIVATE' order by b.ID");
        if (bill.eof())
            throw DataError("The hospital has too few private bills.");
        m_subjects.append({bill.text("billNo"), bill.text("PNo"), bill.text("OldPNo"), bill.text("fullname")});
    }

    static QStringList partOf(const QStringList& statements, const char* part) {
        return part ? statements.filter(QLatin1String(part), Qt::CaseInsensitive) : statements;
    }

    static void addExamination(const Examination& found, const BareStatement& statement, Cost& cost) {
        cost.rows += found.rows;
        cost.work += found.work;
        cost.plan << QString::fromUtf8(statement.text);
        for (const QString& step : found.plan)
            cost.plan << QStringLiteral("  ") + step;
    }

    Site m_site;
    std::unique_ptr<BareEngine> m_engine;
    QVector<Subject> m_subjects;
};

double ratio(double large, double small) {
    return large / std::max(small, 1e-9);
}

/// One line of the table. A list that is longer in the large hospital is compared by the row.
void print(const Question& question, const Cost& small, const Cost& large) {
    const bool longer = large.rows > small.rows;
    const double rows = longer ? ratio(double(large.rows), double(small.rows)) : 1;
    std::printf("%-48s %8lld %8lld %9.2f %8.3f %8.3f %7.2f %7.2f%s\n", question.name,
                static_cast<long long>(small.rows), static_cast<long long>(large.rows),
                ratio(median(large.program), median(small.program)) / rows, median(small.engine), median(large.engine),
                ratio(median(large.engine), median(small.engine)) / rows,
                ratio(double(large.work), double(small.work)) / rows, longer ? " a row" : "");
}

} // namespace

void benchGrowth(const QString& smallHome, const QString& largeHome, int rounds) {
    Hospital small(smallHome, "small", rounds);
    Hospital large(largeHome, "large", rounds);
    const bool sqlite = large.engine() == Engine::Sqlite;
    std::printf("%s, %d subjects over each hospital in turn, medians; large/small: time of the program, time of the "
                "bare engine, %s\n",
                sqlite ? "SQLite" : "PostgreSQL", rounds, sqlite ? "steps of its virtual machine" : "pages looked at");
    std::printf("%-48s %8s %8s %9s %8s %8s %7s %7s\n", "question", "rows", "rows", "program", "small ms", "large ms",
                "engine", "work");
    QVector<Cost> costs;
    for (const Question& question : questions) {
        Cost ofSmall, ofLarge;
        for (int i = 0; i < (question.ofAll ? std::min(rounds, 3) : rounds); ++i) {
            small.ask(question, i, ofSmall);
            large.ask(question, i, ofLarge);
        }
        print(question, ofSmall, ofLarge);
        costs << ofLarge;
    }
    std::printf("\nThe plans in the large hospital:\n");
    for (qsizetype i = 0; i < costs.size(); ++i)
        std::printf("%s\n  %s\n", questions[i].name, qPrintable(costs.at(i).plan.join("\n  ")));
}

} // namespace orvane
