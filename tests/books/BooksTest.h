#pragma once

#include "books/BillInHand.h"
#include "books/Desk.h"
#include "support/Hospital.h"
#include "support/Rows.h"
#include "support/TestHome.h"

namespace orvane {

/// Rules on the rows of layHospital without any screen, for the patient P/0001 and his visit, on each engine.
class BooksTest : public EngineTest {
public:
    static constexpr const char* billNo = "001OFL0000001";

    void SetUp() override {
        Connection accounting = data.open(TestHome::accounting());
        layHospital(billing, accounting);
        makePatient(billing);
        makeVisit(billing);
    }

    /// Saves as every desk does.
    template <typename T>
    Given<T> save(const std::function<Given<T>(Books&)>& step) {
        return Desk(data, TestHome::billing(), context)
            .save<T>(
                "TEST",
                [&](Books& books) {
                    const Given<T> given = step(books);
                    recorded = books.document() + '|' + QString::number(books.amount());
                    return given;
                });
    }
    void run(const QString& tsql) { billing.run(tsql); }
    QString rows(const QString& tsql) { return rowsOf(billing, tsql); }
    QString lines() { return rows("select drgName, SubTotal from BillingDetails order by SNo"); }
    QString account() { return rows("select Amount, RunningTotal, Remarks from Tranxaction order by SNo"); }
    /// A bill and its visit as if they had never been, the patient owing nothing.
    void strike() {
        for (const char* table : {"BillAccum", "Billing", "BillingDetails", "BillingDetailsAdjust", "Tranxaction",
                                  "Payments", "PaymentDetails", "hDebtReview"})
            run(QStringLiteral("delete from %1").arg(table));
        run("update hPatients set DebtBF=0");
    }
    void moveVisit(const QString& category, const QString& client, const QString& referal = "NO") {
        run(QStringLiteral("update hRecords set clientCat='%1', coyName='%2', referal='%3'")
                .arg(category, client, referal));
    }
    BillInHand visit(const QString& category = "PRIVATE", const QString& client = "0001") const {
        return {.consultID = billNo,
                .pno = "P/0001",
                .patient = "ADEYEMI BOLA",
                .retainID = client,
                .retainCode = client,
                .category = category,
                .referal = "NO",
                .billEndDay = 31};
    }

    QString recorded;    ///< document and amount of the last save
    QStringList audited; ///< action, document, remarks
    BookContext context{
        .actor = {"amina.b", "E001", "WS1"},
        .settings = {"001", "0001", "0001", "9999", "SUSPENSE", "ALL"},
        .today = QDate(2026, 3, 14),
        .now = QTime(9, 30),
        .audit = [this](const AuditEntry& e) { audited << e.action + '|' + e.document + '|' + e.remarks; }};
};

} // namespace orvane
