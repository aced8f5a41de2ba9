#include "PrivateServer.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

/// The tests stop and start their server, so they have one of their own where ORVANE_TEST_PG names any.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Static, so that they outlive the databases that the tests share.
    static const QCoreApplication application(argc, argv);
    if (!qEnvironmentVariableIsSet("ORVANE_TEST_PG"))
        return RUN_ALL_TESTS();
    static const orvane::PrivateServer server;
    return RUN_ALL_TESTS();
}
