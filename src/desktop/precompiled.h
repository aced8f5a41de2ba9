// The heavy headers of the widget library.
#pragma once
#include "data/precompiled.h"
#include <QtWidgets>
