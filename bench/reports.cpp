// How fast reports are: the first page, a PDF and the memory of 10,000 and 100,000 rows of 8 columns, against reading
// the same rows with the bare engine. It changes nothing.

#include "bench/BareEngine.h"
#include "desktop/PagePainter.h"
#include "play/QuietUi.h"
#include "reports/Report.h"
#include "session/Main.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextStream>
#include <ctime>

namespace orvane {
namespace {

QTextStream& out() {
    static QTextStream stream(stdout);
    return stream;
}

const QByteArray lines = "report \"Lines\"\n"
                         "page A4 portrait margin 12\n"
                         "font 8\n"
                         "rows as given\n"
                         "band page head height 8\n"
                         "text \"Bill lines\" at 0 0 width 100 bold size 12\n"
                         "band detail height 5\n"
                         "field detID at 0 0 width 14 right\n"
                         "field billNo at 16 0 width 26\n"
                         "field dtDate at 44 0 width 18\n"
                         "field drgName at 64 0 width 50\n"
                         "field coyName at 116 0 width 14\n"
                         "field Price at 132 0 width 16 right format \"#,##0.00\"\n"
                         "field Qty at 150 0 width 10 right\n"
                         "field SubTotal at 162 0 width 24 right format \"#,##0.00\"\n"
                         "band carry foot height 6\n"
                         "text \"Carried forward\" at 64 0 width 40\n"
                         "sum SubTotal at 150 0 width 36 right\n"
                         "band report foot height 8\n"
                         "sum SubTotal at 150 0 width 36 right bold\n"
                         "band page foot height 6\n"
                         "text \"Page {page} of {pages}\" at 0 0 width 186 right\n";
const QByteArray invoice = QByteArray(lines)
                               .replace("rows as given\n", "group coyName newpage\ngroup billNo\n")
                               .replace("band carry foot", "band group head billNo height 6\n"
                                                           "text \"Bill {billNo}\" at 0 0 width 100 bold\n"
                                                           "band group foot billNo height 6\n"
                                                           "sum SubTotal at 150 0 width 36 right bold\n"
                                                           "band carry foot");

Sql statement(int rows) {
    return Sql("select top ") << rows << " detID,billNo,dtDate,drgName,coyName,Price,Qty,SubTotal from BillingDetails"
                              << " order by detID";
}

/// Kilobytes: VmRSS is what is taken now, VmHWM the most since the last call of forgetMost.
int memory(const QString& what) {
    QFile file("/proc/self/status");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QString text = QString::fromLatin1(file.readAll());
    return QRegularExpression(what + ":\\s+(\\d+) kB").match(text).captured(1).toInt();
}

void forgetMost() {
    QFile file("/proc/self/clear_refs");
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

/// Of the processor in this process, which a busy machine does not lengthen.
class Stopwatch {
public:
    void start() { m_start = now(); }
    double milliseconds() const { return now() - m_start; }

private:
    static double now() {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }
    double m_start = 0;
};

class Reports {
public:
    explicit Reports(const QString& home)
        : m_program(home, m_ui), m_bare(BareEngine::open(home, QDateTime::currentDateTime())) {
        prepareServer(m_program);
    }

    void measure(int rows, const QString& name, const QByteArray& layout) {
        write(name, layout);
        const BareStatement bare = m_bare->translated({statement(rows).text()}).first();
        double reading = 0;
        for (int round = 0; round < 3; ++round) { // what the engine keeps of it is there for both
            m_watch.start();
            m_bare->run(bare);
            reading = m_watch.milliseconds();
        }
        forgetMost();
        const int before = memory("VmRSS");
        m_watch.start();
        const auto report = open(rows, name);
        show(report->page(0));
        const double first = m_watch.milliseconds();
        report->finish();
        const double laidOut = m_watch.milliseconds();
        const int kept = memory("VmRSS") - before;
        m_watch.start();
        const Document document{report->pagesMade(), [&](int number) { return report->page(number); }};
        renderPdf(document, m_folder.filePath("out.pdf"));
        const double pdf = m_watch.milliseconds();
        out() << QStringLiteral(
                     "%1 %2 rows, %3 pages: bare reading %4 ms; first page %5 ms, laid out %6 ms (ratio %7), "
                     "PDF %8 ms; memory +%9 MB laid out, +%10 MB at most\n")
                     .arg(name, -12)
                     .arg(rows, 6)
                     .arg(report->pagesMade())
                     .arg(reading, 0, 'f', 1)
                     .arg(first, 0, 'f', 1)
                     .arg(laidOut, 0, 'f', 1)
                     .arg(laidOut / reading, 0, 'f', 2)
                     .arg(pdf, 0, 'f', 0)
                     .arg(kept / 1024)
                     .arg((memory("VmHWM") - before) / 1024);
        out().flush();
    }

private:
    std::shared_ptr<PageSource> open(int rows, const QString& name) {
        Recordset read = Recordset::paged(m_program.openBilling(), statement(rows));
        return openReport({.folder = m_folder.path(), .file = name, .rows = read});
    }
    void write(const QString& name, const QByteArray& layout) {
        QFile file(m_folder.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(layout);
    }
    /// As the viewer paints it.
    static void show(const Page& page) {
        QImage image(794, 1123, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintPage(painter, page, QRectF(image.rect()));
    }

    QTemporaryDir m_folder;
    QuietUi m_ui;
    Program m_program;
    std::unique_ptr<BareEngine> m_bare;
    Stopwatch m_watch;
};

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Measures reports on a hospital of at least 20,000 bills.");
    parser.addHelpOption();
    parser.addOption({"home", "The home folder of the hospital.", "folder"});
    parser.process(application);
    if (!parser.isSet("home"))
        parser.showHelp(1);
    orvane::Reports reports(parser.value("home"));
    for (const int rows : {10'000, 100'000}) {
        reports.measure(rows, "list.rpt", orvane::lines);
        reports.measure(rows, "invoice.rpt", orvane::invoice);
    }
    return 0;
}
