// The heavy headers of the tests.
#pragma once
#include "data/precompiled.h"
#include "support/Print.h"
#include <gtest/gtest.h>
