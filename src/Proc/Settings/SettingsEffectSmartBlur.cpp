#include "Proc/Settings/SettingsEffectSmartBlur.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectSmartBlur::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectSmartBlur>
{
    using R = SettingsEffectSmartBlur;
    using List =
        FieldList<FieldDescriptor<&R::m_lumaRadius>, FieldDescriptor<&R::m_lumaBlur>, FieldDescriptor<&R::m_lumaSharpen>,
                  FieldDescriptor<&R::m_lumaThreshold>, FieldDescriptor<&R::m_chromaRadius>, FieldDescriptor<&R::m_chromaBlur>,
                  FieldDescriptor<&R::m_chromaSharpen>, FieldDescriptor<&R::m_chromaThreshold>>;
};

template struct Reflected<SettingsEffectSmartBlur>;

bool SettingsEffectSmartBlur::IsEmpty() const
{
    return *this == Reflected<SettingsEffectSmartBlur>::Default();
}

bool SettingsEffectSmartBlur::operator==(const SettingsEffectSmartBlur& other) const
{
    return Reflected<SettingsEffectSmartBlur>::Equal(*this, other);
}

} // namespace Ombrel::Proc
