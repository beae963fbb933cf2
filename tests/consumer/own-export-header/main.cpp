// A program with an Export.h of its own, which stands before the library's folder in the search for headers.

#include "Export.h"

#include "Proc/EffectSettings/EffectSettings.h"

#include <iostream>

STUDIO_API int main()
{
    std::cout << Ombrel::PhotoCore::IEffectSettings::CreateEffectSettings("EFFECT_ACID")->GetClassId() << "\n";
}
