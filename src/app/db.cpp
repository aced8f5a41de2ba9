#include "tool/Tool.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream errors(stderr);
    return orvane::runDatabaseTool(QCoreApplication::arguments().mid(1), out, errors);
}
