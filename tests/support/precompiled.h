// The heavy headers of the tests.
#pragma once
#include "data/precompiled.h"
#include <gtest/gtest.h>
#include "support/Print.h"
