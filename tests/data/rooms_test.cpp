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
    for (const QString& room : rooms) {
        QDirIterator files(sourceFile("src/data/" + room), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            for (auto matches = include.globalMatch(text); matches.hasNext(); ++seen) {
                const QRegularExpressionMatch match = matches.next();
                EXPECT_EQ(match.captured(1), "data") << file.fileName().toStdString();
                EXPECT_LE(rooms.indexOf(match.captured(2)), rooms.indexOf(room))
                    << file.fileName().toStdString() << " includes " << match.captured().toStdString();
            }
        }
    }
    EXPECT_GT(seen, 50);
}

} // namespace orvane
