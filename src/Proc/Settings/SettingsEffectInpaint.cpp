#include "Proc/Settings/SettingsEffectInpaint.h"

#include "Proc/Reflection/Folds.h"

#include <cmath>

namespace Ombrel::Proc
{

const std::string SettingsEffectInpaint::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectInpaint>
{
    using R = SettingsEffectInpaint;
    using List = FieldList<FieldDescriptor<&R::m_lookupSize>, FieldDescriptor<&R::m_patchSize>>;
};

template struct Reflected<SettingsEffectInpaint>;

SettingsEffectInpaint::~SettingsEffectInpaint() = default;

bool SettingsEffectInpaint::operator==(const SettingsEffectInpaint& other) const
{
    constexpr double tolerance = 1e-05;
    return std::abs(m_lookupSize - other.m_lookupSize) < tolerance && m_patchSize == other.m_patchSize;
}

} // namespace Ombrel::Proc
