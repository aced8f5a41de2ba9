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

std::shared_ptr<PageSource> openDataReport(const ReportInput& input, const QString& sums) {
    ReportInput list = input;
    list.textObjects = {{listTitle, input.title}};
    if (!sums.isEmpty())
        list.textObjects.insert(listSums, sums);
    return std::make_shared<BandReport>(listTemplate(list), list);
}

} // namespace orvane
