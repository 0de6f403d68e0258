// What the library does with an exception that nothing caught: its own handler says which it is, for which it brings
// the names of all classes' parts and 50 KB that take them apart. The editor has nowhere to say it, and the command
// line catches what it can tell of.
#include <cstdlib>

namespace __gnu_cxx {

void __verbose_terminate_handler() { std::abort(); }

}  // namespace __gnu_cxx
