#include "Proc/Settings/SettingsEffectTexture.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectTexture::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectTexture::GetClassId() const
{
    return ClassIdOf<SettingsEffectTexture>();
}

template <> struct EnumNames<SettingsEffectTexture::ResizeMode>
{
    using E = SettingsEffectTexture::ResizeMode;

    static constexpr EnumNameRow ROWS[] = {
        {"Scale", E::Scale},
        {"Tile", E::Tile},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectTexture::Schema() noexcept
{
    using R = SettingsEffectTexture;
    return Describe<R, FieldList<FieldDescriptor<&R::m_resizeMode>, FieldDescriptor<&R::m_alpha>, FieldDescriptor<&R::m_flip>,
                                 FieldDescriptor<&R::m_transpose>, FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>,
                                 FieldDescriptor<&R::m_isPreview>, FieldDescriptor<&R::m_texture>>>();
}

bool SettingsEffectTexture::IsEmpty() const
{
    return m_texture.empty() || m_alpha == 0.0;
}

} // namespace Ombrel::Proc
