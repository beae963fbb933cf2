#include "Proc/Settings/SettingsEffectTexture.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectTexture::CLASS_ID{CLASS_NAME};

extern template struct Reflected<SettingsEffectFlip>;
extern template struct Reflected<SettingsEffectTranspose>;

template <> struct EnumNames<SettingsEffectTexture::ResizeMode>
{
    using E = SettingsEffectTexture::ResizeMode;

    static constexpr EnumNameRow ROWS[] = {
        {"Scale", E::Scale},
        {"Tile", E::Tile},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectTexture>
{
    using R = SettingsEffectTexture;
    using List = FieldList<FieldDescriptor<&R::m_resizeMode>, FieldDescriptor<&R::m_alpha>, FieldDescriptor<&R::m_flip>,
                           FieldDescriptor<&R::m_transpose>, FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>,
                           FieldDescriptor<&R::m_isPreview>, FieldDescriptor<&R::m_texture>>;
};

template struct Reflected<SettingsEffectTexture>;

bool SettingsEffectTexture::IsEmpty() const
{
    return m_texture.empty() || m_alpha == 0.0;
}

bool SettingsEffectTexture::operator==(const SettingsEffectTexture& other) const
{
    return Reflected<SettingsEffectTexture>::Equal(*this, other);
}

} // namespace Ombrel::Proc
