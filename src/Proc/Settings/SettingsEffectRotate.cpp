#include "Proc/Settings/SettingsEffectRotate.h"

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectRotate::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<SettingsEffectRotate::OutputSizeMode>
{
    using E = SettingsEffectRotate::OutputSizeMode;

    static constexpr EnumNameRow ROWS[] = {
        {"enOutputSizeOriginal", E::enOutputSizeOriginal},
        {"enOutputSizeCustom", E::enOutputSizeCustom},
        {"enOutputSizeCrop", E::enOutputSizeCrop},
        {"enOutputSizePad", E::enOutputSizePad},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectRotate>
{
    using R = SettingsEffectRotate;
    using List = FieldList<FieldDescriptor<&R::m_outputSizeMode>, FieldDescriptor<&R::m_angle>, FieldDescriptor<&R::m_width>,
                           FieldDescriptor<&R::m_height>, FieldDescriptor<&R::m_isBilinear>, FieldDescriptor<&R::m_color>>;
};

template struct Reflected<SettingsEffectRotate>;

bool SettingsEffectRotate::IsEmpty() const
{
    return *this == Reflected<SettingsEffectRotate>::Default();
}

bool SettingsEffectRotate::operator==(const SettingsEffectRotate& other) const
{
    return Reflected<SettingsEffectRotate>::Equal(*this, other);
}

} // namespace Ombrel::Proc
