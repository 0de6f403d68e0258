// The drawing library's header, which needs others before it.
#pragma once

// clang-format off
#include <windows.h>
#include <propidl.h>
#include <gdiplus.h>
// clang-format on
