#include "Proc/Settings/SettingsEffectRotate.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectRotate::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectRotate::GetClassId() const
{
    return ClassIdOf<SettingsEffectRotate>();
}

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

const RecordSchema& SettingsEffectRotate::Schema() noexcept
{
    using R = SettingsEffectRotate;
    return Describe<R, FieldList<AccessorDescriptor<"outputSizeMode", &R::SetOutputSizeMode, &R::GetOutputSizeMode>,
                                 AccessorDescriptor<"angle", &R::SetAngle, &R::GetAngle>,
                                 AccessorDescriptor<"width", &R::SetWidth, &R::GetWidth>,
                                 AccessorDescriptor<"height", &R::SetHeight, &R::GetHeight>,
                                 AccessorDescriptor<"isBilinear", &R::SetIsBilinear, &R::GetIsBilinear>,
                                 AccessorDescriptor<"color", &R::SetColor, &R::GetColor>>>();
}

bool SettingsEffectRotate::IsEmpty() const
{
    return *this == Reflected<SettingsEffectRotate>::Default();
}

} // namespace Ombrel::Proc
