#include "Proc/Settings/SettingsEffectEdgeDetect.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectEdgeDetect::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectEdgeDetect::GetClassId() const
{
    return ClassIdOf<SettingsEffectEdgeDetect>();
}

template <> struct EnumNames<SettingsEffectEdgeDetect::EdgeDetectMode>
{
    using E = SettingsEffectEdgeDetect::EdgeDetectMode;

    static constexpr EnumNameRow ROWS[] = {
        {"None", E::None},
        {"Wires", E::Wires},
        {"Colormix", E::Colormix},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectEdgeDetect::Schema() noexcept
{
    using R = SettingsEffectEdgeDetect;
    return Describe<R, FieldList<AccessorDescriptor<"mode", &R::SetMode, &R::GetMode>,
                                 AccessorDescriptor<"lowThreshold", &R::SetLowThreshold, &R::GetLowThreshold>,
                                 AccessorDescriptor<"highThreshold", &R::SetHighThreshold, &R::GetHighThreshold>>>();
}

bool SettingsEffectEdgeDetect::IsEmpty() const
{
    return *this == Reflected<SettingsEffectEdgeDetect>::Default();
}

} // namespace Ombrel::Proc
