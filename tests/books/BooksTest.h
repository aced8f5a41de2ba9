#pragma once

#include "books/Desk.h"
#include "support/Hospital.h"
#include "support/TestHome.h"

namespace orvane {

/// A test of rules on the rows of layHospital, without a screen, on each engine.
class BooksTest : public EngineTest {
protected:
    void SetUp() override {
        Connection accounting = data.open(TestHome::accounting());
        layHospital(billing, accounting);
    }

    /// Saves as every desk does: "saved", or the words of the refusal.
    template <typename T>
    QString save(const std::function<Given<T>(Books&)>& step) {
        const Given<T> given = desk.save<T>("TEST", [&](Books& books) {
            const Given<T> result = step(books);
            recorded = books.document() + '|' + QString::number(books.amount());
            return result;
        });
        return given ? "saved" : refusalText(given.refusal());
    }
    /// The cells of the first row.
    QString row(const QString& tsql) {
        const Recordset found = billing.run(tsql);
        QStringList cells;
        for (int column = 0; !found.eof() && column < found.columns().size(); ++column)
            cells << found.text(column);
        return cells.join('|');
    }

    QString recorded; ///< document and amount of the last save
    Desk desk{data,
              TestHome::billing(),
              {.actor = {.user = "amina.b", .empID = "E001", .workstation = "CASH-01"},
               .settings = {.hospital = "001",
                            .privateClient = "0001",
                            .privateTariff = "0001",
                            .suspenseAccount = "9999",
                            .suspenseRevenue = "SUSPENSE",
                            .nhisFeeBase = "ALL"},
               .today = QDate(2026, 3, 14),
               .now = QTime(9, 30),
               .audit = {}}};
};

} // namespace orvane
