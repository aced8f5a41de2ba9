#include "reports/Report.h"

#include "reports/BandReport.h"
#include "reports/CrosstabReport.h"
#include "reports/ListTemplate.h"
#include "reports/TemplateReader.h"

#include <QDir>
#include <QFile>

namespace orvane {

namespace {

std::shared_ptr<PageSource> laidOut(const ReportTemplate& layout, const ReportInput& input) {
    if (layout.crosstab.line > 0)
        return std::make_shared<CrosstabReport>(layout, input);
    return std::make_shared<BandReport>(layout, input);
}

} // namespace

std::shared_ptr<PageSource> openReport(const ReportInput& input) {
    QString file = input.file.trimmed();
    file.remove(QLatin1Char('\\'));
    return laidOut(readTemplateFile(QDir(input.folder).filePath(file)), input);
}

std::shared_ptr<PageSource> openDataReport(const QString& name, const QString& title, const Recordset& rows) {
    /// The totals of the plain lists.
    static const QHash<QString, QStringList> summed = {
        {"rptCompanyBill", {"Bills", "AmountPaid", "Balance"}},
        {"rptBillingIncome", {"Income"}},
        {"rptCancelledReceipt", {"AmountPaid"}},
        {"rptPatAccounts", {"AmountBilled", "AmountPaid", "AmountDue"}},
    };
    return laidOut(listTemplate(name, title, rows, summed.value(name)),
                   {{}, name, rows, {{listTitle, title}}, {}, title});
}

} // namespace orvane
