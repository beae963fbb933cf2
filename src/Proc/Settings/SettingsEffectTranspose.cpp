#include "Proc/Settings/SettingsEffectTranspose.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectTranspose::CLASS_ID{CLASS_NAME};

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

    static constexpr ValueSchema SCHEMA{.kind = ValueKind::Enum, .names = &EnumNames<Value>::TABLE};

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

template <> struct Fields<SettingsEffectTranspose>
{
    using R = SettingsEffectTranspose;
    using List = FieldList<AccessorDescriptor<"angle", &R::SetAngle, &R::GetAngle>>;
};

template struct Reflected<SettingsEffectTranspose>;

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

bool SettingsEffectTranspose::operator==(const SettingsEffectTranspose& other) const
{
    return Reflected<SettingsEffectTranspose>::Equal(*this, other);
}

} // namespace Ombrel::Proc
