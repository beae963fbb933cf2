#include "Proc/Settings/SettingsEffectShapeMask.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectShapeMask::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectShapeMask::GetClassId() const
{
    return ClassIdOf<SettingsEffectShapeMask>();
}

template <> struct EnumNames<SettingsEffectShapeMask::Shape>
{
    using E = SettingsEffectShapeMask::Shape;

    static constexpr EnumNameRow ROWS[] = {
        {"Circle", E::Circle},
        {"Ellipse", E::Ellipse},
        {"Square", E::Square},
        {"Rectangle", E::Rectangle},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct EnumNames<SettingsEffectShapeMask::ThresholdMode>
{
    using E = SettingsEffectShapeMask::ThresholdMode;

    static constexpr EnumNameRow ROWS[] = {
        {"None", E::None},
        {"Foreground", E::Foreground},
        {"Background", E::Background},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectShapeMask::Schema() noexcept
{
    using R = SettingsEffectShapeMask;
    return Describe<R, FieldList<FieldDescriptor<&R::m_shape>, FieldDescriptor<&R::m_thresholdMode>, FieldDescriptor<&R::m_x>,
                                 FieldDescriptor<&R::m_y>, FieldDescriptor<&R::m_width>, FieldDescriptor<&R::m_height>,
                                 FieldDescriptor<&R::m_threshold>, FieldDescriptor<&R::m_rotationAngle>,
                                 FieldDescriptor<&R::m_foreground>, FieldDescriptor<&R::m_background>,
                                 FieldDescriptor<&R::m_foregroundTilt>, FieldDescriptor<&R::m_backgroundTilt>>>();
}

bool SettingsEffectShapeMask::IsEmpty() const
{
    return *this == Reflected<SettingsEffectShapeMask>::Default();
}

bool SettingsEffectShapeMask::IsForegroundOnly() const
{
    const bool hasShape = m_width != 0.0 || m_height != 0.0;
    const bool hasTilt = m_foregroundTilt != 0.0 || m_backgroundTilt != 0.0;
    return !hasTilt && m_background == 0 && (m_foreground == 0 || !hasShape);
}

} // namespace Ombrel::Proc
