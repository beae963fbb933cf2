// Records of two effects do not compare, though both have the base that compares them.

#include "Proc/Settings/SettingsEffectDeepDenoiser.h"
#include "Proc/Settings/SettingsEffectDeepEnhancer.h"

using namespace Ombrel::Proc;

bool Compare()
{
#ifdef MUST_FAIL
    return SettingsEffectDeepDenoiser() == SettingsEffectDeepEnhancer();
#else
    return SettingsEffectDeepDenoiser() == SettingsEffectDeepDenoiser();
#endif
}
