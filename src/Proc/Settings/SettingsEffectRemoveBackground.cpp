#include "Proc/Settings/SettingsEffectRemoveBackground.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectRemoveBackground::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectRemoveBackground::BackgroundSettings>
{
    using R = SettingsEffectRemoveBackground::BackgroundSettings;
    using List = FieldList<FieldDescriptor<&R::m_bgFileName>, FieldDescriptor<&R::m_bgColor>>;
};

template struct Reflected<SettingsEffectRemoveBackground::BackgroundSettings>;

template <> struct Fields<SettingsEffectRemoveBackground>
{
    using R = SettingsEffectRemoveBackground;

    // Stored trees always hold the background's map. A field that never equals its default is never left out; the fields in
    // it are, one by one.
    struct Background : FieldDescriptor<&R::m_backgroundSettings>
    {
        static bool Equal(const R&, const R&) { return false; }
    };

    using List = FieldList<FieldDescriptor<&R::m_smooth>, FieldDescriptor<&R::m_morph>, FieldDescriptor<&R::m_adapt>,
                           FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>, FieldDescriptor<&R::m_scaleX>,
                           FieldDescriptor<&R::m_scaleY>, Background>;
};

template struct Reflected<SettingsEffectRemoveBackground>;

SettingsEffectRemoveBackground::~SettingsEffectRemoveBackground() = default;

bool SettingsEffectRemoveBackground::operator==(const SettingsEffectRemoveBackground& other) const
{
    return m_smooth == other.m_smooth && m_morph == other.m_morph && m_adapt == other.m_adapt && m_x == other.m_x &&
           m_y == other.m_y && m_scaleX == other.m_scaleX && m_scaleY == other.m_scaleY;
}

} // namespace Ombrel::Proc
