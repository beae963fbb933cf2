#include "Proc/Settings/SettingsEffectHistogram.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/PixFmtNames.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectHistogram::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectHistogram>
{
    using R = SettingsEffectHistogram;
    using List = FieldList<FieldDescriptor<&R::m_width>, FieldDescriptor<&R::m_heightLevel>, FieldDescriptor<&R::m_heightScale>,
                           FieldDescriptor<&R::m_sharpen>, FieldDescriptor<&R::m_pixFmt>, FieldDescriptor<&R::m_flags>>;
};

template struct Reflected<SettingsEffectHistogram>;

SettingsEffectHistogram::~SettingsEffectHistogram() = default;

bool SettingsEffectHistogram::operator==(const SettingsEffectHistogram& other) const
{
    return Reflected<SettingsEffectHistogram>::Equal(*this, other);
}

} // namespace Ombrel::Proc
