#include "Worker.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

/// The test program, or with "--worker" one of the workstations that it starts.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--worker"))
        return orvane::runWorker(arguments.mid(2));
    return RUN_ALL_TESTS();
}
