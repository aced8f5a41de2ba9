// Any bytes are a report's template or refused with one line that says where; a report that was read has an end, and
// each of its pages can be had.
#include "Demand.h"
#include "data/rows/Recordset.h"
#include "data/rows/Schema.h"
#include "reports/BandReport.h"
#include "reports/CrosstabReport.h"
#include "reports/TemplateReader.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstdint>

namespace orvane {

namespace {

constexpr qsizetype longestMessage = 500;
constexpr int mostPages = 200; ///< of 30 rows

Recordset makeRows() {
    QTemporaryDir folder;
    DataSource source(folder.path());
    source.setDisposable();
    const QString billing = QStringLiteral("Server=SERVER;Database=Dunmarch");
    createDatabases(source, billing, QStringLiteral("Server=SERVER;Database=Accounting"));
    Connection connection = source.open(billing);
    QStringList selects;
    for (int i = 0; i < 30; ++i)
        selects += QStringLiteral("select 'P%1' as PNo, 'HEAD %2' as Head, %3.5 as Amount, '2026-03-%4' as Day")
                       .arg(i % 7)
                       .arg(i % 3)
                       .arg(i * 100)
                       .arg(i + 1, 2, 10, QLatin1Char('0'));
    return connection.run(selects.join(QStringLiteral(" union all "))).detached();
}

void layOutWhole(const ReportTemplate& layout, const Recordset& rows) {
    const ReportInput input{{}, layout.file, rows, {}, {}, {}};
    std::shared_ptr<PageSource> report;
    if (layout.crosstab.line > 0)
        report = std::make_shared<CrosstabReport>(layout, input);
    else
        report = std::make_shared<BandReport>(layout, input);
    int pages = 0;
    while (report->has(pages)) {
        demand(pages < mostPages, "a report has an end");
        report->page(pages++);
    }
    demand(report->isWhole() && report->pagesMade() == pages && pages > 0, "every page can be had");
}

void fuzzTemplate(const QString& text, const Recordset& rows) {
    try {
        layOutWhole(readTemplate(QStringLiteral("fuzz.rpt"), text.split(u'\n')), rows);
    } catch (const DataError& fault) {
        const QString said = fault.description();
        demand(said.startsWith(QStringLiteral("fuzz.rpt:")), "a refusal says where", said);
        demand(said.size() <= longestMessage, "a refusal is short", said);
        demand(std::none_of(said.begin(), said.end(), [](QChar c) { return c.category() == QChar::Other_Control; }),
               "a refusal is one line", said);
    }
}

} // namespace

} // namespace orvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static int count = 0;
    static QCoreApplication application(count, nullptr);
    static const orvane::Recordset rows = orvane::makeRows();
    orvane::fuzzTemplate(QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size)), rows);
    return 0;
}
