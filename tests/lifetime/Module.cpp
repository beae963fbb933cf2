#include "UseAll.h"

extern "C" [[gnu::visibility("default")]] void UseAll()
{
    Lifetime::UseAll("module");
    Lifetime::UseConstants("module");
}
