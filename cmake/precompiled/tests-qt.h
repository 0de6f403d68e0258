// What the tests on Qt include.
#pragma once

#include "rooms-qt.h"
#include "tests.h"
