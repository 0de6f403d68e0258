#pragma once

// Numbers of the program's resources, for vantelle.rc too.
#define VANTELLE_ICON 1
