// Boost.JSON, compiled like the rest of the program.
#include <boost/json/src.hpp>
