#include "Proc/Settings/SettingsEffectTranspose.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectTranspose::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectTranspose::GetClassId() const
{
    return ClassIdOf<SettingsEffectTranspose>();
}

template <> struct EnumNames<SettingsEffectTranspose::TransposeAngle>
{
    using E = SettingsEffectTranspose::TransposeAngle;

    static constexpr EnumNameRow ROWS[] = {
        {"NoRotation", E::NoRotation},
        {"Angle_90", E::Angle_90},
        {"Angle_180", E::Angle_180},
        {"Angle_270", E::Angle_270},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

// By name like every enumeration, but an integer passes its number on, which the setter brings into range.
template <> struct Codec<SettingsEffectTranspose::TransposeAngle>
{
    using Value = SettingsEffectTranspose::TransposeAngle;

    static constexpr ValueSchema SCHEMA{.kind = ValueKind::Enum, .names = &EnumNames<Value>::TABLE, .takesNumbers = true};

    static void Write(PropertyTree& child, Value value, const WriteFlags*)
    {
        WriteEnum(child, static_cast<std::int32_t>(value), EnumNames<Value>::TABLE);
    }

    static void Read(const PropertyTree& child, Value& value, const ReadFlags*)
    {
        const bool isNumber = child.isScalar() && child.getScalar().kind() == PropertyTreeScalar::Kind::Integer;
        value = static_cast<Value>(isNumber ? static_cast<std::int32_t>(ReadInteger(child))
                                            : ReadEnum(child, EnumNames<Value>::TABLE));
    }
};

const RecordSchema& SettingsEffectTranspose::Schema() noexcept
{
    using R = SettingsEffectTranspose;
    return Describe<R, FieldList<AccessorDescriptor<"angle", &R::SetAngle, &R::GetAngle>>>();
}

bool SettingsEffectTranspose::IsEmpty() const
{
    return *this == Reflected<SettingsEffectTranspose>::Default();
}

void SettingsEffectTranspose::SetAngle(TransposeAngle value)
{
    m_angle = static_cast<TransposeAngle>(static_cast<std::int32_t>(value) % 4);
}

void SettingsEffectTranspose::AddAngle90()
{
    // What is stored lies between -3 and 3.
    m_angle = static_cast<TransposeAngle>((static_cast<std::int32_t>(m_angle) + 5) % 4);
}

} // namespace Ombrel::Proc
