// What nearly every test includes.
#pragma once

#include <gtest/gtest.h>

#include "rooms.h"
