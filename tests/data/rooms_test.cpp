// The rooms of the data layer know only themselves and the rooms in front of them: words, dialect, engine, rows.
#include "support/SourceTree.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace orvane {

TEST(Rooms, LookOneWay) {
    static const QRegularExpression include("^#include \"(\\w+)/(\\w+)", QRegularExpression::MultilineOption);
    const QStringList rooms = {"words", "dialect", "engine", "rows"};
    int seen = 0;
    for (QDirIterator files(sourceFile("src/data"), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
         files.hasNext();) {
        QFile file(files.next());
        SCOPED_TRACE(file.fileName().toStdString());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const qsizetype own = rooms.indexOf(file.fileName().section("/src/data/", 1).section(u'/', 0, 0));
        const QString text = QString::fromUtf8(file.readAll());
        for (auto matches = include.globalMatch(text); own >= 0 && matches.hasNext(); ++seen) {
            const QRegularExpressionMatch match = matches.next();
            EXPECT_EQ(match.captured(1), "data");
            EXPECT_LE(rooms.indexOf(match.captured(2)), own) << match.captured().toStdString();
        }
    }
    EXPECT_GT(seen, 50);
}

} // namespace orvane
