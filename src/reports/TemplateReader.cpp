#include "reports/TemplateReader.h"

#include "data/DataError.h"
#include "data/words/ShownText.h"
#include "data/words/TextFile.h"
#include "reports/TemplateLine.h"

#include <QFileInfo>

namespace orvane {

namespace {

constexpr int mostLines = 2000, mostGroups = 8;
constexpr double longestPaper = 2000; ///< mm

class Reader {
public:
    explicit Reader(const QString& file) { m_result.file = file; }

    ReportTemplate read(const QStringList& lines) {
        if (lines.size() > mostLines)
            refuseTemplate(m_result.file, mostLines + 1, "the template is longer than any report needs");
        for (int i = 0; i < lines.size(); ++i) {
            TemplateLine line(m_result.file, i + 1, lines.at(i));
            if (line.atEnd())
                continue;
            if (!m_begun)
                readReport(line);
            else
                readLine(line);
            line.demandEnd();
        }
        if (!m_begun)
            refuseTemplate(m_result.file, 1, "the template is empty: its first line is report \"Title\"");
        checkWhole(int(lines.size()));
        return m_result;
    }

private:
    void readReport(TemplateLine& line) {
        line.demand("report");
        m_result.title = line.takeText("the title");
        m_begun = true;
    }

    void readLine(TemplateLine& line) {
        static const QVector<std::pair<QString, void (Reader::*)(TemplateLine&)>> kinds = {
            {"page", &Reader::readPage},       {"font", &Reader::readFont},       {"sort", &Reader::readSort},
            {"group", &Reader::readGroup},     {"band", &Reader::readBand},       {"crosstab", &Reader::readCrosstab},
            {"row", &Reader::readCrosstabRow}, {"column", &Reader::readAcross},   {"cell", &Reader::readCell},
            {"total", &Reader::readTotal},     {"text", &Reader::readText},       {"field", &Reader::readField},
            {"sum", &Reader::readSum},         {"count", &Reader::readCount},     {"line", &Reader::readRule},
            {"box", &Reader::readBox},         {"picture", &Reader::readPicture}, {"rows", &Reader::readRows}};
        for (const auto& [word, read] : kinds)
            if (line.takes(word))
                return (this->*read)(line);
        line.refuse(shownText(line.take("a word")) + " begins no line of a template");
    }

    void readPage(TemplateLine& line) {
        static const QVector<std::tuple<QString, double, double>> sizes = {
            {"A3", 297, 420}, {"A4", 210, 297}, {"A5", 148, 210}, {"Letter", 215.9, 279.4}};
        const QString name = line.takeName("the paper's size");
        const auto size = std::find_if(sizes.cbegin(), sizes.cend(), [&name](const auto& known) {
            return name.compare(std::get<0>(known), Qt::CaseInsensitive) == 0;
        });
        if (size == sizes.cend())
            line.refuse("the paper is A3, A4, A5 or Letter, not " + shownText(name));
        std::tie(std::ignore, m_result.shortSide, m_result.longSide) = *size;
        m_result.paper = line.takes("landscape") ? ReportTemplate::Landscape
                         : line.takes("auto")    ? ReportTemplate::Auto
                                                 : ReportTemplate::Portrait;
        if (m_result.paper == ReportTemplate::Portrait)
            line.takes("portrait");
        if (line.takes("margin"))
            m_result.margin = line.takeNumber("the margin", 0, 50);
    }

    void readFont(TemplateLine& line) { m_result.points = line.takeNumber("the letter size", 4, 72); }

    void readRows(TemplateLine& line) {
        line.demand("as");
        line.demand("given");
        m_result.givenOrder = true;
    }

    void readSort(TemplateLine& line) {
        do {
            SortKey key{line.number(), line.takeName("a field"), false};
            key.descending = line.takes("descending");
            m_result.sort << key;
        } while (!line.atEnd());
    }

    void readGroup(TemplateLine& line) {
        ReportGroup group;
        group.line = line.number();
        group.column = line.takeName("the group's field");
        if (m_result.groupIndex(group.column) >= 0)
            line.refuse("there is a group by " + shownText(group.column) + " already");
        if (m_result.groups.size() == mostGroups)
            line.refuse(QStringLiteral("a report has at most %1 groups").arg(mostGroups));
        if (m_band)
            line.refuse("groups stand before the first band");
        while (!line.atEnd())
            if (line.takes("newpage"))
                group.newPage = true;
            else if (line.takes("repeat"))
                group.repeats = true;
            else
                line.demandEnd();
        m_result.groups << group;
    }

    ReportBand& groupBand(TemplateLine& line) {
        const bool head = line.takes("head");
        if (!head)
            line.demand("foot");
        const QString column = line.takeName("the group's field");
        const int group = m_result.groupIndex(column);
        if (group < 0)
            line.refuse("there is no group by " + shownText(column));
        return head ? m_result.groups[group].head : m_result.groups[group].foot;
    }

    ReportBand& headOrFoot(TemplateLine& line, ReportBand& head, ReportBand& foot) {
        if (line.takes("head"))
            return head;
        line.demand("foot");
        return foot;
    }

    ReportBand& bandOf(TemplateLine& line) {
        if (line.takes("report"))
            return headOrFoot(line, m_result.reportHead, m_result.reportFoot);
        if (line.takes("page"))
            return headOrFoot(line, m_result.pageHead, m_result.pageFoot);
        if (line.takes("carry"))
            return headOrFoot(line, m_result.carryHead, m_result.carryFoot);
        if (line.takes("group"))
            return groupBand(line);
        if (!line.takes("detail"))
            line.refuse("a band is report, page, carry or group with head or foot, or detail");
        return m_result.detail;
    }

    void readBand(TemplateLine& line) {
        ReportBand& band = bandOf(line);
        if (band.line > 0)
            line.refuse(QStringLiteral("this band stands in line %1 already").arg(band.line));
        band.line = line.number();
        const bool carries = &band == &m_result.carryHead || &band == &m_result.carryFoot;
        if (carries && line.takes("of")) {
            band.of = line.takeName("the group");
            if (m_result.groupIndex(band.of) < 0)
                line.refuse("there is no group by " + shownText(band.of));
        }
        line.demand("height");
        band.height = line.takeNumber("the height", 1, longestPaper);
        m_band = &band;
    }

    void readCrosstab(TemplateLine& line) {
        m_result.crosstab.line = line.number();
        m_band = nullptr;
    }

    ReportCrosstab& crosstab(TemplateLine& line) {
        if (m_result.crosstab.line == 0)
            line.refuse("this line stands below a line crosstab");
        return m_result.crosstab;
    }

    double takeWidth(TemplateLine& line) {
        line.demand("width");
        return line.takeNumber("the width", 1, longestPaper);
    }

    void readCrosstabRow(TemplateLine& line) {
        ReportCrosstab::Row row{line.number(), line.takeName("the field"), {}, 0};
        row.heading = line.isText() ? line.takeText("the heading") : row.column;
        row.width = takeWidth(line);
        crosstab(line).rows << row;
    }

    void readAcross(TemplateLine& line) {
        ReportCrosstab& table = crosstab(line);
        table.acrossLine = line.number();
        table.across = line.takeName("the field");
        table.acrossWidth = takeWidth(line);
    }

    void readCell(TemplateLine& line) {
        ReportCrosstab& table = crosstab(line);
        table.cellLine = line.number();
        table.cell = line.takeName("the field");
        if (line.takes("format"))
            table.format = line.takeText("the format");
    }

    void readTotal(TemplateLine& line) { crosstab(line).total = line.takeText("the heading of the totals"); }

    /// An element of the band in hand.
    ReportElement begin(TemplateLine& line, ReportElement::Kind kind) {
        if (!m_band)
            line.refuse("this line stands below the line of its band");
        ReportElement element;
        element.kind = kind;
        element.line = line.number();
        return element;
    }

    void takePlace(TemplateLine& line, ReportElement& element) {
        line.demand("at");
        element.x = line.takeNumber("the place across", 0, longestPaper);
        element.y = line.takeNumber("the place down", 0, longestPaper);
    }

    void takeSize(TemplateLine& line, ReportElement& element) {
        element.width = takeWidth(line);
        if (line.takes("height"))
            element.height = line.takeNumber("the height", 1, longestPaper);
    }

    void finish(TemplateLine& line, const ReportElement& element) {
        if (element.y + element.height > m_band->height + 0.001)
            line.refuse(QStringLiteral("this reaches below its band, which is %1 high").arg(m_band->height));
        m_band->elements << element;
    }

    void readWords(TemplateLine& line, ReportElement& element) {
        takePlace(line, element);
        takeSize(line, element);
        while (!line.atEnd())
            if (line.takes("left"))
                element.align = PageAlign::Left;
            else if (line.takes("center"))
                element.align = PageAlign::Center;
            else if (line.takes("right"))
                element.align = PageAlign::Right;
            else if (line.takes("bold"))
                element.bold = true;
            else if (line.takes("size"))
                element.points = line.takeNumber("the letter size", 4, 72);
            else if (element.kind != ReportElement::Text && line.takes("format"))
                element.format = line.takeText("the format");
            else
                line.demandEnd();
        finish(line, element);
    }

    void readText(TemplateLine& line) {
        ReportElement element = begin(line, ReportElement::Text);
        if (!line.isText())
            element.name = line.takeName("a text in quotes");
        if (element.name.isEmpty() || line.isText())
            element.text = line.takeText("the text");
        readWords(line, element);
    }

    static void takeSide(TemplateLine& line, ReportElement& element) {
        if (line.takes("debit"))
            element.side = ReportElement::Debit;
        else if (line.takes("credit"))
            element.side = ReportElement::Credit;
    }

    void readField(TemplateLine& line) {
        ReportElement element = begin(line, ReportElement::Field);
        element.name = line.takeName("the field");
        takeSide(line, element);
        readWords(line, element);
    }

    void takeOf(TemplateLine& line, ReportElement& element) {
        if (line.takes("of"))
            element.of = line.takeName("the group");
    }

    void readSum(TemplateLine& line) {
        ReportElement element = begin(line, ReportElement::Sum);
        element.name = line.takeName("the field");
        takeSide(line, element);
        takeOf(line, element);
        readWords(line, element);
    }

    void readCount(TemplateLine& line) {
        ReportElement element = begin(line, ReportElement::Count);
        takeOf(line, element);
        readWords(line, element);
    }

    void takeRule(TemplateLine& line, ReportElement& element) {
        while (!line.atEnd())
            if (line.takes("thick"))
                element.thickness = line.takeNumber("the thickness", 0.05, 5);
            else if (line.takes("dashed"))
                element.dashed = true;
            else
                line.demandEnd();
    }

    void readRule(TemplateLine& line) {
        ReportElement element = begin(line, ReportElement::Line);
        takePlace(line, element);
        line.demand("to");
        element.width = line.takeNumber("the place across", 0, longestPaper) - element.x;
        element.height = line.takeNumber("the place down", 0, longestPaper) - element.y;
        takeRule(line, element);
        finish(line, element);
    }

    void readBox(TemplateLine& line) {
        ReportElement box = begin(line, ReportElement::Line);
        takePlace(line, box);
        takeSize(line, box);
        takeRule(line, box);
        const auto side = [&](double x, double y, double width, double height) {
            ReportElement rule = box;
            rule.x = x, rule.y = y, rule.width = width, rule.height = height;
            finish(line, rule);
        };
        side(box.x, box.y, box.width, 0);
        side(box.x, box.y + box.height, box.width, 0);
        side(box.x, box.y, 0, box.height);
        side(box.x + box.width, box.y, 0, box.height);
    }

    void readPicture(TemplateLine& line) {
        ReportElement element = begin(line, ReportElement::Picture);
        element.text = line.takeText("the picture's file");
        takePlace(line, element);
        element.width = takeWidth(line);
        line.demand("height");
        element.height = line.takeNumber("the height", 1, longestPaper);
        finish(line, element);
    }

    void checkWhole(int lines) {
        for (const ReportBand* band : m_result.bands())
            for (const ReportElement& element : band->elements)
                if (m_result.paper != ReportTemplate::Auto &&
                    element.x + std::max(0.0, element.width) > m_result.width() - 2 * m_result.margin + 0.001)
                    refuseTemplate(m_result.file, element.line, "this reaches over the right margin");
        checkHeight(lines);
        if (m_result.crosstab.line > 0)
            checkCrosstab();
        else if (m_result.detail.line == 0 && m_result.groups.isEmpty())
            refuseTemplate(m_result.file, lines, "the template has no band detail");
    }

    /// A page takes what must stand together on it.
    void checkHeight(int lines) {
        double needed = 2 * m_result.margin + m_result.pageHead.height + m_result.pageFoot.height +
                        m_result.carryHead.height + m_result.carryFoot.height + m_result.detail.height;
        double tallest = m_result.reportFoot.height;
        for (const ReportGroup& group : m_result.groups) {
            needed += group.head.height;
            tallest = std::max(tallest, group.foot.height);
        }
        const double paper = m_result.paper == ReportTemplate::Portrait ? m_result.longSide : m_result.shortSide;
        if (needed + std::max(tallest, m_result.reportHead.height) > paper)
            refuseTemplate(m_result.file, lines, "the bands are higher than a page");
    }

    void checkCrosstab() {
        const ReportCrosstab& table = m_result.crosstab;
        if (!m_result.groups.isEmpty() || m_result.detail.line > 0 ||
            m_result.carryHead.line + m_result.carryFoot.line > 0)
            refuseTemplate(m_result.file, table.line, "a crosstab has no groups, details and carried amounts");
        if (table.rows.isEmpty() || table.across.isEmpty() || table.cell.isEmpty())
            refuseTemplate(m_result.file, table.line, "a crosstab has a row, a column and a cell");
        double width = table.acrossWidth;
        for (const ReportCrosstab::Row& row : table.rows)
            width += row.width;
        if (width > m_result.width() - 2 * m_result.margin)
            refuseTemplate(m_result.file, table.line, "the crosstab's rows and one column are wider than the page");
    }

    ReportTemplate m_result;
    ReportBand* m_band = nullptr; ///< whose elements follow
    bool m_begun = false;
};

} // namespace

void refuseTemplate(const QString& file, int line, const QString& what) {
    throw DataError(QStringLiteral("%1:%2: %3.").arg(file).arg(std::max(line, 1)).arg(what));
}

ReportTemplate readTemplate(const QString& file, const QStringList& lines) {
    return Reader(file).read(lines);
}

ReportTemplate readTemplateFile(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    if (!QFileInfo::exists(path))
        throw DataError(QStringLiteral("The report template %1 is not in the program's folder.").arg(name));
    return readTemplate(name, readTextLines(path));
}

} // namespace orvane
