#include "Proc/Settings/SettingsEffectRemoveBackground.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectRemoveBackground::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectRemoveBackground::GetClassId() const
{
    return ClassIdOf<SettingsEffectRemoveBackground>();
}

const RecordSchema& SettingsEffectRemoveBackground::BackgroundSettings::Schema() noexcept
{
    using R = BackgroundSettings;
    return Describe<R, FieldList<FieldDescriptor<&R::m_bgFileName>, FieldDescriptor<&R::m_bgColor>>>();
}

const RecordSchema& SettingsEffectRemoveBackground::Schema() noexcept
{
    using R = SettingsEffectRemoveBackground;

    // Stored trees always hold the background's map. A field that never equals its default is never left out; the fields in
    // it are, one by one.
    struct Background : FieldDescriptor<&R::m_backgroundSettings>
    {
        static bool Equal(const R&, const R&) { return false; }
    };

    return Describe<R, FieldList<FieldDescriptor<&R::m_smooth>, FieldDescriptor<&R::m_morph>, FieldDescriptor<&R::m_adapt>,
                                 FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>, FieldDescriptor<&R::m_scaleX>,
                                 FieldDescriptor<&R::m_scaleY>, Background>>();
}

bool SettingsEffectRemoveBackground::operator==(const SettingsEffectRemoveBackground& other) const
{
    return m_smooth == other.m_smooth && m_morph == other.m_morph && m_adapt == other.m_adapt && m_x == other.m_x &&
           m_y == other.m_y && m_scaleX == other.m_scaleX && m_scaleY == other.m_scaleY;
}

} // namespace Ombrel::Proc
