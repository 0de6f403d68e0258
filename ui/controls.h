// All controls.
#pragma once

#include "ui/button.h"          // IWYU pragma: export
#include "ui/check_controls.h"  // IWYU pragma: export
#include "ui/group_box.h"       // IWYU pragma: export
#include "ui/item_lists.h"      // IWYU pragma: export
#include "ui/label.h"           // IWYU pragma: export
#include "ui/text_box.h"        // IWYU pragma: export
