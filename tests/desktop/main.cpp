#include "desktop/Look.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    orvane::look::apply(application, false);
    return RUN_ALL_TESTS();
}
